#include "toepassing/klavermol.h"

#include "ingebed.h"
#include "toepassing/klavermolvenster.h"

#include <wx/image.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/splash.h>
#include <wx/statusbr.h>

Klavermol::Klavermol()
    : DesktopApp("Klavermol", "kvl", wxString()), splash(nullptr), splashStatus(nullptr), venster(nullptr)
{
}

bool Klavermol::OnInit()
{
    wxImage::AddHandler(new wxJPEGHandler);
    wxImage::AddHandler(new wxPNGHandler);

    venster = new KlavermolVenster(nullptr, 10000, _("KlavermolVenster"), wxDefaultPosition, wxDefaultSize,
                                   wxCAPTION | wxBORDER_SIMPLE | wxCLOSE_BOX | wxSYSTEM_MENU | wxMINIMIZE_BOX
                                       | wxMAXIMIZE_BOX | wxRESIZE_BORDER);
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

Klavermol& wxGetApp()
{
    return *static_cast<Klavermol*>(wxApp::GetInstance());
}
