// Locale set-up and catalogues, the language dialog, the about box, the
// interface and the generated comment lines in German and Dutch, and a
// chosen language that is in force at the next start.
#include "programma.h"

#include "desktopVersie.h"
#include "dialogs/taalkeuzedialoog.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <clocale>
#include <fstream>

class Taal : public ProgrammaTest
{
protected:
    // Starts the program in the given language; skipped when the machine
    // has no such locale (the toolkit cannot switch to it then).
    void startIn(int taal, const char* locale)
    {
        if (std::setlocale(LC_ALL, locale) == nullptr)
            GTEST_SKIP() << locale << " is not generated on this machine";
        std::setlocale(LC_ALL, "C");
        zetTaal(taal);
        start();
    }

    void verwachtGeenFouten() const
    {
        for (const LogRegel& r : logRegels(wxLOG_Error))
            ADD_FAILURE() << "error logged: " << r.tekst.utf8_string();
    }

    std::vector<wxString> debugMet(const wxString& begin) const
    {
        std::vector<wxString> uit;
        for (const LogRegel& r : logRegels(wxLOG_Debug))
            if (r.tekst.StartsWith(begin))
                uit.push_back(r.tekst);
        return uit;
    }

    wxString menuTitel(size_t i) const { return venster().GetMenuBar()->GetMenuLabelText(i); }
    wxString menuRegel(int id) const { return venster().GetMenuBar()->FindItem(id)->GetItemLabel(); }
    wxString knop(int id) const { return venster().FindWindow(id)->GetLabel(); }

    struct Vertaald
    {
        const char* menus[3];
        const char* sluiten;
        const char* paginas[3];
        const char* bewaren;
        const char* projektNaam;
        const char* taal; // as the toolkit names it
    };

    // The menus, pages and buttons in the language, from both catalogues.
    void verwachtVertaald(const Vertaald& t) const
    {
        for (size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(menuTitel(i), t.menus[i]);
            EXPECT_EQ(venster().selektieBoek->GetPageText(i), t.paginas[i]);
        }
        EXPECT_EQ(menuRegel(wxID_EXIT), t.sluiten);
        EXPECT_EQ(knop(wxID_SAVE), t.bewaren);
        EXPECT_EQ(venster().projektLibIncludeNaam->GetValue(), t.projektNaam);
        const wxString taal = t.taal;
        EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : " + taal + " met succes toegevoegd."));
        EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : " + taal +
                                              " met succes toegevoegd."));
    }

    // Execute for the given output kind and name; returns the text it wrote.
    wxString voerUit(int soort, const wxString& naam)
    {
        KlavermolVenster& v = venster();
        v.outputDirPicker->SetPath(thuis);
        v.projektLibIncludeNaam->SetValue(naam);
        v.uitvoerSoortKeuze->SetSelection(soort);
        wxCommandEvent keuze(wxEVT_CHOICE, UitvoerSoortKeuzeID);
        keuze.SetInt(soort);
        v.ProcessWindowEvent(keuze);
        std::size_t overgeslagen = 0;
        v.voegBronnenToe(wxArrayString(1, thuis + "/src/a.c"), overgeslagen);
        wxCommandEvent uitvoeren(wxEVT_BUTTON, wxID_APPLY);
        v.ProcessWindowEvent(uitvoeren);
        return v.uitvoerTekst->GetValue();
    }
};

TEST_F(Taal, EnglishAddsThePrefixesButNoCatalogue)
{
    zetTaal(wxLANGUAGE_ENGLISH);
    start();
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "(DesktopAppBasis::zetLokaliteit) Gekozen taal : English kort :en"));
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Taalpad (BSD/Solaris/AIX/Linux) toegevoegd."));

    // the resources directory as the toolkit reports it while the
    // application object is being built: <prefix>/share/<program name>
    const wxString e = wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath();
    const wxString r = wxFileName(e).GetPath() + "/share/klavermol-gui-tests";
    EXPECT_EQ(debugMet("Taalpad toegevoegd : "),
              (std::vector<wxString>{"Taalpad toegevoegd : " + r,
                                     "Taalpad toegevoegd : " + r + "/Zelvano/Klavermol/locale",
                                     "Taalpad toegevoegd : " + r + "/../Zelvano/Klavermol/locale",
                                     "Taalpad toegevoegd : " + r + "/locale",
                                     "Taalpad toegevoegd : " + e + "/../share/Zelvano/Klavermol/locale"}));
    EXPECT_TRUE(debugMet("Zelvano katalogus").empty());
    EXPECT_TRUE(debugMet("Applikatie (").empty());
    verwachtGeenFouten();
}

TEST_F(Taal, AMissingCatalogueIsLoggedAndTheProgramGoesOn)
{
    startIn(wxLANGUAGE_FRENCH, "fr_FR.UTF-8"); // a generated locale without catalogues of ours
    const auto fouten = logRegels(wxLOG_Error);
    ASSERT_EQ(fouten.size(), 1u);
    EXPECT_EQ(fouten[0].tekst, "Could not add Zelvano catalog for language : French");
    EXPECT_TRUE(venster().IsShown());
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_FRENCH);
}

TEST_F(Taal, ALocaleThatCannotBeSetIsLoggedAndTheProgramGoesOn)
{
    zetTaal(wxLANGUAGE_SWEDISH);
    if (std::setlocale(LC_ALL, "sv_SE.UTF-8") != nullptr)
        GTEST_SKIP() << "sv_SE.UTF-8 is generated on this machine";
    std::setlocale(LC_ALL, "C");
    start();
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Locale for \"Swedish\" ."));
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Internationalization Locale system forKlavermol."));
    EXPECT_TRUE(venster().IsShown());
}

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("Klavermol"), wxArrayString(1, "Klavermol"));
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("Applikatie"), wxArrayString(1, "Applikatie"));
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XApplikatie"), wxArrayString(1, "XApplikatie"));
    wxArrayString twee;
    twee.Add("XYApplikatie");
    twee.Add("XY");
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XYApplikatie"), twee);
}

TEST_F(Taal, TheDialogOffersTheLanguagesInOrderWithFlags)
{
    start();
    wxArrayInt talen;
    for (int taal : {wxLANGUAGE_GERMAN, wxLANGUAGE_ENGLISH, wxLANGUAGE_DUTCH, wxLANGUAGE_FINNISH})
        talen.Add(taal);
    TaalKeuzeDialoog dialoog(&venster(), talen, 10000, "Language Selection ");
    wxListCtrl* lijst = dialoog.geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), 4);
    const wxString namen[] = {"German", "English", "Dutch", ""}; // no name and no flag for Finnish
    const int vlaggen[] = {1, 2, 0, 14};
    for (int i = 0; i < 4; ++i) {
        wxListItem item;
        item.SetId(i);
        item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
        ASSERT_TRUE(lijst->GetItem(item));
        EXPECT_EQ(item.GetText(), namen[i]);
        EXPECT_EQ(item.GetImage(), vlaggen[i]);
    }
    EXPECT_EQ(dialoog.geefVlaggen()->GetImageCount(), 14);
    EXPECT_EQ(dialoog.geefVlaggen()->GetSize(), wxSize(24, 24));
    EXPECT_EQ(dialoog.geefTaalKaart().find("")->second, wxLANGUAGE_FINNISH);

    wxWindow* ok = dialoog.FindWindow(wxID_OK);
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_UNKNOWN);
    EXPECT_FALSE(ok->IsEnabled());
    EXPECT_TRUE(dialoog.FindWindow(wxID_CANCEL)->IsEnabled());

    lijst->SetItemState(2, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_DUTCH);
    EXPECT_TRUE(ok->IsEnabled());

    lijst->SetItemState(2, 0, wxLIST_STATE_SELECTED); // deselecting changes nothing
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_DUTCH);
    EXPECT_TRUE(ok->IsEnabled());
}

TEST_F(Taal, TheAboutMenuShowsDescriptionVersionAndCreditsInOrder)
{
    start();
    wxAboutDialogInfo getoond;
    wxWindow* ouder = nullptr;
    DesktopApp::geefAboutToner() = [&](const wxAboutDialogInfo& info, wxWindow* o) {
        getoond = info;
        ouder = o;
    };
    wxCommandEvent menu(wxEVT_MENU, wxID_ABOUT);
    venster().ProcessWindowEvent(menu);

    EXPECT_EQ(ouder, &venster());
    EXPECT_EQ(getoond.GetName(), "Klavermol");
    EXPECT_EQ(getoond.GetVersion(), "07.09.2020_2.0.0.a");
    EXPECT_EQ(app().geefVersie(false), "2.0.0");
    EXPECT_EQ(DesktopVersieNummer({12, 255, 3, 'z'}).geefVersieString(), "12.255.3.z");
    EXPECT_EQ(getoond.GetWebSiteURL(), "https://www.zelvano.nl");
    EXPECT_TRUE(getoond.HasIcon());
    const wxString platform = app().geefPlatformBeschrijving();
    EXPECT_EQ(platform, "wxGTK Linux(64 bit)");
    EXPECT_TRUE(getoond.GetDescription().StartsWith(platform + "\n\nKlavermol simplifies applying CMake"));
    EXPECT_TRUE(getoond.GetDescription().EndsWith("finding the proper paths relative from the build directory."));
    const wxArrayString& ontwikkelaars = getoond.GetDevelopers();
    ASSERT_EQ(ontwikkelaars.size(), 3u);
    EXPECT_TRUE(ontwikkelaars[0].StartsWith("The wxWidgets cross-platform GUI toolkit ("));
    EXPECT_EQ(ontwikkelaars[1], "\nThe CMake Project (https://cmake.org)");
    EXPECT_TRUE(ontwikkelaars[2].StartsWith("\nKlavermol icons: "));
}

TEST_F(Taal, GermanInterfaceAndCommentLinesAroundUntouchedDirectives)
{
    startIn(wxLANGUAGE_GERMAN, "de_DE.UTF-8");
    verwachtVertaald({{"Allgemein", "Navigation", "Optionen"},
                      "Beenden\tCtrl+Q", // the accelerator after the tab is the toolkit's
                      {"Quelldateien", "Bibliotheken", "Include-Dateien"},
                      "&Speichern",
                      "MeinErstesProjekt",
                      "German"});
    EXPECT_EQ(menuRegel(wxID_PREFERENCES), "Einstellungen\tCtrl+,");
    EXPECT_EQ(knop(wxID_CLEAR), "&Leeren");
    EXPECT_TRUE(venster().GetStatusBar()->GetStatusText(1).StartsWith("Der aktuelle Filter sucht nach:"));

    const wxString projekt = voerUit(0, "Demo");
    EXPECT_TRUE(projekt.StartsWith("## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : "));
    EXPECT_NE(projekt.Find("\n# Mindestversion von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n"),
              wxNOT_FOUND);
    EXPECT_NE(projekt.Find("set(ProjectName Demo)\n"), wxNOT_FOUND);
    EXPECT_NE(projekt.Find("target_link_libraries(${ProjectName} )"), wxNOT_FOUND);
    EXPECT_NE(projekt.Find("\n## Dieses Projekt braucht wahrscheinlich noch Feinarbeit"), wxNOT_FOUND);
    EXPECT_EQ(projekt.Find("## This project"), wxNOT_FOUND);
    EXPECT_TRUE(voerUit(2, "Demo").StartsWith("## Von Klavermol erzeugt: Demo (Include-Datei)\n"));
    verwachtGeenFouten();
}

TEST_F(Taal, DutchInterfaceAndCommentLines)
{
    startIn(wxLANGUAGE_DUTCH, "nl_NL.UTF-8");
    verwachtVertaald({{"Algemeen", "Navigatie", "Opties"},
                      "Afsluiten\tCtrl+Q",
                      {"Bronbestanden", "Bibliotheken", "Includebestanden"},
                      "&Opslaan",
                      "MijnEersteProject",
                      "Dutch"});
    EXPECT_EQ(knop(wxID_EXIT), "&Afsluiten");

    const wxString bieb = voerUit(1, "Demo");
    EXPECT_TRUE(bieb.StartsWith("## Door Klavermol gemaakt CMakeLists-add_library-bestand\n## Bestand gemaakt op : "));
    EXPECT_NE(bieb.Find("\n# minimale CMake-versie vastleggen.\ncmake_minimum_required(VERSION 2.8.10)\n"),
              wxNOT_FOUND);
    EXPECT_NE(bieb.Find("# Het absolute pad van dit CMakeLists.txt-bestand is : \"" + thuis + "\"\n"), wxNOT_FOUND);
    verwachtGeenFouten();
}

// The texts are American English, so the toolkit takes en_US without any
// catalogue; another English variant needs the English catalogues, or the
// start logs that the catalogues could not be added.
TEST_F(Taal, BritishEnglishFindsTheEnglishCatalogues)
{
    if (std::setlocale(LC_ALL, "en_GB.UTF-8") == nullptr) {
        // Not generated on this machine: made for this process alone.
        const wxString map = thuis + "/locale";
        wxFileName::Mkdir(map, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        const std::string maak = "localedef -i en_GB -f UTF-8 '" + map.ToStdString() + "/en_GB.UTF-8' >/dev/null 2>&1";
        if (std::system(maak.c_str()) != 0)
            GTEST_SKIP() << "en_GB.UTF-8 is not generated and localedef cannot make it";
        setenv("LOCPATH", map.ToStdString().c_str(), 1);
        setenv("LC_ALL", "en_GB.UTF-8", 1);
        setenv("LANG", "en_GB.UTF-8", 1);
        ASSERT_NE(std::setlocale(LC_ALL, "en_GB.UTF-8"), nullptr);
    }
    startIn(wxLANGUAGE_ENGLISH_UK, "en_GB.UTF-8");
    EXPECT_EQ(menuTitel(0), "General");
    EXPECT_EQ(menuRegel(wxID_EXIT), "Quit\tCtrl+Q");
    const wxString naam = wxLocale::GetLanguageName(wxLANGUAGE_ENGLISH_UK);
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : " + naam + " met succes toegevoegd."));
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : " + naam + " met succes toegevoegd."));
    verwachtGeenFouten();
}

// The language menu offers three languages; picking German and confirming
// restarts the program, and the next start is in German.
TEST_F(Taal, TheChosenLanguageIsInForceAfterTheRestart)
{
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    std::setlocale(LC_ALL, "C");
    start();
    EXPECT_EQ(menuTitel(0), "General");
    class Kies : public wxExpectModalBase<TaalKeuzeDialoog, Kies>
    {
    protected:
        int OnInvoked(TaalKeuzeDialoog* dlg) const override
        {
            EXPECT_EQ(dlg->GetTitle(), "Language Selection ");
            EXPECT_EQ(dlg->geefLijst()->GetItemCount(), 3);
            dlg->geefLijst()->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
            return wxID_OK;
        }
    };
    wxCommandEvent menu(wxEVT_MENU, ZetTaalID);
    wxTEST_DIALOG(venster().ProcessWindowEvent(menu), Kies(), wxExpectModal<wxMessageDialog>(wxYES));
    EXPECT_EQ(procesStappen.size(), 2u); // the new process was asked for, then the exit
    stop();
    EXPECT_EQ(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_GERMAN);

    // The next start, in a process of its own in the same home.
    EXPECT_EQ(startOpnieuw("Taal.NaDeHerstart"), 0);
    EXPECT_TRUE(wxFileName::FileExists(thuis + "/na-de-herstart")) << "the second start did not run";
}

// The second start of the test above; skipped when run on its own.
TEST_F(Taal, NaDeHerstart)
{
    if (!isVervolg())
        GTEST_SKIP() << "runs as the restart of TheChosenLanguageIsInForceAfterTheRestart";
    zetTaal(-1); // the language comes from the store the first run left
    start();
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
    EXPECT_TRUE(app().isTaalGekozen());
    EXPECT_EQ(menuTitel(0), "Allgemein");
    verwachtGeenFouten();
    std::ofstream((thuis + "/na-de-herstart").ToStdString()) << "\n";
}
