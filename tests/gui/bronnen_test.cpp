// Add in every mode: the question above 10 files, duplicates, the status
// line, the probe behind Add's enabling, and the file-type switches.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <fstream>

class Bronnen : public ProgrammaTest
{
protected:
    std::vector<wxString> lijst() const
    {
        std::vector<wxString> regels;
        for (unsigned int i = 0; i < venster().bestandSelektieLijst->GetCount(); ++i)
            regels.push_back(venster().bestandSelektieLijst->GetString(i));
        return regels;
    }

    wxString status() const { return venster().GetStatusBar()->GetStatusText(0); }

    static wxString totaal(int n)
    {
        return wxString::Format("A total of %d files and dirs was found in  and added to the selection.", n);
    }
};

// The menu flips the switch whatever its event says; the filter and the
// status text follow the switches in their fixed order, and each switch
// probes the location again. Mode 1 collects pattern by pattern, unsorted;
// hidden files and sub-directories stay out.
TEST_F(Bronnen, SwitchesMakeTheFilterAndModeOneCollectsPatternByPattern)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/b.hpp", "d/a.cxx", "d/z.c", "d/k.h", "d/m.cpp", "d/sub/diep.c", "d/.verborgen.c"})
        maakBestand(naam);
    start();
    KlavermolVenster& v = venster();
    v.voegToeModeKeuze->SetSelection(1);
    kiesZoekMap(d);
    opdracht(wxEVT_MENU, VoegSBestandenToeID, 0);
    EXPECT_TRUE(v.GetMenuBar()->IsChecked(VoegSBestandenToeID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: S ");
    EXPECT_EQ(v.bestandTypeFilter, "ASM files (*.s)|*.s;*.S");
    EXPECT_FALSE(aan(wxID_ADD));
    opdracht(wxEVT_CHECKBOX, VoegCPPBestandenToeID);
    EXPECT_TRUE(aan(wxID_ADD)); // the switch's probe found the C++ files
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter, "CPP files (*.cpp)|*.cpp;*.cxx|H files (*.h[pp])|*.h;*.hpp|ASM files (*.s)|*.s;*.S");
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter,
              "C files (*.c)|*.c|H files (*.h)|*.h|CPP files (*.cpp)|*.cpp;*.cxx|H files (*.hpp)|*.hpp|ASM files "
              "(*.s)|*.s;*.S");
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: C  CPP  H  S ");
    klik(wxID_ADD);
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/z.c", d + "/k.h", d + "/m.cpp", d + "/a.cxx", d + "/b.hpp"}));
    EXPECT_FALSE(v.bestandSelektieLijst->IsFrozen());
}

// Ten found files are added at once; eleven ask first, also when most are
// known. Known entries keep their place and check mark, each is reported,
// names CMake cannot name are said after the question, and each Add
// replaces its own status line.
TEST_F(Bronnen, AboveTenFilesAddAsksAndKnownFilesAreReported)
{
    const wxString d = thuis + "/d";
    maakBestand("d/template.c"); // the default exclusion term excludes nothing
    for (int i = 1; i < 10; ++i)
        maakBestand(wxString::Format("d/f%02d.c", i));
    start();
    KlavermolVenster& v = venster();
    const wxString welkom = status();
    v.PopStatusText(0);
    const wxString onder = status();
    v.PushStatusText(welkom, 0);

    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    v.voegToeModeKeuze->SetSelection(1);
    kiesZoekMap(d);
    klikOp(v.FindWindow(wxID_ADD)); // any dialog would fail the test
    EXPECT_EQ(status(), totaal(10));
    std::vector<wxString> eerst = lijst();
    ASSERT_EQ(eerst.size(), 10u);
    v.bestandSelektieLijst->Check(0, false);

    maakBestand("d/f10.c");
    maakBestand("d/a;b.c"); // found, then left out; the other is left out by the walk
    std::ofstream(thuis.ToStdString() + "/d/caf\xe9.c") << "\n";
    const auto vraag = [](int antwoord) {
        return beantwoordVraag("12 files were found and will be added to the selection list.\nDo you want to proceed?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_NO));
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(status(), totaal(0));
    EXPECT_TRUE(logRegels(wxLOG_Warning).empty());

    v.selektieBoek->SetSelection(2);
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_YES));
    eerst.push_back(d + "/f10.c");
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(wxString::Format("%d%d%d", v.bestandSelektieLijst->IsChecked(0), v.bestandSelektieLijst->IsChecked(10),
                               v.selektieBoek->GetSelection()), "010");
    EXPECT_EQ(logMet(wxLOG_Message, d + "/").size(), 10u);
    EXPECT_TRUE(heeftLog(wxLOG_Message, d + "/f03.c won't be added since it is already in your selection list."));
    EXPECT_EQ(logMet(wxLOG_Warning, "2 names were left out: ").size(), 1u);
    EXPECT_EQ(status(), totaal(1));
    v.PopStatusText(0); // one level down: neither an Add's line nor the welcome
    EXPECT_EQ(status(), onder);
}

// Mode 0 asks for files with the wildcard; with only headers on there is
// none. A cancelled dialog and no mode at all still finish the command:
// page 0 shown, location recorded. A location that is gone is said, not recorded.
TEST_F(Bronnen, EveryModeFinishesTheCommand)
{
    const wxString d = thuis + "/d/";
    const wxString bestand = maakBestand("d/gekozen.c");
    start();
    KlavermolVenster& v = venster();
    const auto kies = [&](const wxString& wildcard, const wxString& pad) {
        return Antwoord<wxFileDialog>([=](wxFileDialog& dlg) {
            EXPECT_EQ(dlg.GetMessage() + "|" + dlg.GetDirectory() + "|" + dlg.GetWildcard(),
                      "Please select one or more files from the current directory.|" + d + "|" + wildcard);
            dlg.SetPath(pad);
            return pad.empty() ? wxID_CANCEL : wxID_OK;
        });
    };
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    v.vindBestandenInDirs->SetPath(thuis + "/d");
    v.voegToeModeKeuze->SetSelection(0);
    v.selektieBoek->SetSelection(1);
    wxTEST_DIALOG(klik(wxID_ADD), kies("", ""));
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(status(), totaal(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d);

    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    wxTEST_DIALOG(klik(wxID_ADD), kies("C files (*.c)|*.c|H files (*.h)|*.h", bestand));
    EXPECT_EQ(lijst(), std::vector<wxString>{bestand});
    EXPECT_EQ(status(), totaal(1));

    v.voegToeModeKeuze->SetSelection(wxNOT_FOUND);
    v.selektieBoek->SetSelection(2);
    v.recenteLokaties.AddFileToHistory(thuis);
    klik(wxID_ADD); // no dialog, nothing collected
    EXPECT_EQ(lijst().size(), 1u);
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d);

    v.vindBestandenInDirs->SetPath(thuis + "/bestaat-niet");
    v.voegToeModeKeuze->SetSelection(1);
    klik(wxID_ADD);
    EXPECT_EQ(status(), "No such directory: " + thuis + "/bestaat-niet");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d);
}

// Typed by hand: a location is taken on Enter, once; a path that is no
// directory is said and changes nothing; a project keeps its output directory.
TEST_F(Bronnen, ATypedLocationIsTakenOnceAndAProjectKeepsItsOutputDirectory)
{
    const wxString d = thuis + "/d", bestand = maakBestand("d/a.cpp");
    start();
    KlavermolVenster& v = venster();
    wxTextCtrl* veld = v.vindBestandenInDirs->GetTextCtrl();
    typIn(veld, d + "/");
    typIn(veld, bestand);
    EXPECT_EQ(status(), "No such directory: " + bestand);
    EXPECT_EQ(wxString::Format("%s|%zu|%s", v.vindBestandenInDirs->GetPath(), v.lokatieGeschiedenis.geefAantal(),
                               v.outputDirPicker->GetPath()), d + "|1|" + thuis);
}
