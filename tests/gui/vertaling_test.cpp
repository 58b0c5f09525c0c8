// The interface in German and Dutch from the program's own catalogues, and
// no catalogue complaint for an English variant.
#include "programma.h"

#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <clocale>

class Vertaling : public ProgrammaTest
{
protected:
    void verwachtTaal(int taal, const char* locale)
    {
        if (std::setlocale(LC_ALL, locale) == nullptr)
            GTEST_SKIP() << locale << " is not generated on this machine";
        std::setlocale(LC_ALL, "C");
        zetTaal(taal);
        start();
        EXPECT_TRUE(logRegels(wxLOG_Error).empty());
    }
};

TEST_F(Vertaling, GermanLabels)
{
    verwachtTaal(wxLANGUAGE_GERMAN, "de_DE.UTF-8");
    wxMenuBar* menu = venster().GetMenuBar();
    EXPECT_EQ(menu->GetMenuLabelText(0), "Allgemein");
    EXPECT_EQ(menu->GetMenuLabelText(2), "Optionen");
    EXPECT_EQ(venster().selektieBoek->GetPageText(0), "Quelldateien");
    EXPECT_EQ(venster().selektieBoek->GetPageText(1), "Bibliotheken");
    EXPECT_EQ(venster().GetStatusBar()->GetStatusText(1), "Der aktuelle Filter sucht nach:");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Applikatie (Klavermol) katalogus voor taal : German met succes toegevoegd."));
}

TEST_F(Vertaling, DutchLabels)
{
    verwachtTaal(wxLANGUAGE_DUTCH, "nl_NL.UTF-8");
    wxMenuBar* menu = venster().GetMenuBar();
    EXPECT_EQ(menu->GetMenuLabelText(0), "Algemeen");
    EXPECT_EQ(menu->GetMenuLabelText(1), "Navigatie");
    EXPECT_EQ(venster().selektieBoek->GetPageText(2), "Includebestanden");
    EXPECT_EQ(venster().projektLibIncludeNaam->GetValue(), "MijnEersteProject");
}

TEST_F(Vertaling, AnEnglishVariantFindsItsCatalogueWithoutComplaint)
{
    verwachtTaal(wxLANGUAGE_ENGLISH_US, "en_US.UTF-8");
    EXPECT_EQ(venster().GetMenuBar()->GetMenuLabelText(0), "General");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Zelvano katalogus voor taal : English (United States) met succes toegevoegd."));
}

TEST_F(Vertaling, TheChosenLanguageIsInForceAfterTheRestart)
{
    start();
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));
    ASSERT_EQ(procesStappen.size(), 2u); // the new process was asked for, then the exit
    stop();
    EXPECT_EQ(startOpnieuw("Vertaling.NaDeHerstart"), 0);
}

// The next start of the program above; only run from there.
TEST_F(Vertaling, NaDeHerstart)
{
    if (!isVervolg())
        GTEST_SKIP() << "runs as the restart of TheChosenLanguageIsInForceAfterTheRestart";
    zetTaal(-1); // the language comes from the store the first run left
    start();
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
    EXPECT_EQ(venster().GetMenuBar()->GetMenuLabelText(0), "Allgemein");
    EXPECT_TRUE(app().isTaalGekozen());
}
