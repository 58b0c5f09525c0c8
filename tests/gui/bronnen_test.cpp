// Add: collecting sources into the "Source Files" list in every mode, the
// question above 10 files, duplicates, the status line and the trace
// lines, the probe behind Add's enabling, and the file-type switches.
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

namespace {

// Checks the file dialog of mode 0, then picks `pad` or cancels.
class KiesBestanden : public wxExpectModalBase<wxFileDialog, KiesBestanden>
{
public:
    KiesBestanden(const wxString& map, const wxString& wildcard, const wxString& pad = wxString())
        : map(map), wildcard(wildcard), pad(pad) {}

protected:
    int OnInvoked(wxFileDialog* dlg) const override
    {
        EXPECT_EQ(dlg->GetMessage(), "Please select one or more files from the current directory.");
        EXPECT_EQ(dlg->GetDirectory(), map);
        EXPECT_EQ(dlg->GetWildcard(), wildcard);
        for (long stijl : {wxFD_OPEN, wxFD_FILE_MUST_EXIST, wxFD_CHANGE_DIR, wxFD_MULTIPLE})
            EXPECT_TRUE(dlg->HasFlag(stijl)) << stijl;
        if (pad.empty())
            return wxID_CANCEL;
        dlg->SetPath(pad);
        return wxID_OK;
    }

private:
    wxString map, wildcard, pad;
};

} // namespace

class Bronnen : public ProgrammaTest
{
protected:
    wxString maak(const wxString& pad)
    {
        const wxString vol = thuis + "/" + pad;
        wxFileName::Mkdir(wxFileName(vol).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream(vol.ToStdString()) << "\n";
        return vol;
    }

    void schakel(int id)
    {
        wxCommandEvent e(wxEVT_CHECKBOX, id);
        venster().ProcessWindowEvent(e);
    }

    void zoekIn(const wxString& map, int modus)
    {
        venster().vindBestandenInDirs->SetPath(map);
        venster().voegToeModeKeuze->SetSelection(modus);
    }

    void voegToe()
    {
        wxCommandEvent e(wxEVT_BUTTON, wxID_ADD);
        venster().ProcessWindowEvent(e);
    }

    std::vector<wxString> lijst() const
    {
        const wxArrayString regels = venster().bestandSelektieLijst->GetStrings();
        return std::vector<wxString>(regels.begin(), regels.end());
    }

    wxString status() const { return venster().GetStatusBar()->GetStatusText(0); }

    static wxString totaal(int n)
    {
        return wxString::Format("A total of %d files and dirs was found in  and added to the selection.", n);
    }
};

TEST_F(Bronnen, ModeOneCollectsPatternByPatternWithoutSorting)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/b.hpp", "d/a.cxx", "d/z.c", "d/k.h", "d/m.cpp", "d/sub/diep.c", "d/.verborgen.c"})
        maak(naam);
    start();
    for (int id : {VoegCBestandenToeID, VoegCPPBestandenToeID, VoegHBestandenToeID})
        schakel(id);
    zoekIn(d, 1);
    voegToe();
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/z.c", d + "/k.h", d + "/m.cpp", d + "/a.cxx", d + "/b.hpp"}));
    for (unsigned int i = 0; i < 5; ++i)
        EXPECT_TRUE(venster().bestandSelektieLijst->IsChecked(i));
    EXPECT_EQ(status(), totaal(5));
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), d + "/");
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "The selected directory resulted in the addition of 5 files"));
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "OnAddCLick : voeg toe bestand: \"" + d + "/k.h\""));
}

// Ten found files are added at once; eleven ask first, also when most of
// them are known. Known entries keep their place and check mark, each is
// reported, and each Add replaces its own status line.
TEST_F(Bronnen, AboveTenFilesAddAsksAndKnownFilesAreReported)
{
    const wxString d = thuis + "/d";
    maak("d/template.c"); // the exclusion term excludes nothing
    for (int i = 1; i < 10; ++i)
        maak(wxString::Format("d/f%02d.c", i));
    start();
    KlavermolVenster& v = venster();
    ASSERT_EQ(v.uitsluitTerm->GetValue(), "template");
    const wxString welkom = status();
    v.PopStatusText(0);
    const wxString onder = status();
    v.PushStatusText(welkom, 0);

    schakel(VoegCBestandenToeID);
    zoekIn(d, 1);
    voegToe(); // any dialog would fail the test
    ASSERT_EQ(v.bestandSelektieLijst->GetCount(), 10u);
    EXPECT_EQ(status(), totaal(10));
    const std::vector<wxString> eerst = lijst();
    v.bestandSelektieLijst->Check(0, false);

    maak("d/f10.c");
    const auto vraag = [](int antwoord) {
        return BeantwoordVraag("11 files were found and will be added to the selection list.\nDo you want to proceed?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(voegToe(), vraag(wxID_NO));
    EXPECT_EQ(lijst(), eerst);
    EXPECT_EQ(status(), totaal(0));

    v.selektieBoek->SetSelection(2);
    wxTEST_DIALOG(voegToe(), vraag(wxID_YES));
    const std::vector<wxString> na = lijst();
    ASSERT_EQ(na.size(), 11u);
    EXPECT_EQ(std::vector<wxString>(na.begin(), na.begin() + 10), eerst);
    EXPECT_EQ(na.back(), d + "/f10.c");
    EXPECT_FALSE(v.bestandSelektieLijst->IsChecked(0));
    EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(10));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    int meldingen = 0;
    for (const LogRegel& r : logRegels(wxLOG_Message))
        meldingen += r.tekst.EndsWith(" won't be added since it is already in your selection list.");
    EXPECT_EQ(meldingen, 10);
    EXPECT_TRUE(heeftLog(wxLOG_Message, d + "/f03.c won't be added since it is already in your selection list."));
    EXPECT_EQ(status(), totaal(1));
    v.PopStatusText(0); // one level down: neither an Add's line nor the welcome
    EXPECT_EQ(status(), onder);
}

// Mode 0 asks for files with the wildcard; with only headers on there is
// none. A cancelled dialog, and no mode at all, still finish the command.
TEST_F(Bronnen, ModeZeroAsksForFilesWithTheWildcard)
{
    const wxString d = thuis + "/d";
    const wxString bestand = maak("d/gekozen.c");
    start();
    KlavermolVenster& v = venster();
    schakel(VoegHBestandenToeID);
    zoekIn(d, 0);
    v.selektieBoek->SetSelection(1);
    wxTEST_DIALOG(voegToe(), KiesBestanden(d + "/", ""));
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(status(), totaal(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");

    schakel(VoegCBestandenToeID);
    wxTEST_DIALOG(voegToe(), KiesBestanden(d + "/", "C files (*.c)|*.c|H files (*.h)|*.h", bestand));
    EXPECT_EQ(lijst(), std::vector<wxString>{bestand});
    EXPECT_EQ(status(), totaal(1));

    v.voegToeModeKeuze->SetSelection(wxNOT_FOUND);
    v.selektieBoek->SetSelection(2);
    v.recenteLokaties.AddFileToHistory(thuis);
    voegToe(); // no dialog, nothing collected
    EXPECT_EQ(lijst().size(), 1u);
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");
}

TEST_F(Bronnen, ADirectoryThatCannotBeOpenedAssertsAndStillRecordsIt)
{
    start();
    schakel(VoegCBestandenToeID);
    verwachtAssert("true == mag");
    zoekIn(thuis + "/bestaat-niet", 1);
    voegToe();
    EXPECT_EQ(aantalAsserts("true == mag"), 1);
    EXPECT_EQ(status(), totaal(0));
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), thuis + "/bestaat-niet/");
}

TEST_F(Bronnen, TheProbeDrivesAddAndTheAutomaticOutputDirectory)
{
    const wxString d = thuis + "/d";
    maak("d/a.cpp");
    maak("d/b.hpp");
    start();
    KlavermolVenster& v = venster();
    v.uitvoerSoortKeuze->SetSelection(1); // a library: the automatic output directory applies
    v.DoMenuUpdates();
    schakel(VoegCPPBestandenToeID);
    schakel(VoegHBestandenToeID);
    zoekIn(d, 1);
    wxFileDirPickerEvent gekozen(wxEVT_DIRPICKER_CHANGED, v.vindBestandenInDirs, VindBestandenInDirsID, d);
    v.ProcessWindowEvent(gekozen);
    EXPECT_TRUE(v.heeftCPPBestanden);
    EXPECT_FALSE(v.heeftHBestanden); // the "*.h" answer replaced the "*.hpp" one
    EXPECT_EQ(v.outputDirPicker->GetPath(), d + "/");
    v.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_TRUE(v.FindWindow(wxID_ADD)->IsEnabled());
    voegToe();
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/a.cpp", d + "/b.hpp"}));
}

TEST_F(Bronnen, TheSwitchIsTheSingleSourceOfTruth)
{
    start();
    KlavermolVenster& v = venster();
    wxCommandEvent menu(wxEVT_MENU, VoegSBestandenToeID);
    menu.SetInt(0); // whatever the event says, the switch flips
    v.ProcessWindowEvent(menu);
    EXPECT_TRUE(v.voegSBestandenToe.boolean());
    EXPECT_TRUE(v.GetMenuBar()->IsChecked(VoegSBestandenToeID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: S ");
    EXPECT_EQ(v.bestandTypeFilter, "ASM files (*.s)|*.s;*.S");
    schakel(VoegCPPBestandenToeID);
    schakel(VoegHBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter, "CPP files (*.cpp)|*.cpp;*.cxx|H files (*.h[pp])|*.h;*.hpp|ASM files (*.s)|*.s;*.S");
    schakel(VoegCBestandenToeID);
    EXPECT_EQ(v.bestandTypeFilter,
              "C files (*.c)|*.c|H files (*.h)|*.h|CPP files (*.cpp)|*.cpp;*.cxx|H files (*.hpp)|*.hpp|ASM files "
              "(*.s)|*.s;*.S");
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: C  CPP  H  S ");
}
