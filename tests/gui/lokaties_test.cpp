// Back, forward, home, elsewhere and the recent locations.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/dirdlg.h>
#include <wx/choice.h>
#include <wx/checklst.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>
#include <wx/testing.h>

#include <fstream>
#include <stdexcept>


namespace {

// GTK's directory chooser hands back its choice only from the screen; this
// answer puts the choice where the dialog keeps it after an OK.
class KiesMap : public wxExpectModalBase<wxDirDialog, KiesMap>
{
public:
    explicit KiesMap(const wxString& pad) : pad(pad) {}

protected:
    struct Keuze : wxDirDialog
    {
        static constexpr wxString wxDirDialogBase::*pad = &Keuze::m_path;
    };

    int OnInvoked(wxDirDialog* dlg) const override
    {
        EXPECT_EQ(dlg->GetMessage(), wxString(wxDirSelectorPromptStr));
        EXPECT_TRUE(dlg->GetPath().empty());
        EXPECT_TRUE(dlg->HasFlag(wxRESIZE_BORDER));
        EXPECT_TRUE(dlg->HasFlag(wxDD_DEFAULT_STYLE));
        dlg->*Keuze::pad = pad;
        return wxID_OK;
    }

private:
    wxString pad;
};

} // namespace

class Lokaties : public ProgrammaTest
{
protected:
    wxString map(const wxString& naam)
    {
        const wxString pad = thuis + "/" + naam;
        wxFileName::Mkdir(pad, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        return pad;
    }

    void kies(const wxString& pad)
    {
        venster().vindBestandenInDirs->SetPath(pad);
        wxFileDirPickerEvent e(wxEVT_DIRPICKER_CHANGED, venster().vindBestandenInDirs, VindBestandenInDirsID, pad);
        venster().ProcessWindowEvent(e);
    }

    void knop(int id)
    {
        wxCommandEvent e(wxEVT_BUTTON, id);
        venster().ProcessWindowEvent(e);
    }

    bool aan(int id)
    {
        venster().UpdateWindowUI(wxUPDATE_UI_RECURSE);
        return venster().FindWindow(id)->IsEnabled();
    }

    wxString picker() { return venster().vindBestandenInDirs->GetPath(); }
};

TEST_F(Lokaties, BackAndForwardWalkThePickedDirectories)
{
    const wxString a = map("A"), b = map("B"), c = map("C");
    start();
    kies(a);
    kies(b);
    kies(c);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 3u);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 3u);
    EXPECT_FALSE(aan(wxID_FORWARD));
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), c + "/");
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), b + "/");
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    knop(wxID_FORWARD);
    EXPECT_EQ(picker(), b + "/");
}

TEST_F(Lokaties, ANewLocationInsideTheHistoryLandsBeforeThePreviousEntry)
{
    const wxString a = map("A"), b = map("B"), c = map("C"), d = map("D");
    start();
    kies(a);
    kies(b);
    kies(c);
    knop(wxID_BACKWARD);
    knop(wxID_BACKWARD);
    kies(d);
    std::vector<wxString> paden;
    for (const wxFileName& f : venster().lokatieGeschiedenis.geefVoorwerpen())
        paden.push_back(f.GetFullPath());
    EXPECT_EQ(paden, (std::vector<wxString>{d + "/", a + "/", b + "/", c + "/"}));
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 1u);
}

TEST_F(Lokaties, ForwardOnAnEmptyHistoryReachesTheOutOfRangeError)
{
    start();
    EXPECT_TRUE(aan(wxID_FORWARD));
    wxCommandEvent e(wxEVT_BUTTON, wxID_FORWARD);
    EXPECT_THROW(venster().OnFORWARDClick(e), std::out_of_range);
}

TEST_F(Lokaties, HomeShowsTheParentOfHomeAndRemembersHome)
{
    start();
    wxCommandEvent e(wxEVT_MENU, wxID_HOME);
    venster().ProcessWindowEvent(e);
    EXPECT_EQ(picker(), wxFileName(thuis).GetPath());
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), thuis);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 0u);
    knop(wxID_HOME); // the button does the same
    EXPECT_EQ(venster().recenteLokaties.GetCount(), 1u);
}

TEST_F(Lokaties, ElsewhereCancelledChangesNothing)
{
    // GTK's directory chooser reports a choice only from the screen, so a
    // test can answer it only with Cancel.
    start();
    const wxString voor = picker();
    wxCommandEvent e(wxEVT_MENU, wxID_MORE);
    class Annuleer : public wxExpectModalBase<wxDirDialog, Annuleer>
    {
    protected:
        int OnInvoked(wxDirDialog*) const override { return wxID_CANCEL; }
    };
    wxTEST_DIALOG(venster().ProcessWindowEvent(e), Annuleer());
    EXPECT_EQ(venster().recenteLokaties.GetCount(), 0u);
    EXPECT_EQ(picker(), voor);
}

TEST_F(Lokaties, TheRecentListKeepsNineAndOffersThemNewestFirst)
{
    start();
    KlavermolVenster& v = venster();
    EXPECT_FALSE(aan(VorigeLokatieID));
    for (int i = 0; i < 10; ++i)
        v.recenteLokaties.AddFileToHistory(map(wxString::Format("r%d", i)));
    ASSERT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/r9");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/r1");
    EXPECT_TRUE(aan(VorigeLokatieID));

    class Kies : public wxExpectModalBase<RecenteLokatieVenster, Kies>
    {
    protected:
        int OnInvoked(RecenteLokatieVenster* dlg) const override
        {
            EXPECT_EQ(dlg->GetTitle(), "Recent locations where you searched for CMake files");
            EXPECT_EQ(dlg->geefLijst()->GetCount(), 9u);
            dlg->geefLijst()->SetSelection(1);
            return wxID_OK;
        }
    };
    wxTEST_DIALOG(knop(VorigeLokatieID), Kies());
    EXPECT_EQ(picker(), thuis + "/r8");
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
}

TEST_F(Lokaties, PickingAKnownDirectoryOnlyMovesTheIndexToIt)
{
    const wxString a = map("A"), b = map("B");
    start();
    kies(a); // one location at index 1: Back leads to it, then nowhere to go
    EXPECT_TRUE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    kies(b);
    kies(a);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 2u);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 0u);
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    knop(wxID_FORWARD);
    EXPECT_EQ(picker(), b + "/");
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 1u);
    EXPECT_FALSE(aan(wxID_FORWARD));
}

TEST_F(Lokaties, AStepShowsTheLocationAndProbesItWithoutRecordingIt)
{
    const wxString a = map("A"), b = map("B");
    std::ofstream((a + "/x.c").ToStdString()) << "\n";
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    kies(a);
    kies(b);
    ASSERT_FALSE(v.heeftCBestanden);
    knop(wxID_BACKWARD); // index 2 to 1: B again
    EXPECT_EQ(picker(), b + "/");
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_TRUE(v.heeftCBestanden);
    EXPECT_TRUE(aan(wxID_ADD));
    wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
    v.OnBACKWARDClick(terug); // at index 0 it stays there
    EXPECT_EQ(picker(), a + "/");
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 0u);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 2u);
}

TEST_F(Lokaties, MoreConfirmedRemembersTheChoiceAndLeavesThePicker)
{
    const wxString elders = map("elders");
    start();
    const wxString voor = picker();
    wxCommandEvent e(wxEVT_MENU, wxID_MORE);
    wxTEST_DIALOG(venster().ProcessWindowEvent(e), KiesMap(elders));
    EXPECT_EQ(venster().recenteLokaties.GetCount(), 1u);
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), elders);
    EXPECT_EQ(picker(), voor);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 0u);
}

TEST_F(Lokaties, TheRecentDialogIsBuiltAsAskedAndCancelChangesNothing)
{
    const wxString r = map("r");
    start();
    KlavermolVenster& v = venster();
    v.recenteLokaties.AddFileToHistory(r);
    const wxString voor = picker();
    class Annuleer : public wxExpectModalBase<RecenteLokatieVenster, Annuleer>
    {
    protected:
        int OnInvoked(RecenteLokatieVenster* dlg) const override
        {
            EXPECT_EQ(dlg->GetId(), 10000);
            for (long stijl : {wxCAPTION, wxSYSTEM_MENU, wxCLOSE_BOX, wxRESIZE_BORDER, wxSTAY_ON_TOP, wxTAB_TRAVERSAL,
                               wxFULL_REPAINT_ON_RESIZE})
                EXPECT_TRUE(dlg->HasFlag(stijl)) << stijl;
            EXPECT_GE(dlg->GetSize().x, 500);
            dlg->geefLijst()->SetSelection(0);
            return wxID_CANCEL;
        }
    };
    wxTEST_DIALOG(knop(VorigeLokatieID), Annuleer());
    EXPECT_EQ(picker(), voor);
}

TEST_F(Lokaties, EveryAddRemembersItsDirectoryNewestFirstUpToNine)
{
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (int i = 0; i < 10; ++i) {
        v.vindBestandenInDirs->SetPath(map(wxString::Format("d%d", i)));
        knop(wxID_ADD); // nothing found: still remembered
    }
    ASSERT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d9/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");
    v.vindBestandenInDirs->SetPath(thuis + "/d5");
    knop(wxID_ADD); // a known one moves to the front, nothing drops out
    EXPECT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d5/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");
}
