#include "desktopAppBasis.h"

#include "desktopApp.h"
#include "kern/instellingen.h"
#include "kern/tekst.h"

#include <wx/datetime.h>
#include <wx/filefn.h>
#include <wx/log.h>
#include <wx/translation.h>
#include <wx/utils.h>

const wxString DesktopAppBasis::sp = " ";
const wxString DesktopAppBasis::vr = "\n";
const wxString DesktopAppBasis::tab = "\t";

DesktopAppBasis::ProcesNaad& DesktopAppBasis::geefProcesNaad()
{
    static ProcesNaad naad{
        [](const wxString& pad) { return wxExecute(pad, wxEXEC_ASYNC); },
        [] { wxExit(); }};
    return naad;
}

DesktopAppBasis::DesktopAppBasis(const wxString& naam, const wxString& korteNaam)
    : applikatieNaam(naam),
      platformInfo(wxPlatformInfo::Get()),
      standaardPaden(wxStandardPaths::Get()),
      taal(wxLANGUAGE_DEFAULT)
{
    openInstellingen();

    enkeleInstantie = std::make_unique<wxSingleInstanceChecker>(naam + "-" + wxGetUserId(), "/tmp");

    const wxDateTime nu = wxDateTime::Now();
    const wxString datum = nu.Format(instelling::DatumVorm);
    const wxString tijd = nu.Format(instelling::TijdVorm);

    wxLogDebug("Desktop App (" + naam + ") start");
    wxConfigBase::DontCreateOnDemand();

    config->SetPath(instelling::GebruikersInstellingen);
    taal = static_cast<int>(config->ReadLong(instelling::Encoding, wxLocale::GetSystemLanguage()));

    config->SetPath(instelling::Operationeel);
    laatsteDataPad = config->Read(instelling::LaatsteDataPad, standaardPaden.GetDocumentsDir());

    config->SetPath(instelling::Statistiek);
    config->Write(instelling::StartDatum, datum);
    config->Write(instelling::StartTijd, tijd);

    initLokaliteit(static_cast<wxLanguage>(taal));

    korteNamen.Add(korteNaam);
    applikatieNamen.Add(naam);
    processor.neemWaar();
    besturingsSysteem.neemWaar();
}

DesktopAppBasis::~DesktopAppBasis()
{
    const wxDateTime nu = wxDateTime::Now();
    config->SetPath(instelling::GebruikersInstellingen);
    config->Write(instelling::Encoding, static_cast<long>(taal));
    config->SetPath(instelling::Operationeel);
    config->Write(instelling::LaatsteDataPad, laatsteDataPad);
    config->SetPath(instelling::Statistiek);
    config->Write(instelling::StopDatum, nu.Format(instelling::DatumVorm));
    config->Write(instelling::StopTijd, nu.Format(instelling::TijdVorm));
    config->Write(instelling::OS, static_cast<long>(platformInfo.GetOperatingSystemId()));
    bewaarInstellingen();
    config->DisableAutoSave(); // written above, or reported once already
    enkeleInstantie.reset();
    // the locale member goes with the object
    config.reset();
}

void DesktopAppBasis::openInstellingen()
{
    // The path is taken as the file system spells it, before any locale is set.
    instellingenBestand = std::make_unique<kern::InstellingenBestand>(kern::geefInstellingenPad(applikatieNaam));
    config = instellingenBestand->lees();
    if (!instellingenBestand->isBeschadigd())
        return;

    // What could not be read would be lost at the next write: keep the file.
    const wxString pad = instellingenBestand->geefPad();
    wxString kopie;
    if (instellingenBestand->bewaarKopie(&kopie))
        wxLogWarning(_("The settings file %s could not be read completely; the settings that could not be read "
                       "start from their defaults. The file was kept as %s."),
                     pad, kopie);
    else
        wxLogWarning(_("The settings file %s could not be read completely; the settings that could not be read "
                       "start from their defaults."),
                     pad);
}

bool DesktopAppBasis::bewaarInstellingen()
{
    static bool gemeld = false;
    wxString reden;
    const kern::InstellingenBestand::Uitslag uitslag = instellingenBestand->bewaar(*config, &reden);
    if (uitslag == kern::InstellingenBestand::Geschreven || gemeld)
        return uitslag == kern::InstellingenBestand::Geschreven;
    gemeld = true;
    const wxString pad = instellingenBestand->geefPad();
    if (uitslag == kern::InstellingenBestand::AlleenLezen)
        wxLogWarning(_("The settings file %s is read-only; your settings were not written to it."), pad);
    else
        wxLogError(_("Your settings could not be written to %s.") + (reden.empty() ? wxString() : "\n" + reden),
                   pad);
    return false;
}

int DesktopAppBasis::OnExit()
{
    wxLogDebug("DesktopAppBasis::OnExit() : De applikatie wordt afgesloten.");
    return 0;
}

wxFileName DesktopAppBasis::geefExePad() const
{
    return wxFileName(standaardPaden.GetExecutablePath());
}

void DesktopAppBasis::startApplikatieOpnieuw()
{
    config->Write(instelling::EigenHerstartPad, true);
    bewaarInstellingen();
    const wxString pad = geefExePad().GetFullPath();
    geefProcesNaad().start(pad);
}

wxString DesktopAppBasis::dubbeleQuotes(const wxString& s, bool metSpaties)
{
    return kern::dubbeleQuotes(s, metSpaties);
}

wxString DesktopAppBasis::geefVersie(bool lang) const
{
    return lang ? "07.09.2020_2.0.0.a" : "2.0.0";
}

wxString DesktopAppBasis::geefPlatformBeschrijving() const
{
    return wxPlatformInfo::GetPortIdName(platformInfo.GetPortId(), platformInfo.IsUsingUniversalWidgets())
        + " " + platformInfo.GetOperatingSystemIdName() + "(" + platformInfo.GetBitnessName() + ")";
}
