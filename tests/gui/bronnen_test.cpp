// Add in every mode: the question above 10 files, duplicates, the status
// line, the probe behind Add's enabling, and the file-type switches.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
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

    static wxString totaal(int n) { return wxString::Format("A total of %d files and dirs was found in  and added to the selection.", n); }
};

// The menu flips a switch whatever its event says; filter, status text and probe follow; mode 1 collects by pattern.
TEST_F(Bronnen, SwitchesMakeTheFilterAndModeOneCollectsPatternByPattern)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/b.hpp", "d/a.cxx", "d/z.c", "d/k.h", "d/m.cpp", "d/sub/diep.c", "d/.verborgen.c"})
        maakBestand(naam);
    start();
    KlavermolVenster& v = venster();
    v.voegToeModeKeuze->SetSelection(1);
    kiesZoekMap(d);
    const auto filter = [&] { return wxString::Format("%d%d|", v.GetMenuBar()->IsChecked(VoegSBestandenToeID), aan(wxID_ADD))
                                   + v.GetStatusBar()->GetStatusText(1) + "|" + v.bestandTypeFilter; };
    opdracht(wxEVT_MENU, VoegSBestandenToeID, 0);
    EXPECT_EQ(filter(), "10|Current filter searches for: S |ASM files (*.s)|*.s;*.S");
    opdracht(wxEVT_CHECKBOX, VoegCPPBestandenToeID);
    EXPECT_TRUE(aan(wxID_ADD)); // the switch's probe found the C++ files
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter, "CPP files (*.cpp)|*.cpp;*.cxx|H files (*.h[pp])|*.h;*.hpp|ASM files (*.s)|*.s;*.S");
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    EXPECT_EQ(filter(), "11|Current filter searches for: C  CPP  H  S |C files (*.c)|*.c|H files (*.h)|*.h|CPP files (*.cpp)|"
                        "*.cpp;*.cxx|H files (*.hpp)|*.hpp|ASM files (*.s)|*.s;*.S");
    klik(wxID_ADD);
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/z.c", d + "/k.h", d + "/m.cpp", d + "/a.cxx", d + "/b.hpp"}));
    EXPECT_FALSE(v.bestandSelektieLijst->IsFrozen());
}

// Ten files are added at once, more ask first; known ones keep place and mark and are reported, bad names said.
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

    maakBestand("d/f10.c"), maakBestand("d/a;b.c"); // found, then left out; the other is left out by the walk
    std::ofstream(thuis.ToStdString() + "/d/caf\xe9.c") << "\n";
    const auto vraag = [](int antwoord) {
        return beantwoordVraag("12 files were found and will be added to the selection list.\nDo you want to proceed?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_NO));
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(status() + wxString::Format("|%zu", logRegels(wxLOG_Warning).size()), totaal(0) + "|0");

    v.selektieBoek->SetSelection(2);
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_YES));
    eerst.push_back(d + "/f10.c");
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(wxString::Format("%d%d%d", v.bestandSelektieLijst->IsChecked(0), v.bestandSelektieLijst->IsChecked(10),
                               v.selektieBoek->GetSelection()), "010");
    EXPECT_TRUE(heeftLog(wxLOG_Message, d + "/f03.c won't be added since it is already in your selection list."));
    EXPECT_EQ(wxString::Format("%zu %zu ", logMet(wxLOG_Message, d + "/").size(), logMet(wxLOG_Warning, "2 names were left out: ").size())
                  + status(), "10 1 " + totaal(1));
    for (int i = 0; i < 20000; ++i) // more than one slice of the store's intake
        std::ofstream(wxString::Format("%s/d/g%05d.c", thuis, i).utf8_string()) << "\n";
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), beantwoordVraag("20012 files were found and will be added to the selection "
                  "list.\nDo you want to proceed?", "More than 10 files found", wxID_YES));
    EXPECT_EQ(wxString::Format("%zu ", v.bronSelektie.aantal()) + status(), "20011 " + totaal(20000));
    v.PopStatusText(0); // one level down: neither an Add's line nor the welcome
    EXPECT_EQ(status(), onder);
}

// Mode 0 asks with the wildcard; cancelled or without a mode Add still shows page 0 and records the location.
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
            return dlg.SetPath(pad), pad.empty() ? wxID_CANCEL : wxID_OK;
        });
    };
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    v.vindBestandenInDirs->SetPath(thuis + "/d"), v.voegToeModeKeuze->SetSelection(0), v.selektieBoek->SetSelection(1);
    const auto stand = [&] { return wxString::Format("%zu|%d|", lijst().size(), v.selektieBoek->GetSelection()) + v.recenteLokaties.GetHistoryFile(0); };
    wxTEST_DIALOG(klik(wxID_ADD), kies("", ""));
    EXPECT_EQ(stand() + status(), "0|0|" + d + totaal(0));

    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    wxTEST_DIALOG(klik(wxID_ADD), kies("C files (*.c)|*.c|H files (*.h)|*.h", bestand));
    EXPECT_EQ(lijst(), std::vector<wxString>{bestand});
    EXPECT_EQ(status(), totaal(1));

    v.voegToeModeKeuze->SetSelection(wxNOT_FOUND), v.selektieBoek->SetSelection(2), v.recenteLokaties.AddFileToHistory(thuis);
    klik(wxID_ADD); // no dialog, nothing collected
    EXPECT_EQ(stand(), "1|0|" + d);

    v.vindBestandenInDirs->SetPath(thuis + "/bestaat-niet");
    v.voegToeModeKeuze->SetSelection(1);
    klik(wxID_ADD); // a location that is gone is said, not recorded
    EXPECT_EQ(status() + "|" + v.recenteLokaties.GetHistoryFile(0), "No such directory: " + thuis + "/bestaat-niet|" + d);
}

// Typed: a location is taken on Enter, once; a non-directory is said; a project keeps its output directory.
TEST_F(Bronnen, ATypedLocationIsTakenOnceAndAProjectKeepsItsOutputDirectory)
{
    const wxString d = thuis + "/d", bestand = maakBestand("d/a.cpp");
    start();
    KlavermolVenster& v = venster();
    typIn(v.vindBestandenInDirs->GetTextCtrl(), d + "/");
    typIn(v.vindBestandenInDirs->GetTextCtrl(), bestand);
    EXPECT_EQ(status(), "No such directory: " + bestand);
    EXPECT_EQ(wxString::Format("%s|%zu|%s", v.vindBestandenInDirs->GetPath(), v.lokatieGeschiedenis.geefAantal(),
                               v.outputDirPicker->GetPath()), d + "|1|" + thuis);
}
