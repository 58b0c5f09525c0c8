// The output side of the main window: kind and names, the sub-directory and
// include lists, saving.
#include "programma.h"
#include "storing.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/dir.h>
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
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

namespace {

// Answers the library-name question, which starts empty, with a name.
Antwoord<wxTextEntryDialog> geefNaam(const wxString& naam, int antwoord = wxID_OK)
{
    return Antwoord<wxTextEntryDialog>([=](wxTextEntryDialog& dlg) {
        EXPECT_EQ(dlg.GetValue(), "");
        dlg.SetValue(naam);
        return antwoord;
    });
}

// Picks `pad` in the save dialog after checking what it proposes.
Antwoord<wxFileDialog> bewaarAls(const wxString& pad, const wxString& map, const wxString& naam,
                                 const wxString& wildcard = "TXT files (*.txt)|*.txt")
{
    return Antwoord<wxFileDialog>([=](wxFileDialog& dlg) {
        EXPECT_EQ(dlg.GetWildcard(), wildcard);
        EXPECT_EQ(dlg.GetDirectory(), map);
        EXPECT_EQ(dlg.GetFilename(), naam);
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

class Uitvoer : public ProgrammaTest
{
protected:
    void kiesSoort(int soort)
    {
        venster().uitvoerSoortKeuze->SetSelection(soort);
        opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, soort);
    }

    void kiesBestand(wxFilePickerCtrl* picker, int id, const wxString& pad)
    {
        picker->SetPath(pad);
        wxFileDirPickerEvent e(wxEVT_FILEPICKER_CHANGED, picker, id, pad);
        venster().ProcessWindowEvent(e);
    }
};

TEST_F(Uitvoer, TheFileNameFollowsTheKindAndTheNameAndSaveProposesIt)
{
    start();
    KlavermolVenster& v = venster();
    v.projektLibIncludeNaam->SetValue("Common");
    kiesSoort(2);
    EXPECT_EQ(v.naamKader->GetLabel(), "Include name");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Common.cmake");
    v.projektLibIncludeNaam->SetValue("Engine");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Engine.cmake");
    kiesSoort(0);
    EXPECT_EQ(v.naamKader->GetLabel(), "Project name");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");
    kiesSoort(1);
    EXPECT_EQ(v.naamKader->GetLabel(), "Library name");
    v.projektLibIncludeNaam->SetValue("mylib"); // not the include kind: the file name stays
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");

    // "use the output directory's name"
    v.outputDirPicker->SetPath(maakMap("work/src/engine"));
    kiesSoort(2);
    klik(GebruikSourceDirNaamID);
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "engine");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "engine.cmake");
    kiesSoort(1); // from the include kind straight to a library
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");

    // Save writes UTF-8 without a byte-order mark; its wildcard follows the
    // project type, not the kind
    const wxString map = maakMap("uit");
    v.outputDirPicker->SetPath(map);
    v.zetUitvoer(wxString::FromUTF8("set(Naam Caf\xC3\xA9)\n"));
    wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(map + "/CMakeLists.txt", map, "CMakeLists.txt"));
    EXPECT_EQ(leesBytes(map + "/CMakeLists.txt"), "set(Naam Caf\xC3\xA9)\n");
    EXPECT_FALSE(v.uitvoerTekst->IsEmpty());
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

TEST_F(Uitvoer, AddingCMakeSubDirectories)
{
    start();
    KlavermolVenster& v = venster();
    const wxString lib = maakMap("lib"), ander = maakMap("ander");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("lib/CMakeLists.txt"));
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("mylib"));
    ASSERT_EQ(v.biebLijst->GetCount(), 1u);
    EXPECT_EQ(v.biebLijst->GetString(0), lib);
    EXPECT_TRUE(v.biebLijst->IsChecked(0));
    EXPECT_EQ(v.subDirPaden[0], lib);
    EXPECT_EQ(v.subDirBiebNamen[0], "mylib");
    EXPECT_EQ(v.selektieBoek->GetSelection(), 1);
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), "CMakeLists.txt was added to your selection list.");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), lib);
    klik(VoegToeCMakeSubDirID); // again: refused without a question
    EXPECT_TRUE(heeftLog(wxLOG_Message, "CMakeLists.txt won't be added since it is already in your selection list."));
    EXPECT_EQ(v.biebLijst->GetCount(), 1u);

    // outside the output directory (said so); an empty name is taken as typed
    v.outputDirPicker->SetPath(lib);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("ander/CMakeLists.txt"));
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam(""));
    ASSERT_EQ(v.biebLijst->GetCount(), 2u);
    EXPECT_EQ(v.subDirBiebNamen[1], "");
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), ander + " lies outside the output directory: CMake's "
                                                          "add_subdirectory needs a binary directory for it.");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("derde/CMakeLists.txt"));
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), geefNaam("x", wxID_CANCEL));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);

    // a file of another name is refused even where the directory holds one
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("derde/build.txt"));
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    klik(VoegToeCMakeSubDirID);
    EXPECT_TRUE(heeftLog(wxLOG_Error, "The selected dir does not contain a CMakeLists.txt file."));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand("leeg/x.txt"));
    EXPECT_FALSE(v.subDirHeeftCMakeLists);

    // include files
    const wxString bestand = maakBestand("cmake/extra.cmake");
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, bestand);
    EXPECT_TRUE(v.includeIsCMake);
    klik(VoegToeCMakeIncludeID);
    ASSERT_EQ(v.includeLijst->GetCount(), 1u);
    EXPECT_EQ(v.includeLijst->GetString(0), bestand);
    EXPECT_TRUE(v.includeLijst->IsChecked(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 2);
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), "extra.cmake was added to your selection list.");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/cmake");
    klik(VoegToeCMakeIncludeID);
    EXPECT_TRUE(heeftLog(wxLOG_Message, "extra.cmake won't be added since it is already in your selection list."));
    EXPECT_EQ(v.includeLijst->GetCount(), 1u);
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, maakBestand("cmake/GROOT.CMAKE"));
    EXPECT_FALSE(v.includeIsCMake);
    EXPECT_FALSE(aan(VoegToeCMakeIncludeID));
}

TEST_F(Uitvoer, SaveFaultsShowTheErrorAndKeepTheOldFilesAndTheText)
{
    start();
    KlavermolVenster& v = venster();
    const wxString tekst('x', 100000);
    v.zetUitvoer(tekst);
    const wxString alleen = maakBestand("alleen.txt");
    wxChmod(alleen, 0444);
    const wxString doel = thuis + "/CMakeLists.txt";
    std::ofstream(doel.ToStdString()) << "oud";
    // each with the system's reason on the next line
    const auto bewaar = [&](const wxString& pad, const wxString& reden) {
        wxTEST_DIALOG(klik(wxID_SAVE), bewaarAls(pad, thuis, "CMakeLists.txt"));
        const std::vector<wxString> fouten = logMet(wxLOG_Error, "Failed to open output file " + pad + " for writing to.\n");
        ASSERT_EQ(fouten.size(), 1u) << pad;
        const wxString waarom = fouten[0].AfterFirst('\n');
        EXPECT_TRUE(reden.empty() ? !waarom.empty() : waarom == reden) << fouten[0];
    };
    bewaar(thuis + "/bestaat/niet/CMakeLists.txt", "No such file or directory");
    bewaar(alleen, "Permission denied");
    {
        VolleSchijf vol;
        bewaar(doel, ""); // the reason as the system gives it
    }
    EXPECT_EQ(leesBytes(alleen), "\n");
    EXPECT_EQ(leesBytes(doel), "oud");
    wxArrayString bestanden;
    wxDir::GetAllFiles(thuis, &bestanden, "CMakeLists.txt*", wxDIR_FILES | wxDIR_HIDDEN);
    EXPECT_EQ(bestanden.size(), 1u);
    EXPECT_EQ(v.uitvoerTekst->GetValue(), tekst);
    wxTEST_DIALOG(klik(wxID_SAVE), wxExpectModal<wxFileDialog>("", wxID_CANCEL)); // touches nothing
    EXPECT_EQ(leesBytes(doel), "oud");
}

namespace {

// What klavermol-cli prints for these arguments.
std::string cliTekst(const std::string& argumenten)
{
    const std::string aanroep = std::string(KLAVERMOL_BIN_DIR) + "/klavermol-cli " + argumenten + " 2>/dev/null";
    std::string uit;
    if (FILE* pijp = popen(aanroep.c_str(), "r")) {
        char blok[4096];
        for (std::size_t n; (n = std::fread(blok, 1, sizeof blok, pijp)) > 0;)
            uit.append(blok, n);
        pclose(pijp);
    }
    return uit;
}

std::string metQuotes(const wxString& pad)
{
    return "'" + pad.ToStdString() + "'";
}

} // namespace

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
    const char* const soorten[] = {"project", "library", "include"};
    const int familieIds[] = {VoegCBestandenToeID, VoegCPPBestandenToeID, VoegHBestandenToeID, VoegSBestandenToeID};
    const char* const familieOpties[] = {" --c", " --cpp", " --h", " --asm"};
    int vergeleken = 0;
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
        for (int f = 0; f < 4; ++f) {
            const bool aan = kans() % 2 == 0 || f == 0;
            if (aan != v.GetMenuBar()->IsChecked(familieIds[f]))
                opdracht(wxEVT_CHECKBOX, familieIds[f]);
            if (aan)
                opties += familieOpties[f];
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
        if (hoe != 2)
            ASSERT_EQ(gezocht, map);
        if (hoe != 2 && soort == 1)
            EXPECT_EQ(v.outputDirPicker->GetPath(), map);
        if (!aan(wxID_ADD))
            continue;
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
        ++vergeleken;
    }
    EXPECT_EQ(vergeleken, 6);
    wxUnsetEnv("SOURCE_DATE_EPOCH");
}
