// Back, forward, home, elsewhere and the recent locations.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>
#include <wx/testing.h>

#include <stdexcept>

namespace {

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
