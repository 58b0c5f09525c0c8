#pragma once
// Toolkit-independent services of a desktop application: the settings
// store, locale and catalogues, platform information, the executable path,
// restart, version and platform description.
#include "kern/instellingenbestand.h"
#include "support/platform.h"

#include <wx/arrstr.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/platinfo.h>
#include <wx/snglinst.h>
#include <wx/stdpaths.h>
#include <wx/string.h>

#include <functional>
#include <memory>

class DesktopAppBasis
{
public:
    DesktopAppBasis(const wxString& naam, const wxString& korteNaam);
    DesktopAppBasis(const DesktopAppBasis&) = delete;
    DesktopAppBasis& operator=(const DesktopAppBasis&) = delete;

    virtual void zetTaal(wxLanguage taal) = 0;
    virtual bool isGUIApplikatie() const = 0;
    virtual ~DesktopAppBasis();
    // Part of this interface only: the toolkit's own exit hook is not routed here.
    virtual int OnExit();

    wxFileConfig& geefAppConfigRef() const { return *config; }

    wxFileName geefExePad() const;
    void startApplikatieOpnieuw();

    static wxString dubbeleQuotes(const wxString& s, bool metSpaties);

    // The application catalogue names tried in order: the name itself and,
    // when "Applikatie" stands in it after two or more characters, the part
    // before it.
    static wxArrayString geefCatalogusNamen(const wxString& naam);

    int zetLokaliteit(wxLanguage lang);
    int initLokaliteit(wxLanguage lang);

    wxString geefVersie(bool lang) const;
    wxString geefPlatformBeschrijving() const;

    int geefTaal() const { return taal; }
    const wxString& geefApplikatieNaam() const { return applikatieNaam; }
    const wxString& geefLaatsteDataPad() const { return laatsteDataPad; }

    static const wxString sp;
    static const wxString vr;
    static const wxString tab;

    // How a new process of the program is started and how the running one
    // ends; tests put their own in place so that nothing really restarts.
    struct ProcesNaad
    {
        std::function<long(const wxString&)> start;
        std::function<void()> stop;
    };
    static ProcesNaad& geefProcesNaad();

protected:
    wxString applikatieNaam;
    std::unique_ptr<wxFileConfig> config;
    wxLocale lokaliteit;
    wxPlatformInfo platformInfo;
    wxStandardPaths& standaardPaden;
    ProcessorBeschrijving processor;
    BesturingsSysteemBeschrijving besturingsSysteem;
    int taal;
    wxString laatsteDataPad;
    wxArrayString korteNamen;
    wxArrayString applikatieNamen;
    std::unique_ptr<wxSingleInstanceChecker> enkeleInstantie;

    // Writes the store to disk now; a failure is reported once per run.
    bool bewaarInstellingen();

private:
    void openInstellingen();
    std::unique_ptr<kern::InstellingenBestand> instellingenBestand;
    wxArrayString geefTaalPaden() const;
};
