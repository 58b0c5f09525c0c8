// The window while its workers run, and the source list acting on its store.
#include "programma.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/progdlg.h>
#include <wx/tglbtn.h>
#include <wx/tooltip.h>
#include <wx/uiaction.h>

#include <thread>

using Draden = ProgrammaTest;

// The first pick's slow probe ends only when stopped and then claims C files: the second pick's answer stays.
TEST_F(Draden, ALaterPickWinsOverAnEarlierSlowProbe)
{
    const wxString traag = maakMap("traag"), snel = maakMap("snel");
    start();
    KlavermolVenster& v = venster();
    v.uitvoerSoortKeuze->SetSelection(1), v.voegCBestandenToe = true, v.voegToeModeKeuze->SetSelection(1); // a library's probe sets the output dir
    v.onderzoeker = [](const wxString& map, int, const kern::Families&, kern::Aanwezig& vlaggen, kern::Voortgang* af) {
        while (map.Contains("traag") && !af->isAfgebroken())
            std::this_thread::yield();
        return vlaggen.c = map.Contains("traag"), true;
    };
    v.vindBestandenInDirs->SetPath(traag); // picked, not awaited: its probe ends only when stopped
    wxFileDirPickerEvent gekozen(wxEVT_DIRPICKER_CHANGED, v.vindBestandenInDirs, VindBestandenInDirsID, traag);
    v.ProcessWindowEvent(gekozen);
    kiesZoekMap(snel);
    EXPECT_EQ(wxString::Format("%d|", v.heeftCBestanden) + v.outputDirPicker->GetPath(), "0|" + snel);
}

// Clicks, space, double click and Select all change the store; a cancelled Add's walk leaves all as it was.
TEST_F(Draden, TheSourceListActsOnTheStoreAndACancelledAddLeavesIt)
{
    start();
    KlavermolVenster& v = venster();
    klikOp(v.GetStatusBar(), wxEVT_LEFT_UP), wxToolTip::Enable(false); // the window takes the keyboard; all buttons in sight, no tips
    v.SetSize(wxGetDisplaySize());
    wachtTot([&] { return v.GetSize().y > 700; }, "the full size");
    const auto muisOp = [](wxWindow* w, const wxPoint& plek, bool dubbel) { // the pointer coming in from outside
        wxUIActionSimulator muis;
        muis.MouseMove(0, 0);
        muis.MouseMove(w->ClientToScreen(plek));
        dubbel ? muis.MouseDblClick() : muis.MouseClick();
    };
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxSplit("/p/a/x.c,/p/a/y.h,/p/a/sub/z.c,/p/b/x.c", ','), overgeslagen);
    BronLijstWeergave* lijst = v.bestandSelektieLijst;
    verwerk();
    const auto wordt = [&](const char* verwacht) { // as the view shows them, which must be as the store has them
        wachtTot([&] {
            wxString s;
            for (long i = 0; i < lijst->GetItemCount(); ++i)
                s += lijst->IsItemChecked(i) != v.bronSelektie.isAangevinkt(i) ? '?' : lijst->IsItemChecked(i) ? '1' : '0';
            return s == verwacht;
        }, verwacht);
    };
    const auto opRij = [&](long i, bool vakje, bool dubbel = false) {
        wxRect r;
        lijst->GetItemRect(i, r);
        muisOp(lijst, wxPoint(vakje ? r.x + r.height / 2 + 2 : r.GetRight() - 10, r.y + r.height / 2), dubbel);
    };
    opRij(1, true), wordt("1011"); // y.h's box
    opRij(1, false), wxUIActionSimulator().Char('x'), wxUIActionSimulator().Char(' '), wordt("1111"); // only the space bar flips: y.h
    opRij(0, false, true), wordt("0011"); // the double-clicked entry's directory flips, each entry on its own
    for (const char* verwacht : {"1111", "0000"})
        klikOp(v.selekteerAllesKnop, wxEVT_TOGGLEBUTTON), wordt(verwacht);
    EXPECT_FALSE(lijst->IsFrozen());

    const wxString status = v.GetStatusBar()->GetStatusText(0);
    v.voegToeModeKeuze->SetSelection(1);
    v.verzamelaar = [](const wxString&, int, const kern::Families&, kern::Vondst& gevonden, std::size_t*,
                       kern::Voortgang* voortgang) {
        voortgang->mappen = 7;
        while (!voortgang->isAfgebroken())
            std::this_thread::yield();
        kern::voegPadenToe(gevonden, wxArrayString(1, "/te/laat.c")); // what a walk that missed the stop would hand back
        return true;
    };
    wxCommandEvent voegToe(wxEVT_BUTTON, wxID_ADD);
    v.ProcessWindowEvent(voegToe); // not awaited: it ends only when cancelled
    wachtTot([&] { return v.voortgangDialoog != nullptr && v.voortgangDialoog->IsShownOnScreen(); }, "the progress");
    EXPECT_EQ(v.voortgangDialoog->GetMessage().Left(32), "7 directories and 0 files so far");
    const wxWindow* annuleer = v.voortgangDialoog->FindWindow(wxID_CANCEL);
    muisOp(v.voortgangDialoog, annuleer->GetPosition() + annuleer->GetSize() / 2, false);
    wachtTot([&] { return !v.isBezig(); }, "the cancelled walk");
    EXPECT_EQ(wxString::Format("%d %zu %zu ", v.voortgangDialoog == nullptr, v.bronSelektie.aantal(), v.recenteLokaties.GetCount())
                  + v.GetStatusBar()->GetStatusText(0), "1 4 0 " + status);
}
