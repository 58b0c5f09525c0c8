#include "desktopApp.h"

#include "kern/instellingen.h"

#include <wx/display.h>
#include <wx/html/htmprint.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/tooltip.h>
#include <wx/translation.h>

const wxString DesktopApp::bedrijfsNaam = "Zelvano";

DesktopApp::AboutToner& DesktopApp::geefAboutToner()
{
    static AboutToner toner = [](const wxAboutDialogInfo& info, wxWindow* ouder) { wxAboutBox(info, ouder); };
    return toner;
}

namespace {

// The application object must be known to the toolkit before the base
// layer opens the store and sets up the locale (both ask the toolkit's
// standard paths, which need the application's traits).
const wxString& meldApplikatieAan(wxApp* app, const wxString& naam)
{
    wxApp::SetInstance(app);
    return naam;
}

} // namespace

DesktopApp::DesktopApp(const wxString& naam, const wxString& korteNaam, const wxString&)
    : wxApp(), DesktopAppBasis(meldApplikatieAan(this, naam), korteNaam)
{
    SetAppName(naam);
    SetAppDisplayName(naam);
    SetVendorName(bedrijfsNaam);
    SetVendorDisplayName(bedrijfsNaam);

    toonHulpToolTips = config->ReadBool(instelling::ToonHulpToolTipsPad, true);
    wxToolTip::Enable(toonHulpToolTips.boolean());
    taalGekozen = config->ReadBool(instelling::TaalGekozenPad, false);
}

DesktopApp::~DesktopApp()
{
    delete htmlPrinter;
    htmlPrinter = nullptr;
    schrijfEigenInstellingen();
}

void DesktopApp::schrijfEigenInstellingen()
{
    config->Write(instelling::ToonHulpToolTipsPad, toonHulpToolTips.boolean());
}

void DesktopApp::zetHoofdVenster(wxWindow* venster, bool metPrinten, bool)
{
    if (venster == nullptr) {
        wxFAIL_COND_MSG((win != nullptr), "(DesktopAppBasis::zetHoofdVenster) win = NULL");
        return;
    }
    hoofdVenster = venster;
    zetHoofdVensterGrootte();
    SetTopWindow(venster);
    if (metPrinten)
        htmlPrinter = new wxHtmlEasyPrinting("Gemakkelijk Html Easy printen", venster);
}

void DesktopApp::zetHoofdVensterGrootte()
{
    config->SetPath(instelling::Venster);
    wxSize grootte(static_cast<int>(config->ReadLong(instelling::GrootteX, instelling::StandaardGrootteX)),
                   static_cast<int>(config->ReadLong(instelling::GrootteY, instelling::StandaardGrootteY)));
    // A size no window can have gives the default; the next exit stores the
    // size the window really has.
    if (grootte.x <= 0 || grootte.y <= 0)
        grootte = wxSize(instelling::StandaardGrootteX, instelling::StandaardGrootteY);
    hoofdVenster->SetClientSize(grootte);
    // Never smaller than the contents, never larger than the screen.
    const wxRect scherm = wxDisplay(hoofdVenster).GetClientArea();
    wxSize buiten = hoofdVenster->GetSize();
    buiten.IncTo(hoofdVenster->GetMinSize());
    buiten.DecTo(scherm.GetSize());
    hoofdVenster->SetSize(buiten);
    hoofdVenster->Centre(wxBOTH);
}

void DesktopApp::bewaarHoofdVensterGrootte()
{
    if (hoofdVenster == nullptr)
        return;
    const wxSize grootte = hoofdVenster->GetClientSize();
    config->SetPath(instelling::Venster);
    if (grootte.x > 100 && grootte.y > 100) {
        config->Write(instelling::GrootteX, static_cast<long>(grootte.x));
        config->Write(instelling::GrootteY, static_cast<long>(grootte.y));
    }
}

void DesktopApp::zetTaal(wxLanguage lang)
{
    if (hoofdVenster == nullptr)
        wxFAIL_COND_MSG((hoofdVenster != nullptr), "(DesktopAppBasis::zetTaal) win = NULL");

    const wxString melding = wxString(_("A new application language was selected.")) + vr
        + _("Do you want to proceed (Any unsaved data might be lost) ?") + vr
        + _("Please select YES to put the changes into effect and restart the application.") + vr;
    if (wxMessageBox(melding, _("Restart the application"), wxYES_NO, hoofdVenster) != wxYES)
        return;

    taalGekozen = true;
    config->Write(instelling::TaalGekozenPad, true);
    taal = lang;
    config->Write(instelling::EncodingPad, static_cast<long>(lang));
    bewaarInstellingen();
    if (hoofdVenster != nullptr)
        hoofdVenster->Close(true);
    startApplikatieOpnieuw();
    geefProcesNaad().stop();
}
