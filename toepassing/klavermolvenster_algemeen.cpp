// The "General" menu and the quit button: preferences, language, about, quit.
#include "toepassing/klavermolvenster.h"

#include "dialogs/preferences.h"
#include "dialogs/taalkeuzedialoog.h"
#include "ingebed.h"
#include "toepassing/klavermol.h"

#include <wx/image.h>
#include <wx/mstream.h>

void KlavermolVenster::sluitHandler(wxCommandEvent&)
{
    Close();
}

void KlavermolVenster::OnPREFERENCESClick(wxCommandEvent&)
{
    Preferences dialoog(this, 10000, _("Preferences"));
    dialoog.sjablonen = sjablonen;
    if (dialoog.ShowModal() == wxID_OK)
        sjablonen = dialoog.sjablonen;
}

void KlavermolVenster::OnZetTaalIDClick(wxCommandEvent&)
{
    wxArrayInt talen;
    talen.Add(wxLANGUAGE_GERMAN);
    talen.Add(wxLANGUAGE_ENGLISH);
    talen.Add(wxLANGUAGE_DUTCH);
    TaalKeuzeDialoog dialoog(this, talen, 10000, _("Language Selection "), wxDefaultPosition, wxSize(200, 150),
                             wxCAPTION | wxRESIZE_BORDER | wxSYSTEM_MENU | wxCLOSE_BOX | wxTAB_TRAVERSAL);
    if (dialoog.ShowModal() == wxID_OK)
        wxGetApp().zetTaal(static_cast<wxLanguage>(dialoog.geefTaal()));
}

void KlavermolVenster::OnABOUTClick(wxCommandEvent&)
{
    wxMemoryInputStream stroom(Zelvano_klein_png, Zelvano_klein_png_lengte);
    wxImage beeld;
    wxIcon ikoon;
    if (Zelvano_klein_png_lengte > 0 && beeld.LoadFile(stroom, wxBITMAP_TYPE_PNG))
        ikoon.CopyFromBitmap(wxBitmap(beeld));

    wxArrayString credits;
    credits.Add(_("The CMake Project (https://cmake.org)"));
    credits.Add(_("Klavermol icons: drawn for this programme; flags from the public-domain set of Linux Mint (https://www.zelvano.nl/klavermol)"));
    wxGetApp().toonCopyright("https://www.zelvano.nl", ikoon, credits);
}
