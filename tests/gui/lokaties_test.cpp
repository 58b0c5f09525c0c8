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

// The recent-locations dialog lists `paden` and OK waits for a row; the user
// picks row `rij`, then presses the button `knop`.
Antwoord<RecenteLokatieVenster> kiesRecent(const wxArrayString& paden, int rij, int knop)
{
    return Antwoord<RecenteLokatieVenster>([=](RecenteLokatieVenster& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Recent locations where you searched for CMake files");
        EXPECT_EQ(dlg.geefLijst()->GetStrings(), paden);
        EXPECT_EQ(bedien(dlg, wxID_OK, [&] { dlg.geefLijst()->SetSelection(wxNOT_FOUND); }), wxID_NONE);
        return bedien(dlg, knop, [&] { dlg.geefLijst()->SetSelection(rij); });
    });
}

} // namespace

class Lokaties : public ProgrammaTest
{
protected:
    wxString picker() { return venster().vindBestandenInDirs->GetPath(); }
};

// A, B, C picked: index 3, so the first Back shows C again; Back at index 0
// stays there. Each step sets the picker and probes without recording.
TEST_F(Lokaties, BackAndForwardWalkThePickedDirectories)
{
    const wxString a = maakMap("A"), b = maakMap("B"), c = maakMap("C");
    maakBestand("A/x.c");
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    for (const wxString& map : {a, b, c})
        kiesZoekMap(map);
    EXPECT_EQ(v.lokatieGeschiedenis.geefIndex(), 3u);
    EXPECT_FALSE(v.heeftCBestanden);
    for (const wxString& map : {c, b, a}) {
        klik(wxID_BACKWARD);
        EXPECT_EQ(picker(), map);
    }
    EXPECT_TRUE(v.heeftCBestanden);
    wxCommandEvent terug(wxEVT_BUTTON, wxID_BACKWARD);
    v.OnBACKWARDClick(terug); // the button is off at index 0; the handler stays there
    EXPECT_EQ(picker(), a);
    klik(wxID_FORWARD);
    EXPECT_EQ(picker(), b);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 3u);
}

// Every Add remembers its directory, also when nothing was found; Home
// remembers home while the picker shows its parent, Elsewhere remembers
// the choice and leaves the picker. Nine are kept and offered newest first;
// none enters the back/forward history. A row picked with OK goes into the
// picker; with Cancel nothing changes.
TEST_F(Lokaties, TheRecentLocationsKeepNineAndOfferThemNewestFirst)
{
    const wxString elders = maakMap("elders"), boven = wxFileName(thuis).GetPath();
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
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
        EXPECT_EQ(picker(), boven);
    }
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(wxString()));
    wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_MORE), KiesMap::met(elders));
    verwacht.Insert(thuis, 0);
    verwacht.Insert(elders, 0);
    wxTEST_DIALOG(klik(VorigeLokatieID), kiesRecent(verwacht, 1, wxID_CANCEL));
    EXPECT_EQ(picker(), boven);
    wxTEST_DIALOG(klik(VorigeLokatieID), kiesRecent(verwacht, 0, wxID_OK));
    EXPECT_EQ(picker(), elders);
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
}
