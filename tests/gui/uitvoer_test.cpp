// The output side of the main window: kind and names, the sub-directory and
// include lists, saving.
#include "programma.h"
#include "storing.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/dir.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/testing.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <fstream>
#include <iterator>

namespace {

// Answers the library-name question with a name (or cancels).
class GeefNaam : public wxExpectModalBase<wxTextEntryDialog, GeefNaam>
{
public:
    explicit GeefNaam(const wxString& naam, int antwoord = wxID_OK) : naam(naam), antwoord(antwoord) {}

protected:
    int OnInvoked(wxTextEntryDialog* dlg) const override
    {
        EXPECT_EQ(dlg->GetValue(), "");
        dlg->SetValue(naam);
        return antwoord;
    }

private:
    wxString naam;
    int antwoord;
};

// Picks a file name in the save dialog after checking what it proposes.
class BewaarAls : public wxExpectModalBase<wxFileDialog, BewaarAls>
{
public:
    BewaarAls(const wxString& pad, const wxString& wildcard, const wxString& map, const wxString& naam)
        : pad(pad), wildcard(wildcard), map(map), naam(naam) {}

protected:
    int OnInvoked(wxFileDialog* dlg) const override
    {
        EXPECT_EQ(dlg->GetWildcard(), wildcard);
        EXPECT_EQ(dlg->GetDirectory(), map);
        EXPECT_EQ(dlg->GetFilename(), naam);
        EXPECT_TRUE(dlg->HasFlag(wxFD_SAVE));
        EXPECT_TRUE(dlg->HasFlag(wxFD_OVERWRITE_PROMPT));
        dlg->SetPath(pad);
        return wxID_OK;
    }

private:
    wxString pad, wildcard, map, naam;
};

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
        wxCommandEvent e(wxEVT_CHOICE, UitvoerSoortKeuzeID);
        e.SetInt(soort);
        venster().ProcessWindowEvent(e);
    }

    void voegBronnenToe(const std::vector<wxString>& paden)
    {
        std::size_t overgeslagen = 0;
        venster().voegBronnenToe(wxArrayString(paden.size(), paden.data()), overgeslagen);
    }

    void typNaam(const wxString& naam) { venster().projektLibIncludeNaam->SetValue(naam); }

    void klik(int id)
    {
        wxCommandEvent e(wxEVT_BUTTON, id);
        venster().ProcessWindowEvent(e);
        wachtOpVenster();
    }

    void kiesBestand(wxFilePickerCtrl* picker, int id, const wxString& pad)
    {
        picker->SetPath(pad);
        wxFileDirPickerEvent e(wxEVT_FILEPICKER_CHANGED, picker, id, pad);
        venster().ProcessWindowEvent(e);
    }

    wxString maakMap(const wxString& naam)
    {
        const wxString pad = thuis + "/" + naam;
        wxFileName::Mkdir(pad, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        return pad;
    }

    wxString maakBestand(const wxString& pad)
    {
        std::ofstream(pad.ToStdString()) << "\n";
        return pad;
    }
};

TEST_F(Uitvoer, TheFileNameFollowsTheKindAndTheName)
{
    start();
    KlavermolVenster& v = venster();
    typNaam("Common");
    kiesSoort(2);
    EXPECT_EQ(v.naamKader->GetLabel(), "Include name");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Common.cmake");
    typNaam("Engine");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Engine.cmake");
    kiesSoort(0);
    EXPECT_EQ(v.naamKader->GetLabel(), "Project name");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");
    kiesSoort(1);
    EXPECT_EQ(v.naamKader->GetLabel(), "Library name");
    typNaam("mylib"); // not the include kind: the file name stays
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");

    // "use the output directory's name"
    v.outputDirPicker->SetPath(maakMap("work/src/engine"));
    kiesSoort(2);
    klik(GebruikSourceDirNaamID);
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "engine");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "engine.cmake");
}

TEST_F(Uitvoer, AddingCMakeSubDirectories)
{
    start();
    KlavermolVenster& v = venster();
    const wxString lib = maakMap("lib");
    const wxString ander = maakMap("ander");
    maakBestand(lib + "/CMakeLists.txt");
    maakBestand(ander + "/CMakeLists.txt");

    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, lib + "/CMakeLists.txt");
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), GeefNaam("mylib"));
    ASSERT_EQ(v.biebLijst->GetCount(), 1u);
    EXPECT_EQ(v.biebLijst->GetString(0), lib);
    EXPECT_TRUE(v.biebLijst->IsChecked(0));
    EXPECT_EQ(v.subDirPaden[0], lib);
    EXPECT_EQ(v.subDirBiebNamen[0], "mylib");
    EXPECT_EQ(v.selektieBoek->GetSelection(), 1);
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), "CMakeLists.txt was added to your selection list.");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), lib);

    // the same directory again: refused without a question
    klik(VoegToeCMakeSubDirID);
    EXPECT_TRUE(heeftLog(wxLOG_Message, "CMakeLists.txt won't be added since it is already in your selection list."));
    EXPECT_EQ(v.biebLijst->GetCount(), 1u);

    // another directory: a second row; an empty name is taken as typed
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, ander + "/CMakeLists.txt");
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), GeefNaam(""));
    ASSERT_EQ(v.biebLijst->GetCount(), 2u);
    EXPECT_EQ(v.subDirBiebNamen[1], "");

    // cancelling the name question adds nothing
    const wxString derde = maakMap("derde");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand(derde + "/CMakeLists.txt"));
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), GeefNaam("x", wxID_CANCEL));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);

    // a file of another name is refused even where the directory holds one
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand(derde + "/build.txt"));
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    klik(VoegToeCMakeSubDirID);
    EXPECT_TRUE(heeftLog(wxLOG_Error, "The selected dir does not contain a CMakeLists.txt file."));
    EXPECT_EQ(v.biebLijst->GetCount(), 2u);
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, maakBestand(maakMap("leeg") + "/x.txt"));
    EXPECT_FALSE(v.subDirHeeftCMakeLists);
}

TEST_F(Uitvoer, AddingIncludeFiles)
{
    start();
    KlavermolVenster& v = venster();
    const wxString map = maakMap("cmake");
    const wxString bestand = maakBestand(map + "/extra.cmake");
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, bestand);
    EXPECT_TRUE(v.includeIsCMake);
    klik(VoegToeCMakeIncludeID);
    ASSERT_EQ(v.includeLijst->GetCount(), 1u);
    EXPECT_EQ(v.includeLijst->GetString(0), bestand);
    EXPECT_TRUE(v.includeLijst->IsChecked(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 2);
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), "extra.cmake was added to your selection list.");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), map);

    klik(VoegToeCMakeIncludeID);
    EXPECT_TRUE(heeftLog(wxLOG_Message, "extra.cmake won't be added since it is already in your selection list."));
    EXPECT_EQ(v.includeLijst->GetCount(), 1u);

    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, maakBestand(map + "/GROOT.CMAKE"));
    EXPECT_FALSE(v.includeIsCMake);
    v.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_FALSE(v.FindWindow(VoegToeCMakeIncludeID)->IsEnabled());
}

TEST_F(Uitvoer, SaveWritesUtf8AndItsWildcardFollowsTheProjectTypeNotTheKind)
{
    start();
    KlavermolVenster& v = venster();
    const wxString map = maakMap("uit");
    v.outputDirPicker->SetPath(map);
    v.zetUitvoer(wxString::FromUTF8("set(Naam Caf\xC3\xA9)\n"));
    wxTEST_DIALOG(klik(wxID_SAVE), BewaarAls(map + "/CMakeLists.txt", "TXT files (*.txt)|*.txt", map, "CMakeLists.txt"));
    EXPECT_EQ(leesBytes(map + "/CMakeLists.txt"), "set(Naam Caf\xC3\xA9)\n"); // no byte-order mark
    EXPECT_FALSE(v.uitvoerTekst->IsEmpty());

    v.zetUitvoer("x");
    typNaam("Common");
    kiesSoort(2);
    v.cmakeProjektKeuze->SetSelection(1);
    wxTEST_DIALOG(klik(wxID_SAVE), BewaarAls(map + "/Common.cmake",
                                             "TXT files (*.txt)|*.txt|CMake files (*.cmake)|*.cmake", map,
                                             "Common.cmake"));
    v.cmakeProjektKeuze->SetSelection(0);
    wxTEST_DIALOG(klik(wxID_SAVE), BewaarAls(map + "/Common.cmake", "TXT files (*.txt)|*.txt", map, "Common.cmake"));
    EXPECT_EQ(leesBytes(map + "/Common.cmake"), "x");
}

TEST_F(Uitvoer, SaveFaultsShowTheErrorAndKeepTheOldFilesAndTheText)
{
    start();
    KlavermolVenster& v = venster();
    const wxString tekst('x', 100000);
    v.zetUitvoer(tekst);
    const wxString map = v.outputDirPicker->GetPath();
    const wxString alleen = maakBestand(map + "/alleen.txt");
    wxChmod(alleen, 0444);
    const wxString doel = map + "/CMakeLists.txt";
    std::ofstream(doel.ToStdString()) << "oud";
    const auto bewaar = [&](const wxString& pad) {
        wxTEST_DIALOG(klik(wxID_SAVE), BewaarAls(pad, "TXT files (*.txt)|*.txt", map, "CMakeLists.txt"));
        EXPECT_TRUE(heeftLog(wxLOG_Error, "Failed to open output file " + pad + " for writing to.")) << pad;
    };
    bewaar(thuis + "/bestaat/niet/CMakeLists.txt");
    bewaar(alleen);
    {
        VolleSchijf vol;
        bewaar(doel);
    }
    EXPECT_EQ(leesBytes(alleen), "\n");
    EXPECT_EQ(leesBytes(doel), "oud");
    wxArrayString bestanden;
    wxDir::GetAllFiles(map, &bestanden, "CMakeLists.txt*", wxDIR_FILES | wxDIR_HIDDEN);
    EXPECT_EQ(bestanden.size(), 1u);
    EXPECT_EQ(v.uitvoerTekst->GetValue(), tekst);

    // cancelling the dialog touches nothing
    wxTEST_DIALOG(klik(wxID_SAVE), wxExpectModal<wxFileDialog>("", wxID_CANCEL));
    EXPECT_EQ(leesBytes(doel), "oud");
}

TEST_F(Uitvoer, ExecuteTwiceGivesTheTextOnceFromTheCheckedEntries)
{
    wxSetEnv("SOURCE_DATE_EPOCH", "1599485122");
    start();
    KlavermolVenster& v = venster();
    v.outputDirPicker->SetPath("/p");
    voegBronnenToe({"/p/main.c", "/p/src/a.c", "/p/src/weg.c", "/p/src/b.c", "/p/inc/a.h"});
    v.bestandSelektieLijst->Check(2, false);
    typNaam("Demo");
    klik(wxID_APPLY);
    const wxString eerste = v.uitvoerTekst->GetValue();
    klik(wxID_APPLY);
    EXPECT_EQ(v.uitvoerTekst->GetValue(), eerste);
    EXPECT_TRUE(eerste.StartsWith("## Klavermol generated CMakelists Project file\n"
                                  "## File generated on : 2020-09-07 13:25:22.\n"));
    EXPECT_NE(eerste.Find("set(SRCS1 a.c b.c )"), wxNOT_FOUND);
    EXPECT_EQ(eerste.Find("weg.c"), wxNOT_FOUND);
    EXPECT_EQ(v.werklijsten.dirLijst.size(), 3u);

    kern::Werklijsten werk;
    wxString verwacht;
    kern::maakProjekt(v.geefGeneratorInvoer(), werk, verwacht);
    EXPECT_EQ(eerste, verwacht);

    kiesSoort(1);
    klik(wxID_APPLY);
    EXPECT_TRUE(v.uitvoerTekst->GetValue().StartsWith("## Klavermol generated CMakelists add_library file\n"));
    kiesSoort(2);
    klik(wxID_APPLY);
    EXPECT_TRUE(v.uitvoerTekst->GetValue().StartsWith("## Klavermol generated Demo include file\n"));
    wxUnsetEnv("SOURCE_DATE_EPOCH");
}

TEST_F(Uitvoer, LibrariesAndIncludeFilesReachTheProject)
{
    start();
    KlavermolVenster& v = venster();
    const wxString lib = maakMap("lib");
    maakBestand(lib + "/CMakeLists.txt");
    kiesBestand(v.vindCMakeSubDir, VindCMakeSubDirID, lib + "/CMakeLists.txt");
    wxTEST_DIALOG(klik(VoegToeCMakeSubDirID), GeefNaam("mylib"));
    kiesBestand(v.vindCMakeIncludeDir, VindCMakeIncludeDirID, maakBestand(maakMap("cmake") + "/extra.cmake"));
    klik(VoegToeCMakeIncludeID);
    v.outputDirPicker->SetPath(thuis);
    voegBronnenToe({thuis + "/src/a.c"});
    klik(wxID_APPLY);
    const wxString tekst = v.uitvoerTekst->GetValue();
    EXPECT_NE(tekst.Find("set(Lib0Path ${PROJECT_SOURCE_DIR}/lib)\nadd_subdirectory(${Lib0Path})\n"), wxNOT_FOUND);
    EXPECT_NE(tekst.Find("set(Include0Path ${PROJECT_SOURCE_DIR}/cmake)\ninclude(${Include0Path}/extra.cmake)\n"),
              wxNOT_FOUND);
    EXPECT_NE(tekst.Find("target_link_libraries(${ProjectName} mylib )"), wxNOT_FOUND);

    v.biebLijst->Check(0, false);
    klik(wxID_APPLY);
    EXPECT_NE(v.uitvoerTekst->GetValue().Find("target_link_libraries(${ProjectName} )"), wxNOT_FOUND);
}
