// Add: collecting sources into the "Source Files" list in every mode.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/testing.h>

#include <fstream>

namespace {

class KiesBestanden : public wxExpectModalBase<wxFileDialog, KiesBestanden>
{
public:
    KiesBestanden(const wxString& pad, const wxString& map, const wxString& wildcard)
        : pad(pad), map(map), wildcard(wildcard) {}

protected:
    int OnInvoked(wxFileDialog* dlg) const override
    {
        EXPECT_EQ(dlg->GetMessage(), "Please select one or more files from the current directory.");
        EXPECT_EQ(dlg->GetDirectory(), map);
        EXPECT_EQ(dlg->GetWildcard(), wildcard);
        for (long stijl : {wxFD_OPEN, wxFD_FILE_MUST_EXIST, wxFD_CHANGE_DIR, wxFD_MULTIPLE})
            EXPECT_TRUE(dlg->HasFlag(stijl)) << stijl;
        dlg->SetPath(pad);
        return wxID_OK;
    }

private:
    wxString pad, map, wildcard;
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

    std::vector<wxString> lijst()
    {
        std::vector<wxString> uit;
        for (unsigned int i = 0; i < venster().bestandSelektieLijst->GetCount(); ++i)
            uit.push_back(venster().bestandSelektieLijst->GetString(i));
        return uit;
    }

    wxString status() { return venster().GetStatusBar()->GetStatusText(0); }
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
    EXPECT_EQ(status(), "A total of 5 files and dirs was found in  and added to the selection.");
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), d + "/");
}

TEST_F(Bronnen, WithCOffTheHeadersComeAfterCpp)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/a.cpp", "d/b.hpp", "d/c.h", "d/sub/e.cpp"})
        maak(naam);
    start();
    schakel(VoegCPPBestandenToeID);
    schakel(VoegHBestandenToeID);
    zoekIn(d, 2);
    voegToe();
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/sub/e.cpp", d + "/a.cpp", d + "/b.hpp", d + "/c.h"}));
}

TEST_F(Bronnen, ElevenFilesAskFirstAndNoAddsNothing)
{
    for (int i = 0; i < 11; ++i)
        maak(wxString::Format("d/f%02d.c", i));
    start();
    schakel(VoegCBestandenToeID);
    zoekIn(thuis + "/d", 1);
    const auto vraag = [](int antwoord) {
        return BeantwoordVraag("11 files were found and will be added to the selection list.\nDo you want to proceed?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(voegToe(), vraag(wxID_NO));
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(status(), "A total of 0 files and dirs was found in  and added to the selection.");
    wxTEST_DIALOG(voegToe(), vraag(wxID_YES));
    EXPECT_EQ(lijst().size(), 11u);
}

TEST_F(Bronnen, TenFilesAreAddedWithoutAQuestion)
{
    for (int i = 0; i < 10; ++i)
        maak(wxString::Format("d/f%02d.c", i));
    start();
    schakel(VoegCBestandenToeID);
    zoekIn(thuis + "/d", 1);
    voegToe(); // any dialog would fail the test
    EXPECT_EQ(lijst().size(), 10u);
}

TEST_F(Bronnen, TheSameDirectoryTwiceReportsEveryDuplicate)
{
    maak("d/a.c");
    maak("d/b.c");
    start();
    schakel(VoegCBestandenToeID);
    zoekIn(thuis + "/d", 1);
    voegToe();
    venster().selektieBoek->SetSelection(2);
    voegToe();
    EXPECT_EQ(lijst().size(), 2u);
    EXPECT_TRUE(heeftLog(wxLOG_Message, thuis + "/d/a.c won't be added since it is already in your selection list."));
    EXPECT_TRUE(heeftLog(wxLOG_Message, thuis + "/d/b.c won't be added since it is already in your selection list."));
    EXPECT_EQ(status(), "A total of 0 files and dirs was found in  and added to the selection.");
    EXPECT_EQ(venster().selektieBoek->GetSelection(), 0);
}

TEST_F(Bronnen, ModeZeroAsksForFilesWithTheWildcard)
{
    const wxString bestand = maak("d/gekozen.c");
    start();
    schakel(VoegCBestandenToeID);
    schakel(VoegHBestandenToeID);
    zoekIn(thuis + "/d", 0);
    wxTEST_DIALOG(voegToe(), KiesBestanden(bestand, thuis + "/d/", "C files (*.c)|*.c|H files (*.h)|*.h"));
    EXPECT_EQ(lijst(), std::vector<wxString>{bestand});
    EXPECT_EQ(status(), "A total of 1 files and dirs was found in  and added to the selection.");
}

TEST_F(Bronnen, OnlyHeadersGiveTheFileDialogNoWildcard)
{
    maak("d/x.h");
    start();
    schakel(VoegHBestandenToeID);
    zoekIn(thuis + "/d", 0);
    wxTEST_DIALOG(voegToe(), KiesBestanden(thuis + "/d/x.h", thuis + "/d/", ""));
}

TEST_F(Bronnen, ADirectoryThatCannotBeOpenedAssertsAndStillRecordsIt)
{
    start();
    schakel(VoegCBestandenToeID);
    verwachtAssert("true == mag");
    zoekIn(thuis + "/bestaat-niet", 1);
    voegToe();
    EXPECT_EQ(aantalAsserts("true == mag"), 1);
    EXPECT_EQ(status(), "A total of 0 files and dirs was found in  and added to the selection.");
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
