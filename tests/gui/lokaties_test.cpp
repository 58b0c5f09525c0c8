// Back, forward, home, elsewhere and the recent locations with their dialog.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/choice.h>
#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>

// GTK's chooser hands back its choice only from the screen: an OK finds it where the dialog keeps it.
struct KiesMap : wxDirDialog
{
    static wxString& pad(wxDirDialog& dlg) { return dlg.*(&KiesMap::m_path); }
};

using Lokaties = ProgrammaTest;

// After A, B, C the first Back shows C again, Back at index 0 stays; steps probe without recording. Add (also
// finding nothing), Home (home; the picker shows its parent) and Elsewhere (not the picker) are remembered, nine,
// newest first, none in the back/forward history. The dialog's OK waits for a row; Cancel changes nothing.
TEST_F(Lokaties, BackForwardAndTheRecentLocations)
{
    const wxString a = wxPathOnly(maakBestand("A/x.c")), b = maakMap("B"), c = maakMap("C"), elders = maakMap("elders");
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (const wxString& map : {a, b, c})
        kiesZoekMap(map);
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 3u);
    EXPECT_FALSE(v.heeftCBestanden);
    const wxString terugNaar[] = {c, b, a, a};
    for (int i = 0; i < 4; ++i) {
        wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
        i < 3 ? klik(wxID_BACKWARD) : v.OnBACKWARDClick(terug); // the button is off at index 0
        EXPECT_EQ(v.vindBestandenInDirs->GetPath(), terugNaar[i]) << i;
    }
    EXPECT_TRUE(v.heeftCBestanden);
    klik(wxID_FORWARD);
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), b);
    wxArrayString verwacht;
    for (int i = 0; i < 9; ++i) {
        v.vindBestandenInDirs->SetPath(maakMap(wxString::Format("d%d", i)));
        klik(wxID_ADD);
        if (i > 1)
            verwacht.Insert(thuis + wxString::Format("/d%d/", i), 0);
    }
    for (wxEventType soort : {wxEVT_MENU, wxEVT_BUTTON}) {
        v.vindBestandenInDirs->SetPath(elders);
        opdracht(soort, wxID_HOME);
        EXPECT_EQ(v.vindBestandenInDirs->GetPath(), wxFileName(thuis).GetPath());
    }
    for (const wxString& keuze : {wxString(), elders})
        wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), Antwoord<wxDirDialog>([&](wxDirDialog& dlg) {
                          return (KiesMap::pad(dlg) = keuze).empty() ? wxID_CANCEL : wxID_OK;
                      }));
    for (const wxString& map : {thuis, elders})
        verwacht.Insert(map, 0);
    for (const int knop : {wxID_CANCEL, wxID_OK}) {
        wxTEST_DIALOG(klik(VorigeLokatieID), Antwoord<RecenteLokatieVenster>([&](RecenteLokatieVenster& dlg) {
                          EXPECT_EQ(dlg.GetTitle(), "Recent locations where you searched for CMake files");
                          wxListBox* lijst = dlg.geefLijst();
                          EXPECT_EQ(lijst->GetStrings(), verwacht);
                          EXPECT_EQ(bedien(dlg, wxID_OK, [&] { lijst->SetSelection(wxNOT_FOUND); }), wxID_NONE);
                          return bedien(dlg, knop, [&] { lijst->SetSelection(knop == wxID_OK ? 1 : 0); });
                      }));
        EXPECT_EQ(v.vindBestandenInDirs->GetPath(), knop == wxID_OK ? thuis : wxFileName(thuis).GetPath());
    }
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 3u);
}
