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

// Back shows the last again and stays at index 0; Add, Home and Elsewhere are the recent ones, nine, newest first.
TEST_F(Lokaties, BackForwardAndTheRecentLocations)
{
    const wxString a = wxPathOnly(maakBestand("A/x.c")), b = maakMap("B"), c = maakMap("C"), elders = maakMap("elders");
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (const wxString& map : {a, b, c})
        kiesZoekMap(map);
    wxString paden = wxString::Format("%zu %d|", v.lokatieGeschiedenis.geefIndex(), v.heeftCBestanden);
    for (int i = 0; i < 5; ++i) { // the Back button is off at index 0
        wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
        i == 4 ? klik(wxID_FORWARD) : i < 3 ? klik(wxID_BACKWARD) : v.OnBACKWARDClick(terug);
        paden += v.vindBestandenInDirs->GetPath() + (i == 3 && v.heeftCBestanden ? " C|" : "|");
    }
    EXPECT_EQ(paden, "3 0|" + c + "|" + b + "|" + a + "|" + a + " C|" + b + "|");
    wxArrayString verwacht = wxSplit(elders + "|" + thuis, '|');
    for (int i = 0; i < 9; ++i) {
        v.vindBestandenInDirs->SetPath(maakMap(wxString::Format("d%d", i)));
        klik(wxID_ADD);
        if (i > 1)
            verwacht.Insert(thuis + wxString::Format("/d%d/", i), 2);
    }
    for (wxEventType soort : {wxEVT_MENU, wxEVT_BUTTON}) {
        v.vindBestandenInDirs->SetPath(elders);
        opdracht(soort, wxID_HOME);
        EXPECT_EQ(v.vindBestandenInDirs->GetPath(), wxFileName(thuis).GetPath());
    }
    for (const wxString& keuze : {wxString(), elders})
        wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), Antwoord<wxDirDialog>([&](wxDirDialog& dlg) {
                          return (KiesMap::pad(dlg) = keuze).empty() ? wxID_CANCEL : wxID_OK; }));
    for (const int knop : {wxID_CANCEL, wxID_OK}) {
        wxTEST_DIALOG(klik(VorigeLokatieID), Antwoord<RecenteLokatieVenster>([&](RecenteLokatieVenster& dlg) {
                          EXPECT_EQ(dlg.GetTitle(), "Recent locations where you searched for CMake files");
                          wxListBox* lijst = dlg.geefLijst();
                          EXPECT_EQ(lijst->GetStrings(), verwacht);
                          EXPECT_EQ(bedien(dlg, wxID_OK, [&] { lijst->SetSelection(wxNOT_FOUND); }), wxID_NONE);
                          return bedien(dlg, knop, [&] { lijst->SetSelection(knop == wxID_OK ? 1 : 0); });
                      }));
        EXPECT_EQ(v.vindBestandenInDirs->GetPath() + wxString::Format(" %zu", v.lokatieGeschiedenis.geefAantal()),
                  (knop == wxID_OK ? thuis : wxFileName(thuis).GetPath()) + " 3");
    }
}
