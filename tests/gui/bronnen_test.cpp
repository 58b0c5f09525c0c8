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

namespace {

// Checks the file dialog of mode 0, then picks `pad` or cancels.
Antwoord<wxFileDialog> kiesBestanden(const wxString& map, const wxString& wildcard, const wxString& pad = wxString())
{
    return Antwoord<wxFileDialog>([=](wxFileDialog& dlg) {
        EXPECT_EQ(dlg.GetMessage(), "Please select one or more files from the current directory.");
        EXPECT_EQ(dlg.GetDirectory(), map);
        EXPECT_EQ(dlg.GetWildcard(), wildcard);
        if (pad.empty())
            return wxID_CANCEL;
        dlg.SetPath(pad);
        return wxID_OK;
    });
}

} // namespace

class Bronnen : public ProgrammaTest
{
protected:
    void zoekIn(const wxString& map, int modus)
    {
        venster().vindBestandenInDirs->SetPath(map);
        venster().voegToeModeKeuze->SetSelection(modus);
    }

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
// status text follow the switches in their fixed order. Mode 1 collects
// pattern by pattern, unsorted; hidden files and sub-directories stay out.
TEST_F(Bronnen, SwitchesMakeTheFilterAndModeOneCollectsPatternByPattern)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/b.hpp", "d/a.cxx", "d/z.c", "d/k.h", "d/m.cpp", "d/sub/diep.c", "d/.verborgen.c"})
        maakBestand(naam);
    start();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_MENU, VoegSBestandenToeID, 0);
    EXPECT_TRUE(v.GetMenuBar()->IsChecked(VoegSBestandenToeID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: S ");
    EXPECT_EQ(v.bestandTypeFilter, "ASM files (*.s)|*.s;*.S");
    opdracht(wxEVT_CHECKBOX, VoegCPPBestandenToeID);
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter, "CPP files (*.cpp)|*.cpp;*.cxx|H files (*.h[pp])|*.h;*.hpp|ASM files (*.s)|*.s;*.S");
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter,
              "C files (*.c)|*.c|H files (*.h)|*.h|CPP files (*.cpp)|*.cpp;*.cxx|H files (*.hpp)|*.hpp|ASM files "
              "(*.s)|*.s;*.S");
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: C  CPP  H  S ");
    zoekIn(d, 1);
    klik(wxID_ADD);
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/z.c", d + "/k.h", d + "/m.cpp", d + "/a.cxx", d + "/b.hpp"}));
}

// Ten found files are added at once; eleven ask first, also when most of
// them are known. Known entries keep their place and check mark, each is
// reported, and each Add replaces its own status line.
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
    ASSERT_EQ(v.bestandSelektieLijst->GetCount(), 10u);
    EXPECT_EQ(status(), totaal(10));
    const std::vector<wxString> eerst = lijst();
    v.bestandSelektieLijst->Check(0, false);

    maakBestand("d/f10.c");
    const auto vraag = [](int antwoord) {
        return beantwoordVraag("11 files were found and will be added to the selection list.\nDo you want to proceed?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_NO));
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(status(), totaal(0));

    v.selektieBoek->SetSelection(2);
    wxTEST_DIALOG(klikOp(v.FindWindow(wxID_ADD)), vraag(wxID_YES));
    std::vector<wxString> verwacht = eerst;
    verwacht.push_back(d + "/f10.c");
    EXPECT_EQ(lijst(), verwacht);
    EXPECT_FALSE(v.bestandSelektieLijst->IsChecked(0));
    EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(10));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(logMet(wxLOG_Message, d + "/").size(), 10u);
    EXPECT_TRUE(heeftLog(wxLOG_Message, d + "/f03.c won't be added since it is already in your selection list."));
    EXPECT_EQ(status(), totaal(1));
    v.PopStatusText(0); // one level down: neither an Add's line nor the welcome
    EXPECT_EQ(status(), onder);
}

// Mode 0 asks for files with the wildcard; with only headers on there is
// none. A cancelled dialog and no mode at all still finish the command:
// page 0 shown, location recorded.
TEST_F(Bronnen, EveryModeFinishesTheCommand)
{
    const wxString d = thuis + "/d";
    const wxString bestand = maakBestand("d/gekozen.c");
    start();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    zoekIn(d, 0);
    v.selektieBoek->SetSelection(1);
    wxTEST_DIALOG(klik(wxID_ADD), kiesBestanden(d + "/", ""));
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(status(), totaal(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");

    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    wxTEST_DIALOG(klik(wxID_ADD), kiesBestanden(d + "/", "C files (*.c)|*.c|H files (*.h)|*.h", bestand));
    EXPECT_EQ(lijst(), std::vector<wxString>{bestand});
    EXPECT_EQ(status(), totaal(1));

    v.voegToeModeKeuze->SetSelection(wxNOT_FOUND);
    v.selektieBoek->SetSelection(2);
    v.recenteLokaties.AddFileToHistory(thuis);
    klik(wxID_ADD); // no dialog, nothing collected
    EXPECT_EQ(lijst().size(), 1u);
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");

    // a location that is gone: said so, and not remembered
    zoekIn(thuis + "/bestaat-niet", 1);
    klik(wxID_ADD);
    EXPECT_EQ(status(), "No such directory: " + thuis + "/bestaat-niet");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");
}

// Typed by hand: a location is taken on Enter, once, in the normal form; a
// path that is no directory is said and changes nothing. The output
// directory follows a library's location, never a project's.
TEST_F(Bronnen, ATypedLocationIsTakenOnceAndTheKindDecidesTheOutputDirectory)
{
    const wxString d = thuis + "/d";
    maakBestand("d/a.cpp");
    maakBestand("d/b.hpp");
    const wxString p = maakMap("p");
    start();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_CHECKBOX, VoegCPPBestandenToeID);
    opdracht(wxEVT_CHECKBOX, VoegHBestandenToeID);
    v.voegToeModeKeuze->SetSelection(1);
    wxTextCtrl* veld = v.vindBestandenInDirs->GetTextCtrl();

    kiesRij(v.uitvoerSoortKeuze, 1);
    typIn(veld, d + "/");
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), d);
    EXPECT_EQ(v.outputDirPicker->GetPath(), d);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 1u);
    EXPECT_TRUE(v.heeftCPPBestanden);
    EXPECT_FALSE(v.heeftHBestanden); // the "*.h" answer replaced the "*.hpp" one

    typIn(veld, d + "/a.cpp");
    EXPECT_EQ(status(), "No such directory: " + d + "/a.cpp");
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), d);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 1u);

    kiesRij(v.uitvoerSoortKeuze, 0);
    typIn(veld, p);
    EXPECT_EQ(v.outputDirPicker->GetPath(), d);
    EXPECT_FALSE(aan(wxID_ADD));
}
