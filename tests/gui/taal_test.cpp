// Locale set-up and catalogues, the language dialog, the about box, the
// interface and the generated comment lines in German and Dutch, and a
// chosen language that is in force at the next start.
#include "programma.h"

#include "dialogs/taalkeuzedialoog.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <clocale>

class Taal : public ProgrammaTest
{
protected:
    // Whether the machine has the locale; the toolkit cannot switch to
    // a language without it.
    static bool heeftLocale(const char* locale)
    {
        const bool er = std::setlocale(LC_ALL, locale) != nullptr;
        std::setlocale(LC_ALL, "C");
        return er;
    }

    // Starts the program in the given language, or skips without its locale.
    void startIn(int taal, const char* locale)
    {
        if (!heeftLocale(locale))
            GTEST_SKIP() << locale << " is not generated on this machine";
        zetTaal(taal);
        start();
    }

    void verwachtGeenFouten() const
    {
        for (const LogRegel& r : logRegels(wxLOG_Error))
            ADD_FAILURE() << "error logged: " << r.tekst.utf8_string();
    }

    wxString menuTitel(size_t i) const { return venster().GetMenuBar()->GetMenuLabelText(i); }

    // Both catalogues were found for the language, as the toolkit names it.
    void verwachtCatalogi(const wxString& taal) const
    {
        EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : " + taal + " met succes toegevoegd."));
        EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : " + taal +
                                              " met succes toegevoegd."));
        verwachtGeenFouten();
    }

    // As shown: the menus, the pages, the Quit and Preferences menu items
    // (the accelerator after the tab is the toolkit's), the Save, Clear and
    // Quit buttons, the filter text and the project name.
    std::vector<wxString> teksten() const
    {
        KlavermolVenster& v = venster();
        std::vector<wxString> uit;
        for (size_t i = 0; i < 3; ++i)
            uit.push_back(menuTitel(i));
        for (size_t i = 0; i < 3; ++i)
            uit.push_back(v.selektieBoek->GetPageText(i));
        for (int id : {wxID_EXIT, wxID_PREFERENCES})
            uit.push_back(v.GetMenuBar()->FindItem(id)->GetItemLabel());
        for (int id : {wxID_SAVE, wxID_CLEAR, wxID_EXIT})
            uit.push_back(v.FindWindow(id)->GetLabel());
        uit.push_back(v.GetStatusBar()->GetStatusText(1));
        uit.push_back(v.projektLibIncludeNaam->GetValue());
        return uit;
    }

    // Execute for the given output kind and name; returns the text it wrote.
    wxString voerUit(int soort, const wxString& naam)
    {
        KlavermolVenster& v = venster();
        v.outputDirPicker->SetPath(thuis);
        v.projektLibIncludeNaam->SetValue(naam);
        v.uitvoerSoortKeuze->SetSelection(soort);
        opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, soort);
        std::size_t overgeslagen = 0;
        v.voegBronnenToe(wxArrayString(1, thuis + "/src/a.c"), overgeslagen);
        klik(wxID_APPLY);
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
    std::vector<wxString> paden;
    for (const wxString& pad : {r, r + "/Zelvano/Klavermol/locale", r + "/../Zelvano/Klavermol/locale",
                                r + "/locale", e + "/../share/Zelvano/Klavermol/locale"})
        paden.push_back("Taalpad toegevoegd : " + pad);
    EXPECT_EQ(logMet(wxLOG_Debug, "Taalpad toegevoegd : "), paden);
    EXPECT_TRUE(logMet(wxLOG_Debug, "Zelvano katalogus").empty());
    EXPECT_TRUE(logMet(wxLOG_Debug, "Applikatie (").empty());
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
    if (heeftLocale("sv_SE.UTF-8"))
        GTEST_SKIP() << "sv_SE.UTF-8 is generated on this machine";
    zetTaal(wxLANGUAGE_SWEDISH);
    start();
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Locale for \"Swedish\" ."));
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Internationalization Locale system forKlavermol."));
    EXPECT_TRUE(venster().IsShown());
}

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    for (const char* naam : {"Klavermol", "Applikatie", "XApplikatie"})
        EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen(naam), wxArrayString(1, naam));
    const wxString twee[] = {"XYApplikatie", "XY"};
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XYApplikatie"), wxArrayString(2, twee));
}

// Offered in the caller's order, each with its flag; OK waits for a pick
// and stays on once one was made.
TEST_F(Taal, TheDialogOffersTheLanguagesInOrderWithFlags)
{
    start();
    const struct
    {
        int taal;
        const char* naam; // none, and no flag, for a language without one
        int vlag;
    } regels[] = {{wxLANGUAGE_GERMAN, "German", 1}, {wxLANGUAGE_ENGLISH, "English", 2},
                  {wxLANGUAGE_DUTCH, "Dutch", 0}, {wxLANGUAGE_FINNISH, "", 14}};
    wxArrayInt talen;
    for (const auto& r : regels)
        talen.Add(r.taal);
    TaalKeuzeDialoog dialoog(&venster(), talen, 10000, "Language Selection ");
    wxListCtrl* lijst = dialoog.geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), 4);
    for (int i = 0; i < 4; ++i) {
        wxListItem item;
        item.SetId(i);
        item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
        ASSERT_TRUE(lijst->GetItem(item));
        EXPECT_EQ(item.GetText(), regels[i].naam);
        EXPECT_EQ(item.GetImage(), regels[i].vlag);
    }
    // every flag lies centred on its square: see-through above, solid in the middle
    ASSERT_EQ(dialoog.geefVlaggen()->GetImageCount(), 14);
    for (int i = 0; i < 14; ++i) {
        const wxImage vlag = dialoog.geefVlaggen()->GetBitmap(i).ConvertToImage();
        EXPECT_EQ(vlag.GetSize(), wxSize(24, 24)) << i;
        EXPECT_TRUE(vlag.IsTransparent(12, 1) && !vlag.IsTransparent(12, 12)) << i;
    }
    wxWindow* ok = dialoog.FindWindow(wxID_OK);
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_UNKNOWN);
    EXPECT_FALSE(ok->IsEnabled());
    for (long stand : {long(wxLIST_STATE_SELECTED), 0L}) { // deselecting changes nothing
        lijst->SetItemState(2, stand, wxLIST_STATE_SELECTED);
        dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
        EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_DUTCH);
        EXPECT_TRUE(ok->IsEnabled());
    }
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
    opdracht(wxEVT_MENU, wxID_ABOUT);

    EXPECT_EQ(ouder, &venster());
    EXPECT_EQ(getoond.GetName(), "Klavermol");
    EXPECT_EQ(getoond.GetVersion(), "07.09.2020_2.0.0.a");
    const wxString platform = app().geefPlatformBeschrijving();
    EXPECT_EQ(platform, "wxGTK Linux(64 bit)");
    EXPECT_TRUE(getoond.GetDescription().StartsWith(platform + "\n\nKlavermol simplifies applying CMake"));
    EXPECT_TRUE(getoond.GetDescription().EndsWith("finding the proper paths relative from the build directory."));
    const wxArrayString& ontwikkelaars = getoond.GetDevelopers();
    // each web address on a line of its own, so that it is shown
    ASSERT_EQ(ontwikkelaars.size(), 6u);
    EXPECT_EQ(ontwikkelaars[0], "The wxWidgets cross-platform GUI toolkit");
    EXPECT_EQ(ontwikkelaars[1], "https://www.wxwidgets.org");
    EXPECT_EQ(ontwikkelaars[2], "\nThe CMake Project");
    EXPECT_EQ(ontwikkelaars[3], "https://cmake.org");
    EXPECT_TRUE(ontwikkelaars[4].StartsWith("\nKlavermol icons: "));
    EXPECT_EQ(ontwikkelaars[5], "https://www.zelvano.nl/klavermol");
}

TEST_F(Taal, GermanInterfaceAndCommentLinesAroundUntouchedDirectives)
{
    startIn(wxLANGUAGE_GERMAN, "de_DE.UTF-8");
    verwachtCatalogi("German");
    EXPECT_EQ(teksten(), (std::vector<wxString>{"Allgemein", "Navigation", "Optionen", "Quelldateien", "Bibliotheken",
                                                "Include-Dateien", "Beenden\tCtrl+Q", "Einstellungen\tCtrl+,",
                                                "&Speichern", "&Leeren", "&Beenden", "Der aktuelle Filter sucht nach:",
                                                "MeinErstesProjekt"}));

    const wxString projekt = voerUit(0, "Demo");
    EXPECT_TRUE(projekt.StartsWith("## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : "));
    for (const char* stuk : {"\n# Mindestversion von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n",
                             "set(ProjectName Demo)\n", "target_link_libraries(${ProjectName} )",
                             "\n## Dieses Projekt braucht wahrscheinlich noch Feinarbeit"})
        EXPECT_NE(projekt.Find(stuk), wxNOT_FOUND) << stuk;
    EXPECT_EQ(projekt.Find("## This project"), wxNOT_FOUND);
    EXPECT_TRUE(voerUit(2, "Demo").StartsWith("## Von Klavermol erzeugt: Demo (Include-Datei)\n"));
}

TEST_F(Taal, DutchInterfaceAndCommentLines)
{
    startIn(wxLANGUAGE_DUTCH, "nl_NL.UTF-8");
    verwachtCatalogi("Dutch");
    EXPECT_EQ(teksten(), (std::vector<wxString>{"Algemeen", "Navigatie", "Opties", "Bronbestanden", "Bibliotheken",
                                                "Includebestanden", "Afsluiten\tCtrl+Q", "Voorkeuren\tCtrl+,",
                                                "&Opslaan", "&Wissen", "&Afsluiten", "Het huidige filter zoekt naar:",
                                                "MijnEersteProject"}));

    const wxString bieb = voerUit(1, "Demo");
    EXPECT_TRUE(bieb.StartsWith("## Door Klavermol gemaakt CMakeLists-add_library-bestand\n## Bestand gemaakt op : "));
    EXPECT_NE(bieb.Find("\n# minimale CMake-versie vastleggen.\ncmake_minimum_required(VERSION 2.8.10)\n"),
              wxNOT_FOUND);
    EXPECT_NE(bieb.Find("# Het absolute pad van dit CMakeLists.txt-bestand is : \"" + thuis + "\"\n"), wxNOT_FOUND);
}

// The texts are American English, so the toolkit takes en_US without any
// catalogue; another English variant needs the English catalogues, or the
// start logs that the catalogues could not be added.
TEST_F(Taal, BritishEnglishFindsTheEnglishCatalogues)
{
    if (!heeftLocale("en_GB.UTF-8")) {
        // Not generated on this machine: made for this process alone.
        const wxString map = maakMap("locale");
        const std::string maak = "localedef -i en_GB -f UTF-8 '" + map.ToStdString() + "/en_GB.UTF-8' >/dev/null 2>&1";
        if (std::system(maak.c_str()) != 0)
            GTEST_SKIP() << "en_GB.UTF-8 is not generated and localedef cannot make it";
        setenv("LOCPATH", map.ToStdString().c_str(), 1);
        setenv("LC_ALL", "en_GB.UTF-8", 1);
        setenv("LANG", "en_GB.UTF-8", 1);
    }
    startIn(wxLANGUAGE_ENGLISH_UK, "en_GB.UTF-8");
    EXPECT_EQ(menuTitel(0), "General");
    verwachtCatalogi(wxLocale::GetLanguageName(wxLANGUAGE_ENGLISH_UK));
}

// The language menu offers three languages; picking German and confirming
// restarts the program, and the next start is in German.
TEST_F(Taal, TheChosenLanguageIsInForceAfterTheRestart)
{
    if (!heeftLocale("de_DE.UTF-8"))
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    start();
    EXPECT_EQ(menuTitel(0), "General");
    const Antwoord<TaalKeuzeDialoog> kies([](TaalKeuzeDialoog& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Language Selection ");
        EXPECT_EQ(dlg.geefLijst()->GetItemCount(), 3);
        dlg.geefLijst()->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        return wxID_OK;
    });
    wxTEST_DIALOG(opdracht(wxEVT_MENU, ZetTaalID), kies, wxExpectModal<wxMessageDialog>(wxYES));
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
    maakBestand("na-de-herstart");
}
