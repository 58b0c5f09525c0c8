// The output side of the main window: kind and names, the sub-directory and
// include lists, saving, and Execute against klavermol-cli.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/testing.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>

namespace {

// Picks `pad` in the save dialog after checking what it proposes.
Antwoord<wxFileDialog> bewaarAls(const wxString& pad, const wxString& map, const wxString& naam,
                                 const wxString& wildcard = "TXT files (*.txt)|*.txt")
{
    return Antwoord<wxFileDialog>([=](wxFileDialog& dlg) {
        EXPECT_EQ(dlg.GetWildcard() + "|" + dlg.GetDirectory() + "|" + dlg.GetFilename(), wildcard + "|" + map + "|" + naam);
        EXPECT_TRUE(dlg.HasFlag(wxFD_SAVE) && dlg.HasFlag(wxFD_OVERWRITE_PROMPT));
        dlg.SetPath(pad);
        return wxID_OK;
    });
}

std::string leesBytes(const wxString& pad)
{
    std::ifstream in(pad.ToStdString(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

} // namespace

using Uitvoer = ProgrammaTest;

// The name box and the file name follow the kind and the name; Save proposes
// them in the output directory, writes UTF-8 without a byte-order mark, and
// its wildcard follows the project type, not the kind.
TEST_F(Uitvoer, TheFileNameFollowsTheKindAndTheNameAndSaveProposesIt)
{
    start();
    KlavermolVenster& v = venster();
    const auto kiesSoort = [&](int soort) {
        v.uitvoerSoortKeuze->SetSelection(soort);
        opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, soort);
    };
    v.outputDirPicker->SetPath(maakMap("work/src/engine"));
    const struct { int soort; const char* naam; int knop; const char* verwacht; } stappen[] = {
        {2, "Common", 0, "Include name|Common.cmake"}, {-1, "Engine", 0, "Include name|Engine.cmake"},
        {0, "", 0, "Project name|CMakeLists.txt"}, {1, "mylib", 0, "Library name|CMakeLists.txt"},
        {2, "", GebruikSourceDirNaamID, "Include name|engine.cmake"}, // the output directory's name
        {1, "", 0, "Library name|CMakeLists.txt"}}; // from the include kind straight to a library
    for (const auto& s : stappen) {
        if (s.soort >= 0)
            kiesSoort(s.soort);
        if (*s.naam != '\0')
            v.projektLibIncludeNaam->SetValue(s.naam);
        if (s.knop != 0)
            klik(s.knop);
        EXPECT_EQ(v.naamKader->GetLabel() + "|" + v.bestandNaamTekst->GetValue(), s.verwacht) << s.naam << s.soort;
    }
    const wxString map = maakMap("uit");
    v.outputDirPicker->SetPath(map);
    v.zetUitvoer("set(Naam Caf\xC3\xA9)\n");
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(map + "/CMakeLists.txt", map, "CMakeLists.txt"));
    EXPECT_EQ(leesBytes(map + "/CMakeLists.txt"), "set(Naam Caf\xC3\xA9)\n");
    v.zetUitvoer("x");
    kiesSoort(2);
    v.cmakeProjektKeuze->SetSelection(1);
    const wxString doel = map + "/engine.cmake";
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(doel, map, "engine.cmake",
                                             "TXT files (*.txt)|*.txt|CMake files (*.cmake)|*.cmake"));
    v.cmakeProjektKeuze->SetSelection(0);
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(doel, map, "engine.cmake"));
    EXPECT_EQ(leesBytes(doel), "x");
}

// A sub-directory's CMakeLists.txt and a CMake include file are added once,
// each to its list, page and recent locations; what cannot be added is said.
TEST_F(Uitvoer, AddingCMakeSubDirectoriesAndIncludeFiles)
{
    start();
    KlavermolVenster& v = venster();
    const auto kiesBestand = [&](wxFilePickerCtrl* picker, int id, const wxString& pad) {
        picker->SetPath(pad);
        wxFileDirPickerEvent e(wxEVT_FILEPICKER_CHANGED, picker, id, pad);
        v.ProcessWindowEvent(e);
    };
    const auto geefNaam = [](const wxString& naam, int antwoord) { // the question starts empty
        return Antwoord<wxTextEntryDialog>([=](wxTextEntryDialog& dlg) {
            EXPECT_EQ(dlg.GetValue(), "");
            dlg.SetValue(naam);
            return antwoord;
        });
    };
    const auto toon = [&] { return v.GetStatusBar()->GetStatusText(0) + wxString::Format("|%d", v.selektieBoek->GetSelection()); };
    const wxString lib = maakMap("lib"), ander = maakMap("ander"), bestand = maakBestand("cmake/extra.cmake");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("lib/CMakeLists.txt"));
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("mylib", wxID_OK));
    EXPECT_EQ(toon(), "CMakeLists.txt was added to your selection list.|1");
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, bestand);
    EXPECT_TRUE(v.includeIsCMake);
    klik(VoegToeCMakeIncludeID);
    EXPECT_EQ(toon(), "extra.cmake was added to your selection list.|2");
    for (int id : {VoegToeCMakeSubDirID, VoegToeCMakeIncludeID}) // again: refused without a question
        klik(id);
    for (const char* naam : {"CMakeLists.txt", "extra.cmake"})
        EXPECT_TRUE(heeftLog(wxLOG_Message, wxString(naam) + " won't be added since it is already in your selection list."));
    ASSERT_EQ(v.biebLijst->GetCount() + v.includeLijst->GetCount(), 2u);
    EXPECT_EQ(wxString::Format("%s|%d|%s|%s|%s|%d|%s|%s", v.biebLijst->GetString(0), v.biebLijst->IsChecked(0),
                               v.subDirPaden[0], v.subDirBiebNamen[0], v.includeLijst->GetString(0),
                               v.includeLijst->IsChecked(0), v.recenteLokaties.GetHistoryFile(0),
                               v.recenteLokaties.GetHistoryFile(1)),
              lib + "|1|" + lib + "|mylib|" + bestand + "|1|" + thuis + "/cmake|" + lib);

    // outside the output directory (said so); an empty name is taken as typed
    v.outputDirPicker->SetPath(lib);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("ander/CMakeLists.txt"));
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("", wxID_OK));
    ASSERT_EQ(v.biebLijst->GetCount(), 2u);
    EXPECT_EQ(v.subDirBiebNamen[1], "");
    EXPECT_EQ(toon(), ander + " lies outside the output directory: CMake's add_subdirectory needs a binary "
                              "directory for it.|1");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("derde/CMakeLists.txt"));
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("x", wxID_CANCEL));
    // a file of another name is refused even where the directory holds one
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("derde/build.txt"));
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    klik(VoegToeCMakeSubDirID);
    EXPECT_TRUE(heeftLog(wxLOG_Error, "The selected dir does not contain a CMakeLists.txt file."));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("leeg/x.txt"));
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, maakBestand("cmake/GROOT.CMAKE"));
    EXPECT_FALSE(v.subDirHeeftCMakeLists || v.includeIsCMake || aan(VoegToeCMakeIncludeID));
}

// A fault is shown with the system's reason on the next line and keeps the
// text (the file itself is the writer's concern); Cancel touches nothing.
TEST_F(Uitvoer, SaveFaultsShowTheErrorWithItsReasonAndKeepTheText)
{
    start();
    KlavermolVenster& v = venster();
    v.zetUitvoer("x");
    const wxString pad = thuis + "/bestaat/niet/CMakeLists.txt", doel = thuis + "/CMakeLists.txt";
    std::ofstream(doel.ToStdString()) << "oud";
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(pad, thuis, "CMakeLists.txt"));
    EXPECT_EQ(logMet(wxLOG_Error, ""), std::vector<wxString>{"Failed to open output file " + pad
                                                             + " for writing to.\nNo such file or directory"});
    EXPECT_EQ(v.uitvoerTekst->GetValue(), "x");
    wxTEST_DIALOG(klik(wxID_SAVE), wxExpectModal<wxFileDialog>("", wxID_CANCEL));
    EXPECT_EQ(leesBytes(doel), "oud");
}

// What klavermol-cli prints for these arguments.
static std::string cliTekst(const std::string& argumenten)
{
    std::string uit;
    if (FILE* pijp = popen((std::string(KLAVERMOL_BIN_DIR) + "/klavermol-cli " + argumenten + " 2>/dev/null").c_str(), "r")) {
        for (int c; (c = std::fgetc(pijp)) != EOF;)
            uit += static_cast<char>(c);
        pclose(pijp);
    }
    return uit;
}

// States reached through the window, every kind, the location typed, browsed
// or reached with Back, one entry unchecked: Execute shows what klavermol-cli
// prints for the same state. A library's probe sets the output directory.
TEST_F(Uitvoer, ExecuteShowsWhatTheCommandLineProgramPrintsForTheSameState)
{
    wxSetEnv("SOURCE_DATE_EPOCH", "1599485122");
    const std::vector<wxString> mappen = {"boom", "boom/a", "boom/a/b", "boom/c"};
    const std::vector<wxString> namen = {"x.c", "y.cpp", "z.h", "w.hpp", "s.S"};
    std::mt19937 kans(2);
    for (const wxString& map : mappen)
        for (std::size_t i = 0; i < 2; ++i)
            maakBestand(map + "/" + map.AfterLast('/') + namen[kans() % namen.size()]);
    start();
    KlavermolVenster& v = venster();
    const auto metQuotes = [](const wxString& pad) { return "'" + pad.ToStdString() + "'"; };
    const char* const soorten[] = {"project", "library", "include"};
    const std::pair<int, const char*> families[] = {
        {VoegCBestandenToeID, " --c"}, {VoegCPPBestandenToeID, " --cpp"}, {VoegHBestandenToeID, " --h"}, {VoegSBestandenToeID, " --asm"}};
    const int wegen[] = {1, 0, 2, 2, 1, 1}; // typing is slow: once
    for (int ronde = 0; ronde < 6; ++ronde) {
        const int soort = ronde % 3, hoe = wegen[ronde];
        const int modus = 1 + static_cast<int>(kans() % 2);
        const wxString map = thuis + "/" + mappen[kans() % mappen.size()];
        SCOPED_TRACE(testing::Message() << "round " << ronde << ": kind " << soort << ", mode " << modus << ", "
                                        << map.utf8_string() << ", way " << hoe);
        klik(wxID_CLEAR);
        kiesRij(v.uitvoerSoortKeuze, soort);
        v.voegToeModeKeuze->SetSelection(modus);
        std::string opties;
        for (const auto& [id, optie] : families) {
            const bool aan = kans() % 2 == 0 || id == VoegCBestandenToeID;
            if (aan != v.GetMenuBar()->IsChecked(id))
                opdracht(wxEVT_CHECKBOX, id);
            opties += aan ? optie : "";
        }
        if (soort == 0) // a project keeps the output directory the user gives it
            v.outputDirPicker->SetPath(thuis + "/" + mappen[kans() % mappen.size()]);
        if (hoe == 0)
            typIn(v.vindBestandenInDirs->GetTextCtrl(), map + "/");
        else
            kiesZoekMap(map);
        if (hoe == 2 && aan(wxID_BACKWARD))
            klikOp(v.FindWindow(wxID_BACKWARD)); // somewhere in the history
        const wxString gezocht = v.vindBestandenInDirs->GetPath();
        if (hoe != 2) // and a library's probe set the output directory
            ASSERT_EQ(gezocht + (soort == 1 ? "|" + v.outputDirPicker->GetPath() : ""), map + (soort == 1 ? "|" + map : ""));
        ASSERT_TRUE(aan(wxID_ADD));
        klikOp(v.FindWindow(wxID_ADD));
        const unsigned int uit = kans() % v.bestandSelektieLijst->GetCount(); // one entry left out
        v.bestandSelektieLijst->Check(uit, false);
        opties += " -x " + metQuotes(v.bronSelektie.geef(uit));
        klikOp(v.FindWindow(wxID_APPLY));
        klikOp(v.FindWindow(wxID_APPLY)); // the second run replaces the first
        const std::string cli = cliTekst(std::string("-k ") + soorten[soort] + " -m "
                                         + (modus == 1 ? "directory" : "recursive") + opties + " -o "
                                         + metQuotes(v.outputDirPicker->GetPath()) + " " + metQuotes(gezocht));
        EXPECT_EQ(v.uitvoerTekst->GetValue().utf8_string(), cli);
    }
    wxUnsetEnv("SOURCE_DATE_EPOCH");
}
