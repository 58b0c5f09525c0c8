// The main window: its first start, the store restored and written back, and which commands each state enables.
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

using Venster = ProgrammaTest;

TEST_F(Venster, FirstStartShowsTheDefaultsAndTheTexts)
{
    start();
    KlavermolVenster& v = venster();
    controleerIndeling(v.GetChildren().front());
    wxMenuBar* menu = v.GetMenuBar();
    std::string vinkjes; // the file-type switches in the menu and as boxes, then F2 and the language chosen
    for (int id : {VoegCBestandenToeID, VoegCPPBestandenToeID, VoegHBestandenToeID, VoegSBestandenToeID})
        vinkjes += menu->IsChecked(id) || static_cast<wxCheckBox*>(v.FindWindow(id))->GetValue() ? '1' : '0';
    EXPECT_EQ(vinkjes + (menu->IsChecked(AutoZetUitvoerDirID) ? '1' : '0') + (app().isTaalGekozen() ? '1' : '0'), "000010");
    EXPECT_TRUE(wxFileName::DirName(v.vindBestandenInDirs->GetPath()).SameAs(wxFileName::DirName(thuis)));
    EXPECT_EQ(v.outputDirPicker->GetPath() + v.vindCMakeSubDir->GetPath() + v.vindCMakeIncludeDir->GetPath(), thuis + thuis + thuis);
    const auto label = [&](int id) { return menu->FindItem(id)->GetItemLabel() + "|"; };
    EXPECT_EQ(v.bestandNaamTekst->GetValue() + "|" + v.uitsluitTerm->GetValue() + "|" + v.voegToeModeKeuze->GetStringSelection() + "|"
                  + v.uitvoerSoortKeuze->GetStringSelection() + "|" + v.naamKader->GetLabel() + "|" + v.GetStatusBar()->GetStatusText(0)
                  + "|" + v.selekteerAllesKnop->GetLabel() + "|" + label(wxID_HOME) + label(wxID_MORE) + label(ZetAlsUitvoerID)
                  + label(VoegSBestandenToeID) + menu->FindItem(AutoZetUitvoerDirID)->GetHelp() + "|"
                  + v.FindWindow(wxID_HOME)->GetToolTipText() + "|" + v.bestandSelektieLijst->GetToolTipText(),
              "CMakeLists.txt|template|One or more files in the directory|CMake Project|Project name|Welkom bij Klavermol !!|"
              "Select all|Go home\tCtrl+h|Go somewhere else\tCtrl+g|Set the current directory as the output dir\tF1|"
              "Include ASM Files in list\tF6|Automatically set output dir from Source top dir|Go to your home directory|"
              "These entries (when checked) will be included in the CMake file.");
    // each picture from its file at its own size: see-through corner, solid over a good part
    EXPECT_TRUE(v.GetIcon().IsOk() && menu->FindItem(ZetTaalID)->GetBitmap().IsOk());
    for (int id : std::initializer_list<int>{wxID_HOME, VorigeLokatieID, wxID_BACKWARD, wxID_FORWARD, wxID_ADD,
                                            VoegToeCMakeSubDirID, VoegToeCMakeIncludeID, wxID_APPLY})
        EXPECT_TRUE(static_cast<wxBitmapButton*>(v.FindWindow(id))->GetBitmap().IsOk()) << id;
    std::vector<std::pair<wxString, int>> beelden = {
        {"ikoon/cmakelogo_klein.png", 48}, {"../../../grafisch/ikonen/Zelvano_zeerklein.jpg", 24}, {"ikoon/Klavermol.jpg", 32}};
    for (const wxString& naam : wxSplit("home,time_machine,circled_left,circled_right,greenplus,blueplus,joyent,language,"
                                        "customer_support,project_setup,books,circuit", ','))
        beelden.emplace_back("../../../grafisch/ikonen/32x32/icons8-" + naam + ".png", 32);
    for (const auto& [naam, maat] : beelden) {
        const wxImage beeld = v.GetBitmapResource(naam).GetBitmap(wxDefaultSize).ConvertToImage();
        ASSERT_TRUE(beeld.IsOk() && beeld.HasAlpha() && beeld.GetSize() == wxSize(maat, maat)) << naam;
        const auto dekkend = std::count_if(beeld.GetAlpha(), beeld.GetAlpha() + maat * maat, [](int a) { return a > 200; });
        EXPECT_TRUE(beeld.GetAlpha(0, 0) == 0 && dekkend > maat * maat / 4) << naam;
    }
}

// A pre-written store is restored into every control and written back as it was at exit.
TEST_F(Venster, TheStoreIsRestoredIntoEveryControlAndWrittenBackInFull)
{
    const wxString bron = wxPathOnly(maakBestand("bron/a.c")), uit = maakMap("uit");
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
    EXPECT_TRUE(aan(wxID_ADD)); // the start-up probe found bron/a.c
    wxMenuBar* m = v.GetMenuBar(); // the output directory as stored: the automatic one is off
    EXPECT_EQ(wxString::Format("%s|%s|%s|%d%d%d%d|%s|%s|%d%d%d%d%d|%s|%s|%zu|%s", v.vindBestandenInDirs->GetPath(), v.outputDirPicker->GetPath(),
                               v.projektLibIncludeNaam->GetValue(), v.uitvoerSoortKeuze->GetSelection(), v.cmakeProjektKeuze->GetSelection(),
                               v.cmakeBiebKeuze->GetSelection(), v.voegToeModeKeuze->GetSelection(), v.naamKader->GetLabel(),
                               v.bestandNaamTekst->GetValue(), v.subDirHeeftCMakeLists, v.includeIsCMake, m->IsChecked(AutoZetUitvoerDirID),
                               m->IsChecked(VoegHBestandenToeID), m->IsChecked(VoegCPPBestandenToeID), v.GetStatusBar()->GetStatusText(1),
                               v.uitsluitTerm->GetValue(), v.recenteLokaties.GetCount(), v.recenteLokaties.GetHistoryFile(0)),
              bron + "|" + uit + "|Motor met spatie|2122|Include name|Motor.cmake|11010|Current filter searches for: C  H  S |test|2|/a");
    // what the controls hold at exit is written, the rest as it was read
    std::map<std::string, wxString> weg(std::begin(store), std::end(store));
    v.vindBestandenInDirs->SetPath(weg["DirPad"] = uit), v.outputDirPicker->SetPath(weg["UitvoerDirPad"] = bron);
    v.projektLibIncludeNaam->ChangeValue(weg["Projektnaam"] = "Naam"), v.bestandNaamTekst->ChangeValue(weg["BestandNaamTekst"] = "x.txt");
    v.uitsluitTerm->ChangeValue(weg["UitsluitTerm"] = ""); // an empty term is written as such
    v.uitvoerSoortKeuze->SetSelection(1), v.cmakeBiebKeuze->SetSelection(1), v.voegToeModeKeuze->SetSelection(1), v.cmakeProjektKeuze->SetSelection(0);
    m->Check(AutoZetUitvoerDirID, true), v.voegCPPBestandenToe = true, v.voegSBestandenToe = false;
    v.recenteLokaties.AddFileToHistory("/nieuw");
    for (const char* k : {"Projektsoort", "Biebtype", "VoegToeMethode", "AutoDirToewijzing", "VoegCPPBestandenToe"})
        weg[k] = "1";
    weg["Projekttype"] = weg["VoegSBestandenToe"] = "0", weg["file1"] = "/nieuw", weg["file2"] = "/a", weg["file3"] = "/b";
    stop();
    for (const auto& [sleutel, waarde] : weg)
        EXPECT_EQ(leesInstellingen()->Read("/Configuratie/" + sleutel, "missing"), waarde) << sleutel;
}

// Which commands each state enables: the kind, the lists, the probe, the histories.
TEST_F(Venster, EnablingFollowsTheKindTheListsTheProbeAndTheHistories)
{
    start();
    KlavermolVenster& v = venster();
    const auto aanRij = [&](std::initializer_list<int> ids, std::size_t menuVanaf = 99) { // '1' per enabled control or menu item
        v.DoMenuUpdates();
        std::string s;
        for (int id : ids)
            s += (s.size() < menuVanaf ? aan(id) : v.GetMenuBar()->IsEnabled(id)) ? '1' : '0';
        return s;
    };
    // project type, library type, file name, sub-directory picker and Add, include Add (the probe's), F1, F2
    const char* const verwacht[] = {"10011000", "01000111", "00111111"};
    for (int soort = 0; soort < 3; ++soort) {
        v.uitvoerSoortKeuze->SetSelection(soort), v.subDirHeeftCMakeLists = true, v.includeIsCMake = soort != 0;
        EXPECT_EQ(aanRij({CMakeProjektKeuzeID, CMakeBiebKeuzeID, BestandNaamTekstID, VindCMakeSubDirID,
                          VoegToeCMakeSubDirID, VoegToeCMakeIncludeID, ZetAlsUitvoerID, AutoZetUitvoerDirID}, 6),
                  verwacht[soort]) << "kind " << soort;
    }
    v.subDirHeeftCMakeLists = false;
    EXPECT_EQ(aanRij({VoegToeCMakeSubDirID, VindCMakeIncludeDirID, VindBestandenInDirsID, OutputDirPickerID}), "0111");
    v.vindBestandenInDirs->SetPath(maakMap("bron")); // F1 copies the search location into the output directory
    opdracht(wxEVT_MENU, ZetAlsUitvoerID);
    EXPECT_EQ(v.outputDirPicker->GetPath(), thuis + "/bron");
    v.biebLijst->Append("/lib"), v.includeLijst->Append("/x.cmake"); // Execute: the source list; Clear: the page; Save: the text
    std::string lijsten = aanRij({wxID_APPLY, wxID_CLEAR});
    for (int pagina : {1, 2}) {
        v.selektieBoek->SetSelection(pagina), lijsten += aanRij({wxID_CLEAR});
        v.biebLijst->Clear(), lijsten += aanRij({wxID_CLEAR});
    }
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxArrayString(1, "/a.c"), overgeslagen);
    lijsten += aanRij({wxID_APPLY, wxID_SAVE});
    v.uitvoerTekst->ChangeValue("x");
    EXPECT_EQ(lijsten + aanRij({wxID_SAVE}), "00" "10" "11" "10" "1");
    // Add needs a found family that is switched on: its own switch, not any other one
    const std::pair<bool*, StandSchakelaar*> families[] = {{&v.heeftCBestanden, &v.voegCBestandenToe},
        {&v.heeftCPPBestanden, &v.voegCPPBestandenToe}, {&v.heeftHBestanden, &v.voegHBestandenToe}, {&v.heeftSBestanden, &v.voegSBestandenToe}};
    for (size_t f = 0; f < WXSIZEOF(families); ++f) {
        for (size_t g = 0; g < WXSIZEOF(families); ++g)
            *families[g].first = g == f, *families[g].second = g != f;
        EXPECT_FALSE(aan(wxID_ADD)) << f;
        *families[f].second = true;
        EXPECT_TRUE(aan(wxID_ADD)) << f;
    }
    // back, forward, recent: none (forward on: count - 1 wraps), one appended, back at 0, two at 0 and one recent
    std::string geschiedenis = aanRij({wxID_BACKWARD, wxID_FORWARD, VorigeLokatieID});
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/a")), geschiedenis += aanRij({wxID_BACKWARD, wxID_FORWARD});
    v.lokatieGeschiedenis.zetIndex(0), geschiedenis += aanRij({wxID_BACKWARD, wxID_FORWARD});
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/b")), v.lokatieGeschiedenis.zetIndex(0), v.recenteLokaties.AddFileToHistory("/a");
    EXPECT_EQ(geschiedenis + aanRij({wxID_FORWARD, VorigeLokatieID}), "010" "10" "00" "11");
    klik(wxID_EXIT); // Quit closes the window
    EXPECT_TRUE(wxTheApp->IsScheduledForDestruction(&venster()));
}

// Forward with no location ends the program on its out-of-range error, but the settings are on disk first.
TEST_F(Venster, ForwardIntoNothingWritesTheSettingsBeforeTheProgramEnds)
{
    schrijfInstellingen("[Configuratie]\nDirPad=/nergens\n");
    verwachtAssert("true == mag"); // the start-up probe cannot open the stored location
    start();
    EXPECT_EQ(aantalAsserts("true == mag"), 1);
    const wxString d = maakMap("d");
    venster().vindBestandenInDirs->SetPath(d);
    verwachtAssert("\"IsInsideRun()\""); // the toolkit then leaves the main loop, which the test stands in for
    EXPECT_THROW(klikOp(venster().FindWindow(wxID_FORWARD)), std::out_of_range);
    EXPECT_EQ(leesInstellingen()->Read("/Configuratie/DirPad"), d);
}
