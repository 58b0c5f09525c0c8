#include "toepassing/klavermol.h"

#include "ingebed.h"
#include "toepassing/klavermolvenster.h"

#include <wx/image.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/splash.h>
#include <wx/statusbr.h>

namespace {

// On GTK a border style makes the toolkit drop the title bar and the window
// manager's functions (move, resize, maximise): it is left out there.
#ifdef __WXGTK__
constexpr long randStijl = 0;
#else
constexpr long randStijl = wxBORDER_SIMPLE;
#endif
constexpr long hoofdVensterStijl = wxCAPTION | randStijl | wxCLOSE_BOX | wxSYSTEM_MENU | wxMINIMIZE_BOX
    | wxMAXIMIZE_BOX | wxRESIZE_BORDER;

} // namespace

Klavermol::Klavermol()
    : DesktopApp("Klavermol", "kvl", wxString()), splash(nullptr), splashStatus(nullptr), venster(nullptr)
{
}

bool Klavermol::OnInit()
{
    wxImage::AddHandler(new wxJPEGHandler);
    wxImage::AddHandler(new wxPNGHandler);

    venster = new KlavermolVenster(nullptr, 10000, _("KlavermolVenster"), wxDefaultPosition, wxDefaultSize,
                                   hoofdVensterStijl);
    if (venster == nullptr)
        return false;

    wxSafeYield(venster, true);
    SetTopWindow(venster);
    zetHoofdVenster(venster, false, false);

    wxMemoryInputStream stroom(Klavermol_jpg, Klavermol_jpg_lengte);
    wxImage beeld;
    if (Klavermol_jpg_lengte == 0 || !beeld.LoadFile(stroom, wxBITMAP_TYPE_JPEG))
        beeld = wxImage(400, 260);
    const wxBitmap bitmap(beeld);

    splash = new wxSplashScreen(bitmap, wxSPLASH_CENTRE_ON_SCREEN | wxSPLASH_TIMEOUT, 2000, venster, wxID_ANY,
                                wxDefaultPosition, wxDefaultSize, wxBORDER_SIMPLE | wxSTAY_ON_TOP);
    splashStatus = new wxStatusBar(splash, wxID_ANY);
    splash->SetStatusBar(splashStatus);
    splashStatus->PushStatusText(_("Klavermol is starting!"), 0);

    const bool konStarten = venster->Show(true);
    wxASSERT(true == konStarten);
    splash->Raise(); // over the main window also where no window manager keeps it on top
    return true;
}

bool Klavermol::OnExceptionInMainLoop()
{
    // The program ends on an error no handler catches, but what the user set
    // is written first, as at a normal exit.
    if (venster != nullptr)
        venster->bewaarToestand();
    schrijfEigenInstellingen();
    bewaarInstellingen();
    throw;
}

Klavermol& wxGetApp()
{
    return *static_cast<Klavermol*>(wxApp::GetInstance());
}
