// Locale set-up and catalogues, the language dialog, the about box, the
// interface and the generated comment lines per language, and a chosen
// language that is in force at the next start.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/taalkeuzedialoog.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>

#include <clocale>

namespace {

// Whether the machine has the locale; the toolkit cannot switch to a
// language without it.
bool heeftLocale(const char* locale)
{
    const bool er = std::setlocale(LC_ALL, locale) != nullptr;
    std::setlocale(LC_ALL, "C");
    return er;
}

struct StartRegel
{
    const char* naam;
    int taal;
    const char* locale;                 // "" for one the machine lacks
    std::vector<wxString> fouten = {};  // logged at error level, in order
    bool katalogi = false;              // both catalogues added
    const char* teksten = "";           // if given, as teksten() joins them
    int soort = -1;                     // of output that Execute writes with `stukken` in it
    std::vector<wxString> stukken = {};
};

// the texts are American English, so another English variant needs the
// English catalogues; French is a generated locale without catalogues of ours
const StartRegel starts[] = {
    {"English", wxLANGUAGE_ENGLISH, "en_US.UTF-8"},
    {"French", wxLANGUAGE_FRENCH, "fr_FR.UTF-8", {"Could not add Zelvano catalog for language : French"}},
    {"Swedish", wxLANGUAGE_SWEDISH, "",
     {"Could not initialise the Locale for \"Swedish\" .",
      "Could not initialise the Internationalization Locale system forKlavermol."}},
    {"British", wxLANGUAGE_ENGLISH_UK, "en_GB.UTF-8", {}, true},
    {"German", wxLANGUAGE_GERMAN, "de_DE.UTF-8", {}, true,
     "Allgemein|Navigation|Optionen|Quelldateien|Bibliotheken|Include-Dateien|Beenden\tCtrl+Q|Einstellungen\tCtrl+,|"
     "&Speichern|&Leeren|&Beenden|Der aktuelle Filter sucht nach:|MeinErstesProjekt|", 0,
     {"## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : ",
      "\n# Mindestversion von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n",
      "\n## Dieses Projekt braucht wahrscheinlich noch Feinarbeit"}},
    {"Dutch", wxLANGUAGE_DUTCH, "nl_NL.UTF-8", {}, true,
     "Algemeen|Navigatie|Opties|Bronbestanden|Bibliotheken|Includebestanden|Afsluiten\tCtrl+Q|Voorkeuren\tCtrl+,|"
     "&Opslaan|&Wissen|&Afsluiten|Het huidige filter zoekt naar:|MijnEersteProject|", 1,
     {"## Door Klavermol gemaakt CMakeLists-add_library-bestand\n## Bestand gemaakt op : ",
      "\n# minimale CMake-versie vastleggen.\ncmake_minimum_required(VERSION 2.8.10)\n",
      "# Het absolute pad van dit CMakeLists.txt-bestand is : \"HOME\"\n"}},
};

void PrintTo(const StartRegel& r, std::ostream* os)
{
    *os << r.naam;
}

// The languages as the dialog lists them: name and flag.
using Getoond = std::vector<std::pair<wxString, int>>;
Getoond getoond(const wxListCtrl* lijst)
{
    Getoond uit;
    for (int i = 0; i < lijst->GetItemCount(); ++i) {
        wxListItem item;
        item.SetId(i);
        item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
        lijst->GetItem(item);
        uit.emplace_back(item.GetText(), item.GetImage());
    }
    return uit;
}

} // namespace

class Taal : public ProgrammaTest
{
protected:
    // The menus, the pages, Quit and Preferences (the accelerator after the
    // tab is the toolkit's), the Save, Clear and Quit buttons, the filter
    // text and the project name, each followed by '|'.
    wxString teksten() const
    {
        const KlavermolVenster& v = venster();
        const wxMenuBar* m = v.GetMenuBar();
        const wxBookCtrlBase* b = v.selektieBoek;
        wxString uit;
        for (const wxString& t : {m->GetMenuLabelText(0), m->GetMenuLabelText(1), m->GetMenuLabelText(2),
                                  b->GetPageText(0), b->GetPageText(1), b->GetPageText(2),
                                  m->FindItem(wxID_EXIT)->GetItemLabel(), m->FindItem(wxID_PREFERENCES)->GetItemLabel(),
                                  v.FindWindow(wxID_SAVE)->GetLabel(), v.FindWindow(wxID_CLEAR)->GetLabel(),
                                  v.FindWindow(wxID_EXIT)->GetLabel(), v.GetStatusBar()->GetStatusText(1),
                                  v.projektLibIncludeNaam->GetValue()})
            uit += t + "|";
        return uit;
    }

    // Execute for the given output kind with one source file; the text it wrote.
    wxString voerUit(int soort)
    {
        KlavermolVenster& v = venster();
        v.outputDirPicker->SetPath(thuis);
        v.projektLibIncludeNaam->SetValue("Demo");
        v.uitvoerSoortKeuze->SetSelection(soort);
        opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, soort);
        std::size_t overgeslagen = 0;
        v.voegBronnenToe(wxArrayString(1, thuis + "/src/a.c"), overgeslagen);
        klik(wxID_APPLY);
        return v.uitvoerTekst->GetValue();
    }
};

class TaalStart : public Taal, public ::testing::WithParamInterface<StartRegel> {};

// The locale, the catalogue search paths and catalogues, the errors, what
// the window shows and the comment lines Execute writes, per language.
TEST_P(TaalStart, LocaleCataloguesAndTexts)
{
    const StartRegel& r = GetParam();
    const bool locale = *r.locale != '\0';
    if (locale != heeftLocale(locale ? r.locale : "sv_SE.UTF-8"))
        GTEST_SKIP() << "the machine has not the locales this row needs";
    zetTaal(r.taal);
    start();
    EXPECT_TRUE(venster().IsShown());
    EXPECT_EQ(app().geefTaal(), r.taal);
    std::vector<wxString> fouten;
    for (const LogRegel& l : logRegels(wxLOG_Error))
        fouten.push_back(l.tekst);
    EXPECT_EQ(fouten, r.fouten);

    // the traces in order; the resources directory as the toolkit reports
    // it while the application object is being built: <prefix>/share/<program name>
    const wxString naam = wxLocale::GetLanguageName(r.taal);
    std::vector<wxString> gelogd, verwacht = {"(DesktopAppBasis::zetLokaliteit) Gekozen taal : " + naam +
                                              " kort :" + wxLocale::GetLanguageCanonicalName(r.taal)};
    const wxString e = wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath();
    const wxString b = wxFileName(e).GetPath() + "/share/klavermol-gui-tests";
    if (locale) {
        verwacht.push_back("Taalpad (BSD/Solaris/AIX/Linux) toegevoegd.");
        for (const wxString& pad : {b, b + "/Zelvano/Klavermol/locale", b + "/../Zelvano/Klavermol/locale",
                                    b + "/locale", e + "/../share/Zelvano/Klavermol/locale"})
            verwacht.push_back("Taalpad toegevoegd : " + pad);
    }
    for (const char* k : {"Zelvano", "Applikatie (Klavermol)"})
        if (r.katalogi)
            verwacht.push_back(k + (" katalogus voor taal : " + naam) + " met succes toegevoegd.");
    for (const LogRegel& l : logRegels(wxLOG_Debug))
        if (l.tekst.StartsWith("(DesktopAppBasis::zetLokaliteit)") || l.tekst.StartsWith("Taalpad") ||
            l.tekst.Contains(" katalogus voor taal : "))
            gelogd.push_back(l.tekst);
    EXPECT_EQ(gelogd, verwacht);

    if (*r.teksten != '\0')
        EXPECT_EQ(teksten(), r.teksten);
    const wxString tekst = r.soort < 0 ? wxString() : voerUit(r.soort);
    for (wxString stuk : r.stukken) {
        stuk.Replace("HOME", thuis);
        EXPECT_NE(tekst.Find(stuk), wxNOT_FOUND) << stuk;
    }
}

INSTANTIATE_TEST_SUITE_P(, TaalStart, ::testing::ValuesIn(starts),
                         [](const ::testing::TestParamInfo<StartRegel>& i) { return std::string(i.param.naam); });

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    for (const char* naam : {"Klavermol", "Applikatie", "XApplikatie"})
        EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen(naam), wxArrayString(1, naam));
    const wxString twee[] = {"XYApplikatie", "XY"};
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XYApplikatie"), wxArrayString(2, twee));
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
    EXPECT_EQ(getoond.GetName() + " " + getoond.GetVersion() + " " + getoond.GetCopyright() + " " +
                  getoond.GetWebSiteURL(),
              "Klavermol 07.09.2020_2.0.0.a (c) 2016-2020 Zelvano. All rights reserved. https://www.zelvano.nl");
    EXPECT_TRUE(getoond.GetIcon().IsOk());
    const wxString platform = app().geefPlatformBeschrijving();
    EXPECT_EQ(platform, "wxGTK Linux(64 bit)");
    EXPECT_TRUE(getoond.GetDescription().StartsWith(platform + "\n\nKlavermol simplifies applying CMake"));
    EXPECT_TRUE(getoond.GetDescription().EndsWith("finding the proper paths relative from the build directory."));
    // each web address on a line of its own, so that it is shown
    const wxArrayString& ontwikkelaars = getoond.GetDevelopers();
    ASSERT_EQ(ontwikkelaars.size(), 6u);
    const wxString samen = wxJoin(ontwikkelaars, '|');
    EXPECT_TRUE(samen.StartsWith("The wxWidgets cross-platform GUI toolkit|https://www.wxwidgets.org|\nThe CMake "
                                 "Project|https://cmake.org|\nKlavermol icons: ")) << samen;
    EXPECT_TRUE(samen.EndsWith("|https://www.zelvano.nl/klavermol")) << samen;
}

// The language menu offers German, English and Dutch with their flags; OK
// waits for a pick. German, OK and Yes restart the program, and the next
// start, a process of its own in the same home, is in German.
TEST_F(Taal, TheChosenLanguageIsInForceAfterTheRestart)
{
    if (!heeftLocale("de_DE.UTF-8"))
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    if (isVervolg()) {
        zetTaal(-1); // the language comes from the store the first run left
        start();
        EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
        EXPECT_TRUE(app().isTaalGekozen());
        EXPECT_EQ(venster().GetMenuBar()->GetMenuLabelText(0), "Allgemein");
        EXPECT_TRUE(logRegels(wxLOG_Error).empty());
        return;
    }
    start();
    {
        // a language the dialog has no row for: no name, no flag
        TaalKeuzeDialoog fins(&venster(), wxArrayInt(1, wxLANGUAGE_FINNISH), 1, "");
        EXPECT_EQ(getoond(fins.geefLijst()), (Getoond{{"", 14}}));
        // every flag lies centred on its square: see-through above, solid in the middle
        ASSERT_EQ(fins.geefVlaggen()->GetImageCount(), 14);
        for (int i = 0; i < 14; ++i) {
            const wxImage vlag = fins.geefVlaggen()->GetBitmap(i).ConvertToImage();
            EXPECT_EQ(vlag.GetSize(), wxSize(24, 24)) << i;
            EXPECT_TRUE(vlag.IsTransparent(12, 1) && !vlag.IsTransparent(12, 12)) << i;
        }
    }
    const Antwoord<TaalKeuzeDialoog> kies([](TaalKeuzeDialoog& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Language Selection ");
        wxListCtrl* lijst = dlg.geefLijst();
        EXPECT_EQ(getoond(lijst), (Getoond{{"German", 1}, {"English", 2}, {"Dutch", 0}}));
        EXPECT_EQ(bedien(dlg, wxID_OK, [] {}), wxID_NONE);
        return bedien(dlg, wxID_OK, [&] {
            lijst->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
            lijst->SetItemState(0, 0, wxLIST_STATE_SELECTED); // deselecting keeps the pick
            EXPECT_EQ(dlg.geefTaal(), wxLANGUAGE_GERMAN);
        });
    });
    wxTEST_DIALOG(opdracht(wxEVT_MENU, ZetTaalID), kies, wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    EXPECT_EQ(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_GERMAN);
    const auto* deze = ::testing::UnitTest::GetInstance()->current_test_info();
    EXPECT_EQ(startOpnieuw(std::string(deze->test_suite_name()) + "." + deze->name()), 0);
}
