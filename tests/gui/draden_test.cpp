// The window while its workers run: a later pick wins over a slow probe, a
// cancelled Add leaves the list alone, and the source list shows the store.
#include "programma.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/progdlg.h>
#include <wx/tglbtn.h>
#include <wx/tooltip.h>
#include <wx/uiaction.h>

#include <chrono>
#include <thread>

namespace {

class Draden : public ProgrammaTest
{
protected:
    // Lets the event loop run until `klaar` holds; false when it never does.
    bool wachtTot(const std::function<bool()>& klaar)
    {
        const auto grens = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!klaar() && std::chrono::steady_clock::now() < grens) {
            wxTheApp->ProcessPendingEvents();
            wxTheApp->Yield(true);
        }
        return klaar();
    }

    // A real click (or double click) at `plek` in `w`, the pointer coming in from outside.
    void klikOp(wxWindow* w, const wxPoint& plek, bool dubbel = false)
    {
        wxUIActionSimulator muis;
        muis.MouseMove(0, 0);
        muis.MouseMove(w->ClientToScreen(plek));
        dubbel ? muis.MouseDblClick() : muis.MouseClick();
    }

    void klikOp(wxWindow* w) { klikOp(w, wxPoint(w->GetClientSize().x / 2, w->GetClientSize().y / 2)); }

    // The program with nothing over its window: the splash out of sight.
    void startVrij()
    {
        start();
        if (wxSplashScreen* splash = app().geefSplash())
            splash->Hide();
        wxToolTip::Enable(false); // a list's tip would cover the buttons below it
        venster().SetSize(wxGetDisplaySize()); // every button in sight
        ASSERT_TRUE(wachtTot([&] { return venster().GetSize().y > 700; }));
        klikOp(venster().GetStatusBar()); // as the user does: a click makes the window the active one
        ASSERT_TRUE(wachtTot([&] { return venster().IsActive(); }));
    }

};

// The slow probe of the first pick ends only when stopped, and then claims
// C files: the second pick's answer must be the one that stays.
TEST_F(Draden, ALaterPickWinsOverAnEarlierSlowProbe)
{
    const wxString traag = maakMap("traag"), snel = maakMap("snel");
    start();
    KlavermolVenster& v = venster();
    v.uitvoerSoortKeuze->SetSelection(1); // a library: the probe sets the output directory
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    v.onderzoeker = [](const wxString& map, int, const kern::Families&, kern::Aanwezig& vlaggen,
                       kern::Voortgang* voortgang) {
        while (map.Contains("traag") && !voortgang->isAfgebroken())
            std::this_thread::yield();
        vlaggen.c = map.Contains("traag");
        return true;
    };
    v.vindBestandenInDirs->SetPath(traag); // picked, not awaited: its probe ends only when stopped
    wxFileDirPickerEvent gekozen(wxEVT_DIRPICKER_CHANGED, v.vindBestandenInDirs, VindBestandenInDirsID, traag);
    v.ProcessWindowEvent(gekozen);
    kiesZoekMap(snel);
    EXPECT_FALSE(v.heeftCBestanden);
    EXPECT_EQ(v.outputDirPicker->GetPath(), snel);
}

// Past half a second the walk shows its counts with a Cancel button; Cancel
// leaves the list, the status line and the recent locations as they were.
TEST_F(Draden, CancelledAddLeavesEverythingAsItWas)
{
    maakBestand("d/a.c");
    startVrij();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    v.voegToeModeKeuze->SetSelection(1);
    kiesZoekMap(thuis + "/d");
    klik(wxID_ADD);
    ASSERT_EQ(v.bestandSelektieLijst->GetItemCount(), 1);
    const wxString status = v.GetStatusBar()->GetStatusText(0);

    v.verzamelaar = [](const wxString&, int, const kern::Families&, wxArrayString& gevonden, std::size_t*,
                       kern::Voortgang* voortgang) {
        voortgang->mappen = 7;
        while (!voortgang->isAfgebroken())
            std::this_thread::yield();
        gevonden.Add("/te/laat.c"); // what a walk that missed the stop would hand back
        return true;
    };
    wxCommandEvent voegToe(wxEVT_BUTTON, wxID_ADD); // not awaited: it ends only when cancelled
    v.ProcessWindowEvent(voegToe);
    ASSERT_TRUE(wachtTot([&] { return v.voortgangDialoog != nullptr && v.voortgangDialoog->IsShownOnScreen(); }));
    EXPECT_TRUE(v.voortgangDialoog->GetMessage().StartsWith("7 directories and 0 files so far"))
        << v.voortgangDialoog->GetMessage();
    klikOp(v.voortgangDialoog->FindWindow(wxID_CANCEL));
    ASSERT_TRUE(wachtTot([&] { return !v.isBezig(); }));
    EXPECT_EQ(v.voortgangDialoog, nullptr);
    EXPECT_EQ(v.bestandSelektieLijst->GetItemCount(), 1);
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), status);
    EXPECT_EQ(v.recenteLokaties.GetCount(), 1u);
}

// Real clicks on a check box, the space bar, a double click, Select all and
// Clear: each changes the store, and the view shows it.
TEST_F(Draden, TheSourceListActsOnTheStore)
{
    startVrij();
    KlavermolVenster& v = venster();
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxSplit("/p/a/x.c,/p/a/y.h,/p/a/sub/z.c,/p/b/x.c", ','), overgeslagen);
    BronLijstWeergave* lijst = v.bestandSelektieLijst;
    verwerk();
    const auto rij = [&](long i) {
        wxRect vak;
        lijst->GetItemRect(i, vak);
        return vak;
    };
    const auto vinkjes = [&] { // as the view shows them, which must be as the store has them
        wxString s;
        for (long i = 0; i < lijst->GetItemCount(); ++i)
            s += lijst->IsItemChecked(i) == v.bronSelektie.isAangevinkt(i) ? lijst->IsItemChecked(i) ? '1' : '0' : '?';
        return s;
    };

    klikOp(lijst, wxPoint(rij(1).x + rij(1).height / 2 + 2, rij(1).GetTop() + rij(1).height / 2)); // y.h's box
    ASSERT_TRUE(wachtTot([&] { return vinkjes() == "1011"; })) << vinkjes();
    klikOp(lijst, wxPoint(rij(1).GetRight() - 10, rij(1).GetTop() + rij(1).height / 2));
    wxUIActionSimulator toets;
    toets.Char(' '); // the current row: y.h
    ASSERT_TRUE(wachtTot([&] { return vinkjes() == "1111"; })) << vinkjes();

    // the double-clicked entry's directory flips, each entry on its own
    klikOp(lijst, wxPoint(rij(0).GetRight() - 10, rij(0).GetTop() + rij(0).height / 2), true);
    ASSERT_TRUE(wachtTot([&] { return vinkjes() == "0011"; })) << vinkjes();

    klikOp(v.selekteerAllesKnop);
    ASSERT_TRUE(wachtTot([&] { return vinkjes() == "1111"; })) << vinkjes();
    klikOp(v.selekteerAllesKnop);
    ASSERT_TRUE(wachtTot([&] { return vinkjes() == "0000"; })) << vinkjes();
    klikOp(v.FindWindow(wxID_CLEAR));
    ASSERT_TRUE(wachtTot([&] { return v.bronSelektie.aantal() == 0; }));
    EXPECT_EQ(lijst->GetItemCount(), 0);
}

} // namespace
