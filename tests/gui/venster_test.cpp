// The main window: what it shows at a first start, what it restores from the
// store, what it writes back, and which commands each state enables.
#include "programma.h"

#include <algorithm>
#include <map>

#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

class Venster : public ProgrammaTest
{
protected:
    bool menuAan(int id)
    {
        venster().DoMenuUpdates();
        return venster().GetMenuBar()->IsEnabled(id);
    }
};

TEST_F(Venster, FirstStartShowsTheDefaultsAndTheTexts)
{
    start();
    KlavermolVenster& v = venster();
    EXPECT_TRUE(wxFileName::DirName(v.vindBestandenInDirs->GetPath()).SameAs(wxFileName::DirName(thuis)));
    for (const wxString& pad : {v.outputDirPicker->GetPath(), v.vindCMakeSubDir->GetPath(),
                                v.vindCMakeIncludeDir->GetPath()})
        EXPECT_EQ(pad, thuis);
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "MyFirstProject");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");
    EXPECT_EQ(v.voegToeModeKeuze->GetStringSelection(), "One or more files in the directory");
    EXPECT_EQ(v.uitsluitTerm->GetValue(), "template");
    EXPECT_EQ(v.uitvoerSoortKeuze->GetStringSelection(), "CMake Project");
    EXPECT_EQ(v.naamKader->GetLabel(), "Project name");
    wxMenuBar* menu = v.GetMenuBar();
    for (int id : {VoegCBestandenToeID, VoegCPPBestandenToeID, VoegHBestandenToeID, VoegSBestandenToeID}) {
        EXPECT_FALSE(menu->IsChecked(id)) << id;
        EXPECT_FALSE(static_cast<wxCheckBox*>(v.FindWindow(id))->GetValue()) << id;
    }
    EXPECT_TRUE(menu->IsChecked(AutoZetUitvoerDirID));
    EXPECT_NE(v.vindBestandenInDirs->GetDropTarget(), nullptr);

    const std::pair<wxString, wxString> teksten[] = {
        {v.GetStatusBar()->GetStatusText(0), "Welkom bij Klavermol !!"},
        {v.GetStatusBar()->GetStatusText(1), "Current filter searches for:"},
        {v.selekteerAllesKnop->GetLabel(), "Select all"},
        {menu->GetMenuLabelText(0) + "|" + menu->GetMenuLabelText(1) + "|" + menu->GetMenuLabelText(2),
         "General|Navigation|Options"},
        {menu->FindItem(wxID_PREFERENCES)->GetItemLabel(), "Preferences\tCtrl+,"},
        {menu->FindItem(wxID_HOME)->GetItemLabel(), "Go home\tCtrl+h"},
        {menu->FindItem(wxID_MORE)->GetItemLabel(), "Go somewhere else\tCtrl+g"},
        {menu->FindItem(ZetAlsUitvoerID)->GetItemLabel(), "Set the current directory as the output dir\tF1"},
        {menu->FindItem(AutoZetUitvoerDirID)->GetHelp(), "Automatically set output dir from Source top dir"},
        {menu->FindItem(VoegSBestandenToeID)->GetItemLabel(), "Include ASM Files in list\tF6"},
        {v.selektieBoek->GetPageText(0) + "|" + v.selektieBoek->GetPageText(1) + "|" + v.selektieBoek->GetPageText(2),
         "Source Files|Libraries|Include files"},
        {v.FindWindow(wxID_HOME)->GetToolTipText(), "Go to your home directory"},
        {v.bestandSelektieLijst->GetToolTipText(), "These entries (when checked) will be included in the CMake file."},
    };
    for (const auto& [getoond, verwacht] : teksten)
        EXPECT_EQ(getoond, verwacht);
    EXPECT_EQ(menu->GetMenuCount(), 3u);
    EXPECT_EQ(v.selektieBoek->GetPageCount(), 3u);

    // the images were found; every picture is drawn from its file at its own
    // size: see-through at the corner and solid over a good part of its square
    EXPECT_TRUE(v.GetIcon().IsOk());
    EXPECT_TRUE(menu->FindItem(ZetTaalID)->GetBitmap().IsOk());
    for (int id : std::initializer_list<int>{wxID_HOME, VorigeLokatieID, wxID_BACKWARD, wxID_FORWARD, wxID_ADD,
                                            VoegToeCMakeSubDirID, VoegToeCMakeIncludeID, wxID_APPLY})
        EXPECT_TRUE(static_cast<wxBitmapButton*>(v.FindWindow(id))->GetBitmap().IsOk()) << id;
    const wxString p = "../../../grafisch/ikonen/", q = p + "32x32/icons8-";
    const std::pair<wxString, int> beelden[] = {
        {q + "home.png", 32}, {q + "time_machine.png", 32}, {q + "circled_left.png", 32},
        {q + "circled_right.png", 32}, {q + "greenplus.png", 32}, {q + "blueplus.png", 32}, {q + "joyent.png", 32},
        {"ikoon/cmakelogo_klein.png", 48}, {q + "language.png", 32}, {p + "Zelvano_zeerklein.jpg", 24},
        {"ikoon/Klavermol.jpg", 32}, {q + "customer_support.png", 32}, {q + "project_setup.png", 32},
        {q + "books.png", 32}, {q + "circuit.png", 32}};
    for (const auto& [naam, maat] : beelden) {
        const wxImage beeld = v.GetBitmapResource(naam).GetBitmap(wxDefaultSize).ConvertToImage();
        ASSERT_TRUE(beeld.IsOk() && beeld.HasAlpha() && beeld.GetSize() == wxSize(maat, maat)) << naam;
        const unsigned char* alfa = beeld.GetAlpha();
        const auto dekkend = std::count_if(alfa, alfa + maat * maat, [](int a) { return a > 200; });
        EXPECT_TRUE(beeld.GetAlpha(0, 0) == 0 && dekkend > maat * maat / 4) << naam;
    }
}

// A pre-written store is restored into every control and written back as it
// was at exit.
TEST_F(Venster, TheStoreIsRestoredIntoEveryControlAndWrittenBackInFull)
{
    const wxString bron = maakMap("bron"), uit = maakMap("uit");
    const std::pair<const char*, wxString> store[] = {
        {"DirPad", bron}, {"UitvoerDirPad", uit}, {"Projektnaam", "Motor met spatie"}, {"Projektsoort", "2"},
        {"Projekttype", "1"}, {"Biebtype", "2"}, {"BestandNaamTekst", "Motor.cmake"}, {"VoegToeMethode", "2"},
        {"CMakeSubDirPad", maakBestand("bron/lib/CMakeLists.txt")},
        {"CMakeIncludeDirPad", maakBestand("bron/extra.cmake")}, {"AutoDirToewijzing", "0"},
        {"VoegCBestandenToe", "1"}, {"VoegCPPBestandenToe", "0"}, {"VoegHBestandenToe", "1"},
        {"VoegSBestandenToe", "1"}, {"UitsluitTerm", "test"}, {"file1", "/a"}, {"file2", "/b"}};
    std::string tekst = "[Configuratie]\n";
    for (const auto& [sleutel, waarde] : store)
        tekst += std::string(sleutel) + "=" + waarde.utf8_string() + "\n";
    schrijfInstellingen(tekst);
    start();
    KlavermolVenster& v = venster();
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), bron);
    EXPECT_EQ(v.outputDirPicker->GetPath(), uit); // the automatic output directory is off
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "Motor met spatie");
    EXPECT_EQ(v.uitvoerSoortKeuze->GetSelection(), 2);
    EXPECT_EQ(v.naamKader->GetLabel(), "Include name");
    EXPECT_EQ(v.cmakeProjektKeuze->GetSelection(), 1);
    EXPECT_EQ(v.cmakeBiebKeuze->GetSelection(), 2);
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Motor.cmake");
    EXPECT_EQ(v.voegToeModeKeuze->GetSelection(), 2);
    EXPECT_TRUE(v.subDirHeeftCMakeLists && v.includeIsCMake);
    EXPECT_FALSE(v.GetMenuBar()->IsChecked(AutoZetUitvoerDirID));
    EXPECT_TRUE(v.GetMenuBar()->IsChecked(VoegHBestandenToeID));
    EXPECT_FALSE(v.GetMenuBar()->IsChecked(VoegCPPBestandenToeID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: C  H  S ");
    EXPECT_EQ(v.uitsluitTerm->GetValue(), "test");
    ASSERT_EQ(v.recenteLokaties.GetCount(), 2u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), "/a");

    // what the controls hold at exit is written, the rest as it was read
    std::map<std::string, wxString> weg(std::begin(store), std::end(store));
    v.vindBestandenInDirs->SetPath(weg["DirPad"] = uit);
    v.outputDirPicker->SetPath(weg["UitvoerDirPad"] = bron);
    v.projektLibIncludeNaam->ChangeValue(weg["Projektnaam"] = "Naam");
    v.uitvoerSoortKeuze->SetSelection(1);
    v.cmakeProjektKeuze->SetSelection(0);
    v.cmakeBiebKeuze->SetSelection(1);
    v.bestandNaamTekst->ChangeValue(weg["BestandNaamTekst"] = "x.txt");
    v.voegToeModeKeuze->SetSelection(1);
    v.GetMenuBar()->Check(AutoZetUitvoerDirID, true);
    v.voegCPPBestandenToe = true;
    v.voegSBestandenToe = false;
    v.uitsluitTerm->ChangeValue(weg["UitsluitTerm"] = ""); // an empty term is written as such
    v.recenteLokaties.AddFileToHistory("/nieuw");
    for (const char* k : {"Projektsoort", "Biebtype", "VoegToeMethode", "AutoDirToewijzing", "VoegCPPBestandenToe"})
        weg[k] = "1";
    weg["Projekttype"] = weg["VoegSBestandenToe"] = "0";
    weg["file1"] = "/nieuw", weg["file2"] = "/a", weg["file3"] = "/b";
    stop();

    auto config = leesInstellingen();
    config->SetPath("/Configuratie");
    for (const auto& [sleutel, waarde] : weg)
        EXPECT_EQ(config->Read(sleutel, "missing"), waarde) << sleutel;
}

// Per output kind, with a sub-directory CMakeLists.txt and an include file
// chosen, which kind-bound controls and menu items are on; then the lists, the
// probe and the histories.
TEST_F(Venster, EnablingFollowsTheKindTheListsTheProbeAndTheHistories)
{
    start();
    KlavermolVenster& v = venster();
    // project type, library type, file name, sub-directory picker and Add,
    // include Add (follows the probe, whatever the kind), then F1 and F2
    const int ids[] = {CMakeProjektKeuzeID, CMakeBiebKeuzeID, BestandNaamTekstID, VindCMakeSubDirID,
                       VoegToeCMakeSubDirID, VoegToeCMakeIncludeID, ZetAlsUitvoerID, AutoZetUitvoerDirID};
    const char* const verwacht[] = {"10011000", "01000111", "00111111"};
    for (int soort = 0; soort < 3; ++soort) {
        v.uitvoerSoortKeuze->SetSelection(soort);
        v.subDirHeeftCMakeLists = true;
        v.includeIsCMake = soort != 0;
        std::string gezien;
        for (int i = 0; i < 8; ++i)
            gezien += (i < 6 ? aan(ids[i]) : menuAan(ids[i])) ? '1' : '0';
        EXPECT_EQ(gezien, verwacht[soort]) << "kind " << soort;
    }
    v.subDirHeeftCMakeLists = false;
    EXPECT_FALSE(aan(VoegToeCMakeSubDirID));
    for (int id : std::initializer_list<int>{VindCMakeIncludeDirID, VindBestandenInDirsID, OutputDirPickerID,
                                            VoegToeModeKeuzeID, wxID_SELECTALL, wxID_HOME, GebruikSourceDirNaamID,
                                            VoegCBestandenToeID, wxID_EXIT})
        EXPECT_TRUE(aan(id)) << id;

    // F1 copies the search location into the output directory
    const wxString bron = maakMap("bron");
    v.vindBestandenInDirs->SetPath(bron);
    opdracht(wxEVT_MENU, ZetAlsUitvoerID);
    EXPECT_EQ(v.outputDirPicker->GetPath(), bron);

    // the lists, the probe and the histories
    v.biebLijst->Append("/lib");
    v.includeLijst->Append("/x.cmake");
    EXPECT_FALSE(aan(wxID_APPLY)); // only the source list counts
    EXPECT_FALSE(aan(wxID_CLEAR)); // page 0 is empty
    v.selektieBoek->SetSelection(1);
    EXPECT_TRUE(aan(wxID_CLEAR));
    v.biebLijst->Clear();
    EXPECT_FALSE(aan(wxID_CLEAR));
    v.selektieBoek->SetSelection(2);
    EXPECT_TRUE(aan(wxID_CLEAR));
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxArrayString(1, "/a.c"), overgeslagen);
    EXPECT_TRUE(aan(wxID_APPLY));
    EXPECT_FALSE(aan(wxID_SAVE));
    v.uitvoerTekst->ChangeValue("x");
    EXPECT_TRUE(aan(wxID_SAVE));

    // Add needs a found family that is switched on: one family found, every
    // other one switched on, is not enough until its own switch is on
    const std::pair<bool*, StandSchakelaar*> families[] = {{&v.heeftCBestanden, &v.voegCBestandenToe},
        {&v.heeftCPPBestanden, &v.voegCPPBestandenToe}, {&v.heeftHBestanden, &v.voegHBestandenToe},
        {&v.heeftSBestanden, &v.voegSBestandenToe}};
    for (size_t f = 0; f < WXSIZEOF(families); ++f) {
        for (size_t g = 0; g < WXSIZEOF(families); ++g) {
            *families[g].first = g == f;
            *families[g].second = g != f;
        }
        EXPECT_FALSE(aan(wxID_ADD)) << f;
        *families[f].second = true;
        EXPECT_TRUE(aan(wxID_ADD)) << f;
    }

    // no location at all: forward is on (count - 1 wraps), back is off
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    EXPECT_FALSE(aan(VorigeLokatieID));
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/a"));
    EXPECT_TRUE(aan(wxID_BACKWARD)); // index 1 after the append
    EXPECT_FALSE(aan(wxID_FORWARD)); // one location: count - 1 is 0
    v.lokatieGeschiedenis.zetIndex(0);
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/b"));
    v.lokatieGeschiedenis.zetIndex(0);
    EXPECT_TRUE(aan(wxID_FORWARD));
    v.recenteLokaties.AddFileToHistory("/a");
    EXPECT_TRUE(aan(VorigeLokatieID));

    klik(wxID_EXIT); // Quit closes the window
    EXPECT_TRUE(wxTheApp->IsScheduledForDestruction(&venster()));
}

// Forward with no location at all ends the program on its out-of-range
// error, but what the user set is on disk first.
TEST_F(Venster, ForwardIntoNothingWritesTheSettingsBeforeTheProgramEnds)
{
    start();
    const wxString d = maakMap("d");
    venster().vindBestandenInDirs->SetPath(d);
    ASSERT_TRUE(aan(wxID_FORWARD));
    // The toolkit then leaves the main loop, which the test only stands in for.
    verwachtAssert("\"IsInsideRun()\"");
    EXPECT_THROW(klikOp(venster().FindWindow(wxID_FORWARD)), std::out_of_range);
    EXPECT_EQ(leesInstellingen()->Read("/Configuratie/DirPad"), d);
}
