// The interface in German and Dutch from the program's own catalogues, the
// comment lines of the generated CMake in the chosen language with the
// directives left alone, no catalogue complaint for an English variant, and
// a chosen language that is still in force at the next start.
#include "programma.h"

#include <wx/button.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/statusbr.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <clocale>
#include <fstream>

class Vertaling : public ProgrammaTest
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

    wxString menuTitel(size_t i) const { return venster().GetMenuBar()->GetMenuLabelText(i); }
    wxString menuRegel(int id) const { return venster().GetMenuBar()->FindItem(id)->GetItemLabel(); }
    wxString knop(int id) const { return venster().FindWindow(id)->GetLabel(); }

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
        v.bestandSelektieLijst->Check(static_cast<unsigned>(v.bestandSelektieLijst->Append(thuis + "/src/a.c")));
        wxCommandEvent uitvoeren(wxEVT_BUTTON, wxID_APPLY);
        v.ProcessWindowEvent(uitvoeren);
        return v.uitvoerTekst->GetValue();
    }
};

TEST_F(Vertaling, GermanMenusPagesAndButtons)
{
    startIn(wxLANGUAGE_GERMAN, "de_DE.UTF-8");
    EXPECT_EQ(menuTitel(0), "Allgemein");
    EXPECT_EQ(menuTitel(1), "Navigation");
    EXPECT_EQ(menuTitel(2), "Optionen");
    // the accelerator after the tab is the toolkit's, not translated
    EXPECT_EQ(menuRegel(wxID_EXIT), "Beenden\tCtrl+Q");
    EXPECT_EQ(menuRegel(wxID_PREFERENCES), "Einstellungen\tCtrl+,");
    EXPECT_EQ(venster().selektieBoek->GetPageText(0), "Quelldateien");
    EXPECT_EQ(venster().selektieBoek->GetPageText(1), "Bibliotheken");
    EXPECT_EQ(venster().selektieBoek->GetPageText(2), "Include-Dateien");
    EXPECT_EQ(knop(wxID_SAVE), "&Speichern");
    EXPECT_EQ(knop(wxID_CLEAR), "&Leeren");
    EXPECT_TRUE(venster().GetStatusBar()->GetStatusText(1).StartsWith("Der aktuelle Filter sucht nach:"));
    EXPECT_EQ(venster().projektLibIncludeNaam->GetValue(), "MeinErstesProjekt");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : German met succes toegevoegd."));
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : German met succes toegevoegd."));
    verwachtGeenFouten();
}

TEST_F(Vertaling, DutchMenusPagesAndButtons)
{
    startIn(wxLANGUAGE_DUTCH, "nl_NL.UTF-8");
    EXPECT_EQ(menuTitel(0), "Algemeen");
    EXPECT_EQ(menuTitel(1), "Navigatie");
    EXPECT_EQ(menuTitel(2), "Opties");
    EXPECT_EQ(menuRegel(wxID_EXIT), "Afsluiten\tCtrl+Q");
    EXPECT_EQ(venster().selektieBoek->GetPageText(0), "Bronbestanden");
    EXPECT_EQ(venster().selektieBoek->GetPageText(1), "Bibliotheken");
    EXPECT_EQ(venster().selektieBoek->GetPageText(2), "Includebestanden");
    EXPECT_EQ(knop(wxID_SAVE), "&Opslaan");
    EXPECT_EQ(knop(wxID_EXIT), "&Afsluiten");
    EXPECT_EQ(venster().projektLibIncludeNaam->GetValue(), "MijnEersteProject");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : Dutch met succes toegevoegd."));
    verwachtGeenFouten();
}

TEST_F(Vertaling, GermanCommentLinesAroundUntouchedDirectives)
{
    startIn(wxLANGUAGE_GERMAN, "de_DE.UTF-8");
    const wxString projekt = voerUit(0, "Demo");
    EXPECT_TRUE(projekt.StartsWith("## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : "));
    EXPECT_NE(projekt.Find("\n# Mindestversion von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n"),
              wxNOT_FOUND);
    EXPECT_NE(projekt.Find("set(ProjectName Demo)\n"), wxNOT_FOUND);
    EXPECT_NE(projekt.Find("target_link_libraries(${ProjectName} )"), wxNOT_FOUND);
    EXPECT_NE(projekt.Find("\n## Dieses Projekt braucht wahrscheinlich noch Feinarbeit"), wxNOT_FOUND);
    EXPECT_EQ(projekt.Find("## This project"), wxNOT_FOUND);

    const wxString include = voerUit(2, "Demo");
    EXPECT_TRUE(include.StartsWith("## Von Klavermol erzeugt: Demo (Include-Datei)\n"));
    verwachtGeenFouten();
}

TEST_F(Vertaling, DutchCommentLines)
{
    startIn(wxLANGUAGE_DUTCH, "nl_NL.UTF-8");
    const wxString bieb = voerUit(1, "Demo");
    EXPECT_TRUE(bieb.StartsWith("## Door Klavermol gemaakt CMakeLists-add_library-bestand\n## Bestand gemaakt op : "));
    EXPECT_NE(bieb.Find("\n# minimale CMake-versie vastleggen.\ncmake_minimum_required(VERSION 2.8.10)\n"),
              wxNOT_FOUND);
    EXPECT_NE(bieb.Find("# Het absolute pad van dit CMakeLists.txt-bestand is : \"" + thuis + "\"\n"), wxNOT_FOUND);
    verwachtGeenFouten();
}

TEST_F(Vertaling, AnEnglishVariantStartsWithoutComplaint)
{
    startIn(wxLANGUAGE_ENGLISH_US, "en_US.UTF-8");
    EXPECT_EQ(menuTitel(0), "General");
    EXPECT_EQ(venster().selektieBoek->GetPageText(0), "Source Files");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : English (United States) met succes toegevoegd."));
    verwachtGeenFouten();
}

// The texts are American English, so the toolkit takes en_US without any
// catalogue; another English variant needs the English catalogues, or the
// start logs that the catalogues could not be added.
TEST_F(Vertaling, BritishEnglishFindsTheEnglishCatalogues)
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

TEST_F(Vertaling, TheChosenLanguageIsInForceAfterTheRestart)
{
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    std::setlocale(LC_ALL, "C");
    start();
    EXPECT_EQ(menuTitel(0), "General");
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));
    ASSERT_EQ(procesStappen.size(), 2u); // the new process was asked for, then the exit
    EXPECT_EQ(procesStappen[0].rfind("start:", 0), 0u);
    EXPECT_EQ(procesStappen[1], "stop");
    stop();
    EXPECT_EQ(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_GERMAN);

    // The next start, in a process of its own in the same home.
    EXPECT_EQ(startOpnieuw("Vertaling.NaDeHerstart"), 0);
    EXPECT_TRUE(wxFileName::FileExists(thuis + "/na-de-herstart")) << "the second start did not run";
}

// The second start of the test above; skipped when run on its own.
TEST_F(Vertaling, NaDeHerstart)
{
    if (!isVervolg())
        GTEST_SKIP() << "runs as the restart of TheChosenLanguageIsInForceAfterTheRestart";
    zetTaal(-1); // the language comes from the store the first run left
    start();
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
    EXPECT_TRUE(app().isTaalGekozen());
    EXPECT_EQ(menuTitel(0), "Allgemein");
    EXPECT_EQ(venster().selektieBoek->GetPageText(0), "Quelldateien");
    verwachtGeenFouten();
    std::ofstream((thuis + "/na-de-herstart").ToStdString()) << "\n";
}
