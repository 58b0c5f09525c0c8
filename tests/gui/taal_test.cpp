// Locale and catalogues per language, the language dialog, the about box, the restart in a new language.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/taalkeuzedialoog.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/imaglist.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>

#include <clocale>

namespace {

// Whether the machine has the locale; the toolkit cannot switch without it.
bool heeftLocale(const char* locale)
{
    const bool er = std::setlocale(LC_ALL, locale) != nullptr;
    return std::setlocale(LC_ALL, "C"), er;
}

// locale: "" for one the machine lacks; fouten: logged at error level, in order; katalogi: both catalogues
// added; teksten: menus, pages, Quit and Preferences, Save, Clear and Quit, filter text, project name;
// stukken: in what Execute writes for output `soort`.
struct StartRegel { const char* naam; int taal; const char* locale; std::vector<wxString> fouten = {};
                    bool katalogi = false; const char* teksten = ""; int soort = 0; std::vector<wxString> stukken = {}; };

// American English texts: another English needs the English catalogues;
// French is a generated locale without catalogues of ours.
const StartRegel starts[] = {
    {"English", wxLANGUAGE_ENGLISH, "en_US.UTF-8"},
    {"French", wxLANGUAGE_FRENCH, "fr_FR.UTF-8", {"Could not add Zelvano catalog for language : French"}},
    {"Swedish", wxLANGUAGE_SWEDISH, "", {"Could not initialise the Locale for \"Swedish\" .",
                                         "Could not initialise the Internationalization Locale system forKlavermol."}},
    {"British", wxLANGUAGE_ENGLISH_UK, "en_GB.UTF-8", {}, true},
    {"German", wxLANGUAGE_GERMAN, "de_DE.UTF-8", {}, true, "Allgemein|Navigation|Optionen|Quelldateien|Bibliotheken|"
     "Include-Dateien|Beenden\tCtrl+Q|Einstellungen\tCtrl+,|&Speichern|&Leeren|&Beenden|Der aktuelle Filter sucht "
     "nach:|MeinErstesProjekt|", 0, {"## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : ",
     "\n# Mindestversion von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n",
     "\n## Dieses Projekt braucht wahrscheinlich noch Feinarbeit"}},
    {"Dutch", wxLANGUAGE_DUTCH, "nl_NL.UTF-8", {}, true, "Algemeen|Navigatie|Opties|Bronbestanden|Bibliotheken|"
     "Includebestanden|Afsluiten\tCtrl+Q|Voorkeuren\tCtrl+,|&Opslaan|&Wissen|&Afsluiten|Het huidige filter zoekt "
     "naar:|MijnEersteProject|", 1, {"## Door Klavermol gemaakt CMakeLists-add_library-bestand\n## Bestand gemaakt op : ",
     "\n# minimale CMake-versie vastleggen.\ncmake_minimum_required(VERSION 2.8.10)\n",
     "# Het absolute pad van dit CMakeLists.txt-bestand is : \"HOME\"\n"}},
};

void PrintTo(const StartRegel& r, std::ostream* os) { *os << r.naam; }

// An offered language, the name and the flag (from data/) the dialog shows.
struct DialoogRegel { int taal; const char *naam, *land; };
const DialoogRegel dialoogTalen[] = {
    {wxLANGUAGE_CHINESE_SIMPLIFIED, "Chinese (simplified)", "cn"}, {wxLANGUAGE_CHINESE_TAIWAN, "Chinese (traditional)", "tw"},
    {wxLANGUAGE_DUTCH_BELGIAN, "Dutch", "nl"}, {wxLANGUAGE_ENGLISH_NEW_ZEALAND, "English", "gb"},
    {wxLANGUAGE_FRENCH_SWISS, "French", "fr"}, {wxLANGUAGE_GERMAN_LIECHTENSTEIN, "German", "de"},
    {wxLANGUAGE_HEBREW, "Hebrew", "il"}, {wxLANGUAGE_ITALIAN, "Italian", "it"}, {wxLANGUAGE_JAPANESE, "Japanese", "jp"},
    {wxLANGUAGE_KOREAN, "Korean", "kr"}, {wxLANGUAGE_PORTUGUESE_BRAZILIAN, "Portuguese", "pt"},
    {wxLANGUAGE_RUSSIAN_UKRAINE, "Russian", "ru"}, {wxLANGUAGE_SPANISH_MEXICAN, "Spanish", "es"},
    {wxLANGUAGE_SWEDISH_FINLAND, "Swedish", "se"}, {wxLANGUAGE_FINNISH, "", ""}, // no row: no name, no flag
};

// A row of the dialog's list as "name flag-index".
wxString rij(wxListCtrl* lijst, int i)
{
    wxListItem item;
    item.SetId(i), item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
    return lijst->GetItem(item), item.GetText() + wxString::Format(" %d", item.GetImage());
}

// The pixels and the alpha of an image.
std::string pixels(const wxImage& b)
{
    const std::size_t n = static_cast<std::size_t>(b.GetWidth()) * b.GetHeight();
    return std::string(reinterpret_cast<const char*>(b.GetData()), 3 * n) +
           (b.HasAlpha() ? std::string(reinterpret_cast<const char*>(b.GetAlpha()), n) : "");
}

} // namespace

using Taal = ProgrammaTest;
class TaalStart : public Taal, public ::testing::WithParamInterface<StartRegel> {};

// The errors, the traces of the catalogue search, what the window shows and
// the comment lines Execute writes, per language.
TEST_P(TaalStart, LocaleCataloguesAndTexts)
{
    const StartRegel& r = GetParam();
    const bool locale = *r.locale != '\0';
    if (locale != heeftLocale(locale ? r.locale : "sv_SE.UTF-8"))
        GTEST_SKIP() << "the machine has not the locales this row needs";
    zetTaal(r.taal);
    start();
    EXPECT_EQ(app().geefTaal(), r.taal);
    EXPECT_EQ(logMet(wxLOG_Error, ""), r.fouten);
    // the resources directory as the toolkit reports it while the application is built
    const wxString naam = wxLocale::GetLanguageName(r.taal), e = wxPathOnly(wxStandardPaths::Get().GetExecutablePath());
    const wxString b = wxPathOnly(e) + "/share/klavermol-gui-tests";
    wxString gelogd, verwacht = "(DesktopAppBasis::zetLokaliteit) Gekozen taal : " + naam + " kort :" +
                                wxLocale::GetLanguageCanonicalName(r.taal) + "\n";
    if (locale)
        verwacht += "Taalpad (BSD/Solaris/AIX/Linux) toegevoegd.\nTaalpad toegevoegd : " + b + "\nTaalpad toegevoegd : " +
                    b + "/Zelvano/Klavermol/locale\nTaalpad toegevoegd : " + b + "/../Zelvano/Klavermol/locale\nTaalpad "
                    "toegevoegd : " + b + "/locale\nTaalpad toegevoegd : " + e + "/../share/Zelvano/Klavermol/locale\n";
    for (const char* k : {"Zelvano", "Applikatie (Klavermol)"})
        if (r.katalogi)
            verwacht += k + (" katalogus voor taal : " + naam) + " met succes toegevoegd.\n";
    for (const LogRegel& l : logRegels(wxLOG_Debug))
        if (l.tekst.StartsWith("(DesktopAppBasis::zetLokaliteit)") || l.tekst.StartsWith("Taalpad") ||
            l.tekst.Contains(" katalogus voor taal : "))
            gelogd += l.tekst + "\n";
    EXPECT_EQ(gelogd, verwacht);
    if (*r.teksten == '\0')
        return;
    KlavermolVenster& v = venster();
    wxString teksten;
    for (int i = 0; i < 6; ++i)
        teksten += (i < 3 ? v.GetMenuBar()->GetMenuLabelText(i) : v.selektieBoek->GetPageText(i - 3)) + "|";
    for (int id : {wxID_EXIT, wxID_PREFERENCES}) // the accelerator after the tab is the toolkit's
        teksten += v.GetMenuBar()->FindItem(id)->GetItemLabel() + "|";
    for (int id : {wxID_SAVE, wxID_CLEAR, wxID_EXIT})
        teksten += v.FindWindow(id)->GetLabel() + "|";
    EXPECT_EQ(teksten + v.GetStatusBar()->GetStatusText(1) + "|" + v.projektLibIncludeNaam->GetValue() + "|", r.teksten);
    v.outputDirPicker->SetPath(thuis);
    v.uitvoerSoortKeuze->SetSelection(r.soort);
    opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, r.soort);
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxArrayString(1, thuis + "/src/a.c"), overgeslagen);
    klik(wxID_APPLY);
    wxString tekst = v.uitvoerTekst->GetValue();
    tekst.Replace(thuis, "HOME");
    for (const wxString& stuk : r.stukken)
        EXPECT_NE(tekst.Find(stuk), wxNOT_FOUND) << stuk;
}

INSTANTIATE_TEST_SUITE_P(, TaalStart, ::testing::ValuesIn(starts),
                         [](const ::testing::TestParamInfo<StartRegel>& i) { return std::string(i.param.naam); });

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    for (const char* naam : {"Klavermol", "Applikatie", "XApplikatie", "XYApplikatie"})
        EXPECT_EQ(wxJoin(DesktopAppBasis::geefCatalogusNamen(naam), '|'), naam[2] == 'A' ? "XYApplikatie|XY" : naam);
}

TEST_F(Taal, TheAboutMenuShowsDescriptionVersionAndCreditsInOrder)
{
    start();
    wxAboutDialogInfo i;
    wxWindow* ouder = nullptr;
    DesktopApp::geefAboutToner() = [&](const wxAboutDialogInfo& info, wxWindow* o) { i = info, ouder = o; };
    opdracht(wxEVT_MENU, wxID_ABOUT);
    EXPECT_EQ(i.GetName() + " " + i.GetVersion() + " " + i.GetCopyright() + " " + i.GetWebSiteURL(),
              "Klavermol 07.09.2020_2.0.0.a (c) 2016-2020 Zelvano. All rights reserved. https://www.zelvano.nl");
    EXPECT_TRUE(i.GetIcon().IsOk() && ouder == &venster());
    EXPECT_EQ(app().geefPlatformBeschrijving(), "wxGTK Linux(64 bit)");
    const wxString d = i.GetDescription(), samen = wxJoin(i.GetDevelopers(), '|');
    EXPECT_TRUE(d.StartsWith("wxGTK Linux(64 bit)\n\nKlavermol simplifies applying CMake") &&
                d.EndsWith("finding the proper paths relative from the build directory.")) << d;
    // six, each web address on a line of its own, so that it is shown
    EXPECT_EQ(i.GetDevelopers().size(), 6u);
    EXPECT_TRUE(samen.StartsWith("The wxWidgets cross-platform GUI toolkit|https://www.wxwidgets.org|\nThe CMake Project|"
                                 "https://cmake.org|\nKlavermol icons: ") && samen.EndsWith("|https://www.zelvano.nl/klavermol"))
        << samen;
}

// Every language of the vocabulary with its name and the flag its file in data/ draws; a pick and OK give it.
TEST_F(Taal, TheDialogShowsEachLanguageWithItsFlagAndGivesThePick)
{
    start();
    wxArrayInt talen;
    for (const DialoogRegel& r : dialoogTalen)
        talen.Add(r.taal);
    TaalKeuzeDialoog dlg(&venster(), talen, 1, "");
    wxListCtrl* lijst = dlg.geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), static_cast<int>(WXSIZEOF(dialoogTalen)));
    const wxString vlaggen = wxPathOnly(wxStandardPaths::Get().GetExecutablePath()) + "/../data/beelden/vlaggen/";
    const wxSize maat(24, 24);
    for (int i = 0; i < lijst->GetItemCount(); ++i) {
        const DialoogRegel& r = dialoogTalen[i];
        SCOPED_TRACE(r.naam);
        const std::string bestand = *r.land ? pixels(wxBitmapBundle::FromSVGFile(vlaggen + r.land + ".svg", maat)
                                                         .GetBitmap(maat).ConvertToImage()) : "";
        const int beeld = wxAtoi(rij(lijst, i).AfterLast(' '));
        EXPECT_EQ(rij(lijst, i).BeforeLast(' '), r.naam);
        const wxImage getoond = beeld < 14 ? dlg.geefVlaggen()->GetBitmap(beeld).ConvertToImage() : wxImage();
        EXPECT_TRUE((getoond.IsOk() ? pixels(getoond) : "") == bestand); // no row: no flag
        EXPECT_EQ(bedien(dlg, wxID_OK, [&] { lijst->SetItemState(i, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED); }),
                  wxID_OK);
        EXPECT_EQ(dlg.geefTaal(), r.taal);
    }
}

// The menu offers German, English and Dutch; OK waits for a pick, which a
// deselection keeps. German, OK and Yes restart the program, and the next
// start, a process of its own in the same home, is in German.
TEST_F(Taal, TheChosenLanguageIsInForceAfterTheRestart)
{
    if (!heeftLocale("de_DE.UTF-8"))
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    if (isVervolg()) {
        zetTaal(-1); // the language comes from the store the first run left
        start();
        EXPECT_EQ(wxString::Format("%d %d ", app().geefTaal(), app().isTaalGekozen()) +
                      venster().GetMenuBar()->GetMenuLabelText(0), wxString::Format("%d 1 Allgemein", wxLANGUAGE_GERMAN));
        EXPECT_TRUE(logRegels(wxLOG_Error).empty());
        return;
    }
    start();
    const Antwoord<TaalKeuzeDialoog> kies([](TaalKeuzeDialoog& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Language Selection ");
        wxListCtrl* lijst = dlg.geefLijst();
        EXPECT_EQ(rij(lijst, 0) + "|" + rij(lijst, 1) + "|" + rij(lijst, 2), "German 1|English 2|Dutch 0");
        EXPECT_EQ(bedien(dlg, wxID_OK, [] {}), wxID_NONE);
        return bedien(dlg, wxID_OK, [&] {
            lijst->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
            lijst->SetItemState(0, 0, wxLIST_STATE_SELECTED);
        });
    });
    wxTEST_DIALOG(opdracht(wxEVT_MENU, ZetTaalID), kies, wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    const auto* deze = ::testing::UnitTest::GetInstance()->current_test_info();
    EXPECT_EQ(startOpnieuw(std::string(deze->test_suite_name()) + "." + deze->name()), 0);
}
