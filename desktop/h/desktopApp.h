#pragma once
// The GUI application frame: main window registration, window size
// persistence, tooltips, the about box and the language switch.
#include "desktopAppBasis.h"
#include "support/standschakelaar.h"

#include <wx/aboutdlg.h>
#include <wx/app.h>
#include <wx/icon.h>

#include <functional>

class wxHtmlEasyPrinting;

class DesktopApp : public wxApp, public DesktopAppBasis
{
public:
    DesktopApp(const wxString& naam, const wxString& korteNaam, const wxString& extra);
    ~DesktopApp() override;

    void zetTaal(wxLanguage lang) override;
    bool isGUIApplikatie() const override { return true; }

    void zetHoofdVenster(wxWindow* venster, bool metPrinten, bool);
    void zetHoofdVensterGrootte();
    void bewaarHoofdVensterGrootte();
    wxWindow* geefHoofdVenster() const { return hoofdVenster; }

    void toonCopyright(const wxString& webSite, const wxIcon& ikoon, const wxArrayString& credits) const;
    void toonCopyright(wxAboutDialogInfo& info, const wxString& beschrijving, const wxArrayString& credits) const;

    bool geefToonHulpToolTips() const { return toonHulpToolTips.boolean(); }
    bool isTaalGekozen() const { return taalGekozen; }
    wxHtmlEasyPrinting* geefHtmlPrinter() const { return htmlPrinter; }

    static const wxString bedrijfsNaam;

    // Shows the about box; tests put their own in place to read what would be shown.
    using AboutToner = std::function<void(const wxAboutDialogInfo&, wxWindow*)>;
    static AboutToner& geefAboutToner();

protected:
    // What this layer keeps in the store, written at the end.
    void schrijfEigenInstellingen();

    wxWindow* hoofdVenster = nullptr;
    StandSchakelaar toonHulpToolTips;
    bool taalGekozen = false;
    wxHtmlEasyPrinting* htmlPrinter = nullptr;
};
