// Locale and message catalogues of the application frame.
#include "desktopAppBasis.h"

#include <wx/log.h>
#include <wx/translation.h>

int DesktopAppBasis::zetLokaliteit(wxLanguage lang)
{
    const wxString naam = wxLocale::GetLanguageName(lang);
    const wxString kort = wxLocale::GetLanguageCanonicalName(lang);
    wxLogDebug("(DesktopAppBasis::zetLokaliteit) Gekozen taal : " + naam + " kort :" + kort);

    if (lokaliteit.Init(lang, wxLOCALE_LOAD_DEFAULT))
        return 0;
    wxLogError(wxString(_("Could not initialise the Locale for")) + dubbeleQuotes(naam, true) + ".");
    return 2;
}

wxArrayString DesktopAppBasis::geefTaalPaden() const
{
    const wxString r = standaardPaden.GetResourcesDir();
    wxArrayString paden;
    paden.Add(r);

    const wxOperatingSystemId os = platformInfo.GetOperatingSystemId();
    if (os & wxOS_WINDOWS) {
        static const wxArrayString winPaden = [] {
            wxArrayString p;
            p.Add("\\share\\locale");
            p.Add("\\..\\share\\locale");
            p.Add("\\Debug\\share\\locale");
            p.Add("\\Release\\share\\locale");
            return p;
        }();
        for (const wxString& achtervoegsel : winPaden)
            paden.Add(r + achtervoegsel);
    } else if (os & wxOS_UNIX) {
        wxLogDebug("Taalpad (BSD/Solaris/AIX/Linux) toegevoegd.");
        const wxString& a = applikatieNaam;
        const wxString e = geefExePad().GetPath(wxPATH_GET_VOLUME);
        paden.Add(r + "/Zelvano/" + a + "/locale");
        paden.Add(r + "/../Zelvano/" + a + "/locale");
        paden.Add(r + "/locale");
        paden.Add(e + "/../share/Zelvano/" + a + "/locale");
    }
    return paden;
}

wxArrayString DesktopAppBasis::geefCatalogusNamen(const wxString& naam)
{
    wxArrayString namen;
    namen.Add(naam);
    const int p = naam.Find("Applikatie");
    if (p > 1)
        namen.Add(naam.Left(static_cast<size_t>(p)));
    return namen;
}

int DesktopAppBasis::initLokaliteit(wxLanguage lang)
{
    if (zetLokaliteit(lang) != 0) {
        wxLogError(wxString(_("Could not initialise the Internationalization Locale system for")) + applikatieNaam + ".");
        return 2;
    }

    for (const wxString& prefix : geefTaalPaden()) {
        wxFileTranslationsLoader::AddCatalogLookupPathPrefix(prefix);
        wxLogDebug("Taalpad toegevoegd : " + prefix);
    }

    if (lang == wxLANGUAGE_ENGLISH)
        return 0;

    const wxString naam = wxLocale::GetLanguageName(lang);
    if (!lokaliteit.AddCatalog("Zelvanodesktop")) {
        wxLogError(wxString(_("Could not add Zelvano catalog for language : ")) + naam);
        return 2;
    }
    wxLogDebug("Zelvano katalogus voor taal : " + naam + " met succes toegevoegd.");

    for (const wxString& catalogus : geefCatalogusNamen(applikatieNaam)) {
        if (lokaliteit.AddCatalog(catalogus)) {
            wxLogDebug("Applikatie (" + catalogus + ") katalogus voor taal : " + naam + " met succes toegevoegd.");
            return 0;
        }
    }
    wxLogError(wxString(_("Could not add language catalog for application")) + dubbeleQuotes(applikatieNaam, true)
               + _("and language") + dubbeleQuotes(naam, true));
    return 2;
}
