// Back, forward, home, elsewhere and the recent locations with their dialog.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/button.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/testing.h>

#include <fstream>
#include <stdexcept>

namespace {

// Answers the directory dialog of "Go somewhere else": GTK's chooser hands
// back its choice only from the screen, so an OK puts the choice where the
// dialog keeps it.
class KiesMap : public wxExpectModalBase<wxDirDialog, KiesMap>
{
public:
    explicit KiesMap(const wxString& pad = wxString()) : pad(pad) {}

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
        if (pad.empty())
            return wxID_CANCEL;
        dlg->*Keuze::pad = pad;
        return wxID_OK;
    }

private:
    wxString pad;
};

// Picks a row of the recent-locations dialog, then answers.
class KiesRecent : public wxExpectModalBase<RecenteLokatieVenster, KiesRecent>
{
public:
    KiesRecent(int rij, int antwoord) : rij(rij), antwoord(antwoord) {}

protected:
    int OnInvoked(RecenteLokatieVenster* dlg) const override
    {
        EXPECT_EQ(dlg->GetTitle(), "Recent locations where you searched for CMake files");
        EXPECT_EQ(dlg->GetId(), 10000);
        for (long stijl : {wxCAPTION, wxSYSTEM_MENU, wxCLOSE_BOX, wxRESIZE_BORDER, wxSTAY_ON_TOP, wxTAB_TRAVERSAL,
                           wxFULL_REPAINT_ON_RESIZE})
            EXPECT_TRUE(dlg->HasFlag(stijl)) << stijl;
        EXPECT_GE(dlg->GetSize().x, 500);
        dlg->geefLijst()->SetSelection(rij);
        return antwoord;
    }

private:
    int rij;
    int antwoord;
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

// A, B, C picked: index 3, so the first Back shows C again. Each step sets
// the picker and probes the location without recording it.
TEST_F(Lokaties, BackAndForwardWalkThePickedDirectories)
{
    const wxString a = map("A"), b = map("B"), c = map("C");
    std::ofstream((a + "/x.c").ToStdString()) << "\n";
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    kies(a);
    kies(b);
    kies(c);
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 3u);
    EXPECT_FALSE(v.heeftCBestanden);
    EXPECT_FALSE(aan(wxID_FORWARD));
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), c + "/");
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), b + "/");
    knop(wxID_BACKWARD);
    EXPECT_EQ(picker(), a + "/");
    EXPECT_TRUE(v.heeftCBestanden);
    EXPECT_TRUE(aan(wxID_ADD));
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
    v.OnBACKWARDClick(terug); // at index 0 it stays there
    EXPECT_EQ(picker(), a + "/");
    knop(wxID_FORWARD);
    EXPECT_EQ(picker(), b + "/");
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 3u);
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

TEST_F(Lokaties, ElsewhereRemembersTheChoiceAndLeavesThePicker)
{
    const wxString elders = map("elders");
    start();
    const wxString voor = picker();
    wxCommandEvent e(wxEVT_MENU, wxID_MORE);
    wxTEST_DIALOG(venster().ProcessWindowEvent(e), KiesMap());
    EXPECT_EQ(venster().recenteLokaties.GetCount(), 0u);
    wxTEST_DIALOG(venster().ProcessWindowEvent(e), KiesMap(elders));
    EXPECT_EQ(venster().recenteLokaties.GetCount(), 1u);
    EXPECT_EQ(venster().recenteLokaties.GetHistoryFile(0), elders);
    EXPECT_EQ(picker(), voor);
    EXPECT_EQ(venster().lokatieGeschiedenis.geefAantal(), 0u);
}

// Every Add remembers its directory, also when nothing was found; nine are
// kept, newest first, and the dialog sets the picker to the picked one.
TEST_F(Lokaties, TheRecentLocationsKeepNineAndOfferThemNewestFirst)
{
    start();
    KlavermolVenster& v = venster();
    EXPECT_FALSE(aan(VorigeLokatieID));
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (int i = 0; i < 10; ++i) {
        v.vindBestandenInDirs->SetPath(map(wxString::Format("d%d", i)));
        knop(wxID_ADD);
    }
    ASSERT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d9/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");
    EXPECT_TRUE(aan(VorigeLokatieID));

    wxTEST_DIALOG(knop(VorigeLokatieID), KiesRecent(1, wxID_CANCEL));
    EXPECT_EQ(picker(), thuis + "/d9");
    wxTEST_DIALOG(knop(VorigeLokatieID), KiesRecent(1, wxID_OK));
    EXPECT_EQ(picker(), thuis + "/d8/");
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
}

TEST_F(Lokaties, TheRecentDialogIsAListAboveOkAndCancel)
{
    start();
    RecenteLokatieVenster dlg(&venster());
    wxListBox* lijst = dlg.geefLijst();
    EXPECT_EQ(lijst->GetId(), 10002);
    EXPECT_EQ(lijst->GetMinSize(), wxSize(500, 200));
    EXPECT_TRUE(lijst->HasFlag(wxLB_SINGLE) && lijst->HasFlag(wxLB_HSCROLL));
    wxWindow* ok = dlg.FindWindow(wxID_OK);
    wxWindow* annuleer = dlg.FindWindow(wxID_CANCEL);
    EXPECT_EQ(ok->GetLabel(), "OK");
    EXPECT_EQ(annuleer->GetLabel(), "Cancel");
    EXPECT_EQ(ok->GetPosition().y, annuleer->GetPosition().y);
    EXPECT_LT(ok->GetPosition().x, annuleer->GetPosition().x);
    EXPECT_GT(ok->GetPosition().y, lijst->GetRect().GetBottom());
    EXPECT_EQ(dlg.GetClientSize(), dlg.GetSizer()->GetMinSize());

    wxArrayString paden;
    for (const char* p : {"/home/user/src/newest", "/home/user/src/a", "/opt/oldest"})
        paden.Add(p);
    dlg.vulpaden(paden);
    EXPECT_EQ(lijst->GetStrings(), paden);
    dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dlg.geefGekozenPad(), wxNOT_FOUND);
    EXPECT_FALSE(ok->IsEnabled());
    EXPECT_TRUE(annuleer->IsEnabled());
    lijst->SetSelection(2);
    dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dlg.geefGekozenPad(), 2);
    EXPECT_TRUE(ok->IsEnabled());
    lijst->SetSelection(wxNOT_FOUND);
    dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_FALSE(ok->IsEnabled());
}
