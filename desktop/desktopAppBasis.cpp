#include "desktopAppBasis.h"

#include "desktopApp.h"
#include "kern/instellingen.h"
#include "kern/tekst.h"

#include <wx/datetime.h>
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
      config(std::make_unique<wxFileConfig>(naam, DesktopApp::bedrijfsNaam, wxString(), wxString(),
                                            wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE, wxConvAuto())),
      platformInfo(wxPlatformInfo::Get()),
      standaardPaden(wxStandardPaths::Get()),
      taal(wxLANGUAGE_DEFAULT)
{
    // Values such as "${SRCS}" are CMake text, never environment variables.
    config->SetExpandEnvVars(false);

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
    enkeleInstantie.reset();
    // the locale member goes with the object; the store writes its file now
    config.reset();
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
    config->Flush();
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
