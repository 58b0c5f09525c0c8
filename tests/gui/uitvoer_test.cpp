// The output side of the main window: kind and names, the lists, saving, and Execute against klavermol-cli.
#include "programma.h"
#include "storing.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <cstdio>
#include <fstream>
#include <random>

namespace {

// Picks `pad` in the save dialog after checking what it proposes.
Antwoord<wxFileDialog> bewaarAls(const wxString& pad, const wxString& map, const wxString& naam, const wxString& wildcard = "TXT files (*.txt)|*.txt")
{
    return Antwoord<wxFileDialog>([=](wxFileDialog& dlg) {
        EXPECT_EQ(dlg.GetWildcard() + "|" + dlg.GetDirectory() + "|" + dlg.GetFilename() + "|"
                      + (dlg.HasFlag(wxFD_SAVE) && dlg.HasFlag(wxFD_OVERWRITE_PROMPT) ? "1" : "0"),
                  wildcard + "|" + map + "|" + naam + "|1");
        dlg.SetPath(pad);
        return wxID_OK;
    });
}

// What klavermol-cli prints for these arguments.
std::string cliTekst(const std::string& argumenten)
{
    std::string uit;
    std::unique_ptr<FILE, int (*)(FILE*)> pijp(popen((KLAVERMOL_BIN_DIR "/klavermol-cli " + argumenten + " 2>/dev/null").c_str(), "r"), pclose);
    for (int c; pijp && (c = std::fgetc(pijp.get())) != EOF;)
        uit += static_cast<char>(c);
    return uit;
}

} // namespace

using Uitvoer = ProgrammaTest;

// Name box and file name follow kind and name; Save proposes them, writes the bytes, names a fault's reason.
TEST_F(Uitvoer, TheFileNameFollowsTheKindAndTheNameAndSaveProposesIt)
{
    start();
    KlavermolVenster& v = venster();
    const auto kiesSoort = [&](int soort) { v.uitvoerSoortKeuze->SetSelection(soort), opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, soort); };
    const wxString map = maakMap("engine"), doel = map + "/engine.cmake";
    v.outputDirPicker->SetPath(map);
    const struct { int soort; const char* naam; int knop; const char* verwacht; } stappen[] = {
        {2, "Common", 0, "Include name|Common.cmake"}, {-1, "Engine", 0, "Include name|Engine.cmake"},
        {0, "", 0, "Project name|CMakeLists.txt"}, {1, "mylib", 0, "Library name|CMakeLists.txt"},
        {2, "", GebruikSourceDirNaamID, "Include name|engine.cmake"}, {1, "", 0, "Library name|CMakeLists.txt"}};
    for (const auto& s : stappen) {
        if (s.soort >= 0)
            kiesSoort(s.soort);
        if (*s.naam != '\0')
            v.projektLibIncludeNaam->SetValue(s.naam);
        if (s.knop != 0)
            klik(s.knop);
        EXPECT_EQ(v.naamKader->GetLabel() + "|" + v.bestandNaamTekst->GetValue(), s.verwacht) << s.naam << s.soort;
    }
    v.zetUitvoer("set(Naam Caf\xC3\xA9)\n");
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(map + "/CMakeLists.txt", map, "CMakeLists.txt"));
    EXPECT_EQ(leesBestand((map + "/CMakeLists.txt").utf8_string()), "set(Naam Caf\xC3\xA9)\n");
    v.zetUitvoer("x");
    kiesSoort(2);
    v.cmakeProjektKeuze->SetSelection(1);
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(doel, map, "engine.cmake", "TXT files (*.txt)|*.txt|CMake files (*.cmake)|*.cmake"));
    v.cmakeProjektKeuze->SetSelection(0);
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(doel, map, "engine.cmake"));
    EXPECT_EQ(leesBestand(doel.utf8_string()), "x");
    v.zetUitvoer("y");
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(map + "/niet/x.cmake", map, "engine.cmake"));
    EXPECT_EQ(logMet(wxLOG_Error, ""), std::vector<wxString>{"Failed to open output file " + map
                                                             + "/niet/x.cmake for writing to.\nNo such file or directory"});
    wxTEST_DIALOG(klik(wxID_SAVE), wxExpectModal<wxFileDialog>("", wxID_CANCEL));
    EXPECT_EQ(v.uitvoerTekst->GetValue() + "|" + leesBestand(doel.utf8_string()), "y|x");
}

// A sub-directory's CMakeLists.txt and a CMake include file are added once; what cannot be added is said.
TEST_F(Uitvoer, AddingCMakeSubDirectoriesAndIncludeFiles)
{
    start();
    KlavermolVenster& v = venster();
    const auto kiesBestand = [&](wxFilePickerCtrl* picker, int id, const wxString& naam) {
        picker->SetPath(maakBestand(naam));
        wxFileDirPickerEvent e(wxEVT_FILEPICKER_CHANGED, picker, id, picker->GetPath());
        v.ProcessWindowEvent(e);
    };
    const auto geefNaam = [](const wxString& naam, int antwoord) { // typed after what the question starts with: nothing
        return Antwoord<wxTextEntryDialog>([=](wxTextEntryDialog& dlg) { return dlg.SetValue(dlg.GetValue() + naam), antwoord; });
    };
    const auto toon = [&] { return v.GetStatusBar()->GetStatusText(0) + wxString::Format("|%d", v.selektieBoek->GetSelection()); };
    const wxString lib = maakMap("lib"), ander = maakMap("ander"), bestand = thuis + "/cmake/extra.cmake";
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, "lib/CMakeLists.txt");
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("mylib", wxID_OK));
    EXPECT_EQ(toon(), "CMakeLists.txt was added to your selection list.|1");
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, "cmake/extra.cmake");
    EXPECT_TRUE(v.includeIsCMake);
    klik(VoegToeCMakeIncludeID);
    EXPECT_EQ(toon(), "extra.cmake was added to your selection list.|2");
    klik(VoegToeCMakeSubDirID), klik(VoegToeCMakeIncludeID); // again: refused without a question
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
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, "ander/CMakeLists.txt");
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("", wxID_OK));
    ASSERT_EQ(v.biebLijst->GetCount(), 2u);
    EXPECT_EQ(v.subDirBiebNamen[1] + toon(),
              ander + " lies outside the output directory: CMake's add_subdirectory needs a binary directory for it.|1");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, "derde/CMakeLists.txt");
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("x", wxID_CANCEL));
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, "derde/build.txt"); // refused though the directory holds one
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    klik(VoegToeCMakeSubDirID);
    EXPECT_TRUE(heeftLog(wxLOG_Error, "The selected dir does not contain a CMakeLists.txt file."));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, "leeg/x.txt");
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, "cmake/GROOT.CMAKE");
    EXPECT_FALSE(v.subDirHeeftCMakeLists || v.includeIsCMake || aan(VoegToeCMakeIncludeID));
}

// Execute shows what klavermol-cli prints for the state reached through the window, in every kind and way.
TEST_F(Uitvoer, ExecuteShowsWhatTheCommandLineProgramPrintsForTheSameState)
{
    wxSetEnv("SOURCE_DATE_EPOCH", "1599485122");
    const std::vector<wxString> mappen = {"boom", "boom/a", "boom/a/b", "boom/c"}, namen = {"x.c", "y.cpp", "z.h", "w.hpp", "s.S"};
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
        const int soort = ronde % 3, hoe = wegen[ronde], modus = 1 + static_cast<int>(kans() % 2);
        const wxString map = thuis + "/" + mappen[kans() % mappen.size()];
        SCOPED_TRACE(testing::Message() << "round " << ronde << ": kind " << soort << ", mode " << modus << ", " << map << ", way " << hoe);
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
        hoe == 0 ? typIn(v.vindBestandenInDirs->GetTextCtrl(), map + "/") : kiesZoekMap(map);
        if (hoe == 2 && aan(wxID_BACKWARD))
            klikOp(v.FindWindow(wxID_BACKWARD)); // somewhere in the history
        const wxString gezocht = v.vindBestandenInDirs->GetPath();
        if (hoe != 2) // and a library's probe set the output directory
            ASSERT_EQ(gezocht + (soort == 1 ? "|" + v.outputDirPicker->GetPath() : ""), map + (soort == 1 ? "|" + map : ""));
        klikOp(v.FindWindow(wxID_ADD));
        const unsigned int uit = kans() % v.bestandSelektieLijst->GetCount(); // one entry left out
        v.bestandSelektieLijst->Check(uit, false);
        opties += " -x " + metQuotes(v.bronSelektie.geef(uit));
        klikOp(v.FindWindow(wxID_APPLY));
        klikOp(v.FindWindow(wxID_APPLY)); // the second run replaces the first
        EXPECT_EQ(v.uitvoerTekst->GetValue().utf8_string(),
                  cliTekst(std::string("-k ") + soorten[soort] + " -m " + (modus == 1 ? "directory" : "recursive") + opties
                           + " -o " + metQuotes(v.outputDirPicker->GetPath()) + " " + metQuotes(gezocht)));
    }
    wxUnsetEnv("SOURCE_DATE_EPOCH");
}
