// Back, forward, home, elsewhere and the recent locations with their dialog.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/choice.h>
#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>
#include <wx/testing.h>

#include <stdexcept>

namespace {

// Answers the directory dialog of "Go somewhere else": GTK's chooser hands
// back its choice only from the screen, so an OK puts the choice where the
// dialog keeps it.
struct KiesMap : wxDirDialog
{
    static Antwoord<wxDirDialog> met(const wxString& pad)
    {
        return Antwoord<wxDirDialog>([=](wxDirDialog& dlg) {
            dlg.*(&KiesMap::m_path) = pad;
            return pad.empty() ? wxID_CANCEL : wxID_OK;
        });
    }
};

// Picks a row of the recent-locations dialog, then answers.
Antwoord<RecenteLokatieVenster> kiesRecent(int rij, int antwoord)
{
    return Antwoord<RecenteLokatieVenster>([=](RecenteLokatieVenster& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Recent locations where you searched for CMake files");
        dlg.geefLijst()->SetSelection(rij);
        return antwoord;
    });
}

} // namespace

class Lokaties : public ProgrammaTest
{
protected:
    wxString picker() { return venster().vindBestandenInDirs->GetPath(); }
};

// With no location Forward reaches the out-of-range error. A, B, C picked:
// index 3, so the first Back shows C again. Each step sets the picker and
// probes the location without recording it.
TEST_F(Lokaties, BackAndForwardWalkThePickedDirectories)
{
    const wxString a = maakMap("A"), b = maakMap("B"), c = maakMap("C");
    maakBestand("A/x.c");
    start();
    KlavermolVenster& v = venster();
    wxCommandEvent vooruit(wxEVT_BUTTON, wxID_FORWARD);
    EXPECT_THROW(v.OnFORWARDClick(vooruit), std::out_of_range);

    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (const wxString& map : {a, b, c})
        kiesZoekMap(map);
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 3u);
    EXPECT_FALSE(v.heeftCBestanden);
    EXPECT_FALSE(aan(wxID_FORWARD));
    for (const wxString& map : {c, b, a}) {
        klik(wxID_BACKWARD);
        EXPECT_EQ(picker(), map);
    }
    EXPECT_TRUE(v.heeftCBestanden);
    EXPECT_TRUE(aan(wxID_ADD));
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
    v.OnBACKWARDClick(terug); // at index 0 it stays there
    EXPECT_EQ(picker(), a);
    klik(wxID_FORWARD);
    EXPECT_EQ(picker(), b);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 3u);
}

// Home shows the parent of home and remembers home; elsewhere remembers the
// choice and leaves the picker. Neither enters the back/forward history.
TEST_F(Lokaties, HomeAndElsewhereRememberTheirLocation)
{
    const wxString elders = maakMap("elders");
    start();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_MENU, wxID_HOME);
    EXPECT_EQ(picker(), wxFileName(thuis).GetPath());
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis);
    klik(wxID_HOME); // the button does the same
    EXPECT_EQ(v.recenteLokaties.GetCount(), 1u);

    const wxString voor = picker();
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(wxString()));
    EXPECT_EQ(v.recenteLokaties.GetCount(), 1u);
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(elders));
    EXPECT_EQ(v.recenteLokaties.GetCount(), 2u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), elders);
    EXPECT_EQ(picker(), voor);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
}

// Every Add remembers its directory, also when nothing was found; nine are
// kept, newest first, and the dialog sets the picker to the picked one.
TEST_F(Lokaties, TheRecentLocationsKeepNineAndOfferThemNewestFirst)
{
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (int i = 0; i < 10; ++i) {
        v.vindBestandenInDirs->SetPath(maakMap(wxString::Format("d%d", i)));
        klik(wxID_ADD);
    }
    ASSERT_EQ(v.recenteLokaties.GetCount(), 9u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), thuis + "/d9/");
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(8), thuis + "/d1/");

    wxTEST_DIALOG(klik(VorigeLokatieID), kiesRecent(1, wxID_CANCEL));
    EXPECT_EQ(picker(), thuis + "/d9");
    wxTEST_DIALOG(klik(VorigeLokatieID), kiesRecent(1, wxID_OK));
    EXPECT_EQ(picker(), thuis + "/d8");
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
}

// The dialog lists the paths in the order given; OK waits for a selection.
TEST_F(Lokaties, TheRecentDialogEnablesOkOnlyWithASelection)
{
    start();
    RecenteLokatieVenster dlg(&venster());
    wxListBox* lijst = dlg.geefLijst();
    wxWindow* ok = dlg.FindWindow(wxID_OK);
    wxArrayString paden;
    for (const char* p : {"/home/user/src/newest", "/home/user/src/a", "/opt/oldest"})
        paden.Add(p);
    dlg.vulpaden(paden);
    EXPECT_EQ(lijst->GetStrings(), paden);
    for (int rij : {wxNOT_FOUND, 2, wxNOT_FOUND}) {
        lijst->SetSelection(rij);
        dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
        EXPECT_EQ(dlg.geefGekozenPad(), rij);
        EXPECT_EQ(ok->IsEnabled(), rij != wxNOT_FOUND) << rij;
    }
    EXPECT_TRUE(dlg.FindWindow(wxID_CANCEL)->IsEnabled());
}
