// Locale and catalogues per language, the language dialog, the about box, the restart in a new language.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/taalkeuzedialoog.h"

#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>

#include <clocale>

namespace {

bool heeftLocale(const char* l) { const bool er = std::setlocale(LC_ALL, l); return std::setlocale(LC_ALL, "C"), er; }

// locale "": one the machine lacks; katalogi: both added; teksten: what the window shows, then what Execute writes.
struct StartRegel { const char *naam; int taal; const char *locale, *fouten = ""; bool katalogi = false;
                    const char* teksten = ""; };

const StartRegel starts[] = {
    {"English", wxLANGUAGE_ENGLISH, "en_US.UTF-8"},
    {"French", wxLANGUAGE_FRENCH, "fr_FR.UTF-8", "Could not add Zelvano catalog for language : French\n"},
    {"Swedish", wxLANGUAGE_SWEDISH, "", "Could not initialise the Locale for \"Swedish\" .\nCould not initialise the "
                                        "Internationalization Locale system forKlavermol.\n"},
    {"British", wxLANGUAGE_ENGLISH_UK, "en_GB.UTF-8", "", true},
    {"German", wxLANGUAGE_GERMAN, "de_DE.UTF-8", "", true, "Allgemein|Navigation|Optionen|Quelldateien|Bibliotheken|"
     "Include-Dateien|Beenden\tCtrl+Q|Einstellungen\tCtrl+,|&Speichern|&Leeren|&Beenden|Der aktuelle Filter sucht "
     "nach:|MeinErstesProjekt|## Von Klavermol erzeugte CMakeLists-Projektdatei\n## Datei erzeugt am : *\n# Mindest"
     "version von CMake festlegen.\ncmake_minimum_required(VERSION 2.8.10)\n*\n## Dieses Projekt braucht wahrscheinlich noch "
     "Feinarbeit*"},
};

void PrintTo(const StartRegel& r, std::ostream* os) { *os << r.naam; }

struct DialoogRegel { int taal; const char *naam, *land; }; // an offered language, its name and flag in data/
const DialoogRegel dialoogTalen[] = {
    {wxLANGUAGE_CHINESE_SIMPLIFIED, "Chinese (simplified)", "cn"}, {wxLANGUAGE_CHINESE_TAIWAN, "Chinese (traditional)", "tw"},
    {wxLANGUAGE_DUTCH_BELGIAN, "Dutch", "nl"}, {wxLANGUAGE_ENGLISH_NEW_ZEALAND, "English", "gb"},
    {wxLANGUAGE_FRENCH_SWISS, "French", "fr"}, {wxLANGUAGE_GERMAN_LIECHTENSTEIN, "German", "de"},
    {wxLANGUAGE_HEBREW, "Hebrew", "il"}, {wxLANGUAGE_ITALIAN, "Italian", "it"}, {wxLANGUAGE_JAPANESE, "Japanese", "jp"},
    {wxLANGUAGE_KOREAN, "Korean", "kr"}, {wxLANGUAGE_PORTUGUESE_BRAZILIAN, "Portuguese", "pt"},
    {wxLANGUAGE_RUSSIAN_UKRAINE, "Russian", "ru"}, {wxLANGUAGE_SPANISH_MEXICAN, "Spanish", "es"},
    {wxLANGUAGE_SWEDISH_FINLAND, "Swedish", "se"}, {wxLANGUAGE_FINNISH, "", ""}, // no row: no name, no flag
};

wxString rij(wxListCtrl* lijst, int i) // a row of the dialog's list as "name flag-index"
{
    wxListItem item;
    item.SetId(i), item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
    return lijst->GetItem(item), item.GetText() + wxString::Format(" %d", item.GetImage());
}

std::string pixels(const wxImage& b) // the pixels and the alpha of an image, "" for none
{
    const std::size_t n = b.IsOk() ? static_cast<std::size_t>(b.GetWidth()) * b.GetHeight() : 0;
    return n ? std::string(reinterpret_cast<const char*>(b.GetData()), 3 * n) +
               (b.HasAlpha() ? std::string(reinterpret_cast<const char*>(b.GetAlpha()), n) : "") : "";
}

} // namespace

using Taal = ProgrammaTest;
class TaalStart : public Taal, public ::testing::WithParamInterface<StartRegel> {};

// The language, the errors, the traces of the catalogue search, what the window shows and Execute writes.
TEST_P(TaalStart, LocaleCataloguesAndTexts)
{
    const StartRegel& r = GetParam();
    if (*r.locale ? !heeftLocale(r.locale) : heeftLocale("sv_SE.UTF-8"))
        GTEST_SKIP() << "the machine has not the locales this row needs";
    zetTaal(r.taal);
    start();
    const wxString naam = wxLocale::GetLanguageName(r.taal), e = wxPathOnly(wxStandardPaths::Get().GetExecutablePath());
    const wxString b = wxPathOnly(e) + "/share/klavermol-gui-tests"; // the resources directory as the toolkit has it
    wxString gelogd = wxString::Format("%d\n", app().geefTaal()), verwacht = wxString::Format("%d\n%s(DesktopAppBasis::"
        "zetLokaliteit) Gekozen taal : %s kort :%s\n", r.taal, r.fouten, naam, wxLocale::GetLanguageCanonicalName(r.taal));
    if (*r.locale)
        verwacht += "Taalpad (BSD/Solaris/AIX/Linux) toegevoegd.\nTaalpad toegevoegd : " + b + "\nTaalpad toegevoegd : " +
                    b + "/Zelvano/Klavermol/locale\nTaalpad toegevoegd : " + b + "/../Zelvano/Klavermol/locale\nTaalpad "
                    "toegevoegd : " + b + "/locale\nTaalpad toegevoegd : " + e + "/../share/Zelvano/Klavermol/locale\n";
    for (const char* k : {"Zelvano", "Applikatie (Klavermol)"})
        verwacht += r.katalogi ? k + (" katalogus voor taal : " + naam) + " met succes toegevoegd.\n" : wxString();
    for (wxLogLevel niveau : {wxLOG_Error, wxLOG_Debug}) // the errors; the choice, the search paths, the catalogues
        for (const LogRegel& l : logRegels(niveau))
            gelogd += niveau == wxLOG_Error || l.tekst.Lower().Contains("taal") ? l.tekst + "\n" : wxString();
    EXPECT_EQ(gelogd, verwacht);
    if (*r.teksten == '\0')
        return;
    KlavermolVenster& v = venster();
    const int ids[] = {wxID_EXIT, wxID_PREFERENCES, wxID_SAVE, wxID_CLEAR, wxID_EXIT};
    wxString teksten;
    for (int i = 0; i < 11; ++i) // menus, pages, Quit and Preferences (the accelerator is the toolkit's), buttons
        teksten += (i < 3 ? v.GetMenuBar()->GetMenuLabelText(i) : i < 6 ? v.selektieBoek->GetPageText(i - 3) : i < 8 ?
                    v.GetMenuBar()->FindItem(ids[i - 6])->GetItemLabel() : v.FindWindow(ids[i - 6])->GetLabel()) + "|";
    teksten += v.GetStatusBar()->GetStatusText(1) + "|" + v.projektLibIncludeNaam->GetValue() + "|";
    v.outputDirPicker->SetPath(thuis);
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxArrayString(1, thuis + "/src/a.c"), overgeslagen);
    klik(wxID_APPLY);
    EXPECT_TRUE((teksten += v.uitvoerTekst->GetValue()).Matches(r.teksten)) << teksten;
}

INSTANTIATE_TEST_SUITE_P(, TaalStart, ::testing::ValuesIn(starts),
                         [](const ::testing::TestParamInfo<StartRegel>& i) { return std::string(i.param.naam); });

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    for (const char* naam : {"Klavermol", "Applikatie", "XApplikatie", "XYApplikatie"})
        EXPECT_EQ(wxJoin(DesktopAppBasis::geefCatalogusNamen(naam), '|'), naam[2] == 'A' ? "XYApplikatie|XY" : naam);
}

// The about box (six credits, an address per line), every language of the dialog, the choice in force after a restart.
TEST_F(Taal, TheAboutBoxAndTheDialogAndTheChosenLanguageInForceAfterTheRestart)
{
    if (!heeftLocale("de_DE.UTF-8"))
        GTEST_SKIP() << "de_DE.UTF-8 is not generated on this machine";
    zetTaal(isVervolg() ? -1 : wxLANGUAGE_ENGLISH); // the next start takes the language from the store
    start();
    if (isVervolg()) {
        EXPECT_EQ(wxString::Format("%d %d %zu ", app().geefTaal(), app().isTaalGekozen(), logRegels(wxLOG_Error).size()) +
                  venster().GetMenuBar()->GetMenuLabelText(0), wxString::Format("%d 1 0 Allgemein", wxLANGUAGE_GERMAN));
        return;
    }
    wxAboutDialogInfo i;
    wxWindow* ouder = nullptr;
    DesktopApp::geefAboutToner() = [&](const wxAboutDialogInfo& info, wxWindow* o) { i = info, ouder = o; };
    opdracht(wxEVT_MENU, wxID_ABOUT);
    EXPECT_EQ(wxString::Format("%s %s %s %s %zu %d", i.GetName(), i.GetVersion(), i.GetCopyright(), i.GetWebSiteURL(),
              i.GetDevelopers().size(), i.GetIcon().IsOk() && ouder == &venster()), "Klavermol 07.09.2020_2.0.0.a (c) "
              "2016-2020 Zelvano. All rights reserved. https://www.zelvano.nl 6 1");
    const wxString d = i.GetDescription() + "|" + wxJoin(i.GetDevelopers(), '|');
    EXPECT_TRUE(d.StartsWith("wxGTK Linux(64 bit)\n\nKlavermol simplifies applying CMake") && d.Contains("finding the "
                "proper paths relative from the build directory.|The wxWidgets cross-platform GUI toolkit|https://www.wx"
                "widgets.org|\nThe CMake Project|https://cmake.org|\nKlavermol icons: ") &&
                d.EndsWith("|https://www.zelvano.nl/klavermol")) << d;
    wxArrayInt talen;
    for (const DialoogRegel& r : dialoogTalen)
        talen.Add(r.taal);
    auto* dlg = new TaalKeuzeDialoog(&venster(), talen, 1, ""); // the window's to destroy
    wxListCtrl* lijst = dlg->geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), static_cast<int>(WXSIZEOF(dialoogTalen)));
    const wxString vlaggen = wxPathOnly(wxStandardPaths::Get().GetExecutablePath()) + "/../data/beelden/vlaggen/";
    for (int i = 0; i < lijst->GetItemCount(); ++i) {
        const DialoogRegel& r = dialoogTalen[i];
        const int beeld = wxAtoi(rij(lijst, i).AfterLast(' '));
        const bool vlag = pixels(beeld < 14 ? dlg->geefVlaggen()->GetBitmap(beeld).ConvertToImage() : wxImage()) ==
            pixels(*r.land ? wxBitmapBundle::FromSVGFile(vlaggen + r.land + ".svg", {24, 24}).GetBitmap(wxDefaultSize)
                                 .ConvertToImage() : wxImage());
        const int knop = bedien(*dlg, wxID_OK, [&] { lijst->SetItemState(i, ~0, wxLIST_STATE_SELECTED); });
        EXPECT_EQ(wxString::Format("%s %d %d %d", rij(lijst, i).BeforeLast(' '), vlag, knop, dlg->geefTaal()),
                  wxString::Format("%s 1 %d %d", r.naam, wxID_OK, r.taal));
    }
    const Antwoord<TaalKeuzeDialoog> kies([](TaalKeuzeDialoog& dlg) {
        wxListCtrl* lijst = dlg.geefLijst();
        EXPECT_EQ(dlg.GetTitle() + "|" + rij(lijst, 0) + "|" + rij(lijst, 1) + "|" + rij(lijst, 2),
                  "Language Selection |German 1|English 2|Dutch 0");
        EXPECT_EQ(bedien(dlg, wxID_OK, [] {}), wxID_NONE);
        return bedien(dlg, wxID_OK, [&] { lijst->SetItemState(0, ~0, wxLIST_STATE_SELECTED),
                                          lijst->SetItemState(0, 0, wxLIST_STATE_SELECTED); });
    });
    wxTEST_DIALOG(opdracht(wxEVT_MENU, ZetTaalID), kies, wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    const auto* deze = ::testing::UnitTest::GetInstance()->current_test_info();
    EXPECT_EQ(startOpnieuw(std::string(deze->test_suite_name()) + "." + deze->name()), 0);
}
