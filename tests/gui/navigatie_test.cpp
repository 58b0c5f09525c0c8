// Navigation: the history's index rules seen through the buttons, the probe
// after a step, More confirmed, the recent dialog and what Add feeds it.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/testing.h>

#include <fstream>

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

class Navigatie : public ProgrammaTest
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

    void opdracht(int id)
    {
        wxCommandEvent e(wxEVT_BUTTON, id);
        venster().ProcessWindowEvent(e);
    }

    bool aan(int id)
    {
        venster().UpdateWindowUI(wxUPDATE_UI_RECURSE);
        return venster().FindWindow(id)->IsEnabled();
    }

    wxString picker() const { return venster().vindBestandenInDirs->GetPath(); }
};

TEST_F(Navigatie, PickingAKnownDirectoryOnlyMovesTheIndexToIt)
{
    const wxString a = map("A"), b = map("B");
    start();
    kies(a); // one location at index 1: Back leads to it, then nowhere to go
    EXPECT_TRUE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    opdracht(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    kies(b);
    kies(a);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 2u);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 0u);
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    opdracht(wxID_FORWARD);
    EXPECT_EQ(picker(), b + "/");
    EXPECT_EQ(venster().lokatieGeschiedenis.geefIndex(), 1u);
    EXPECT_FALSE(aan(wxID_FORWARD));
}

TEST_F(Navigatie, AStepShowsTheLocationAndProbesItWithoutRecordingIt)
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
    opdracht(wxID_BACKWARD); // index 2 to 1: B again
    EXPECT_EQ(picker(), b + "/");
    opdracht(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_TRUE(v.heeftCBestanden);
    EXPECT_TRUE(aan(wxID_ADD));
    wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
    v.OnBACKWARDClick(terug); // at index 0 it stays there
    EXPECT_EQ(picker(), a + "/");
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 0u);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 2u);
}

TEST_F(Navigatie, MoreConfirmedRemembersTheChoiceAndLeavesThePicker)
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

TEST_F(Navigatie, TheRecentDialogIsBuiltAsAskedAndCancelChangesNothing)
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
    wxTEST_DIALOG(opdracht(VorigeLokatieID), Annuleer());
    EXPECT_EQ(picker(), voor);
}

TEST_F(Navigatie, EveryAddRemembersItsDirectoryNewestFirstUpToNine)
{
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (int i = 0; i < 10; ++i) {
        v.vindBestandenInDirs->SetPath(map(wxString::Format("d%d", i)));
        opdracht(wxID_ADD); // nothing found: still remembered
    }
    ASSERT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d9/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");
    v.vindBestandenInDirs->SetPath(thuis + "/d5");
    opdracht(wxID_ADD); // a known one moves to the front, nothing drops out
    EXPECT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d5/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");
}
