// Back, forward, home, elsewhere and the recent locations with their dialog.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/choice.h>
#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>

namespace {

// Answers "Go somewhere else": GTK's chooser hands back its choice only from
// the screen, so an OK puts the choice where the dialog keeps it.
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

} // namespace

using Lokaties = ProgrammaTest;

// A, B, C picked: index 3, so the first Back shows C again; Back at index 0
// stays there; each step probes without recording. Every Add remembers its
// directory, also when nothing was found; Home remembers home while the picker
// shows its parent, Elsewhere the choice without the picker. Nine are kept,
// newest first, none in the back/forward history. The dialog's OK waits for a
// row; the row picked with OK goes into the picker, with Cancel nothing.
TEST_F(Lokaties, BackForwardAndTheRecentLocations)
{
    const wxString a = maakMap("A"), b = maakMap("B"), c = maakMap("C"), elders = maakMap("elders");
    maakBestand("A/x.c");
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
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(wxString()));
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(elders));
    verwacht.Insert(thuis, 0);
    verwacht.Insert(elders, 0);
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
