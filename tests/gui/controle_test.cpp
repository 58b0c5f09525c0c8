// Checking the saved file with cmake from the window: when the command is
// there to be had, the results dialog, the way from a message to its line,
// and Cancel during a long build.
#include "programma.h"
#include "dialogs/cmakecontroledialoog.h"
#include "kern/bestand.h"

#include <wx/checkbox.h>
#include <wx/dir.h>
#include <wx/evtloop.h>
#include <wx/filepicker.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <fstream>

class Controle : public ProgrammaTest
{
protected:
    // A project over two sources, generated and saved in `p`; its path.
    wxString bewaarProjekt()
    {
        KlavermolVenster& v = venster();
        // the buttons at the panel's far side in view, at the screen's edge away from other tests' windows
        v.SetSize(0, 0, wxGetDisplaySize().x, std::min(740, wxGetDisplaySize().y));
        v.outputDirPicker->SetPath(maakMap("p"));
        std::size_t overgeslagen = 0;
        const wxString bronnen[] = {maakBestand("p/main.c"), maakBestand("p/src/a.c")};
        v.voegBronnenToe(wxArrayString(2, bronnen), overgeslagen);
        klik(wxID_APPLY);
        const wxString pad = thuis + "/p/CMakeLists.txt";
        EXPECT_TRUE(kern::schrijfTekstBestand(pad, v.uitvoerTekst->GetValue()));
        return pad;
    }

    // The results dialog, moved to the screen's lower right corner.
    CMakeControleDialoog* dialoog()
    {
        auto* d = wxDynamicCast(wxWindow::FindWindowByName(CMakeControleDialoog::naam, &venster()),
                                CMakeControleDialoog);
        if (d != nullptr)
            d->Move(wxGetDisplaySize().x - d->GetSize().x, wxGetDisplaySize().y - d->GetSize().y);
        return d;
    }

    // Does `doe`, then runs the event loop until `klaar` holds (without it:
    // until `bron` sends `soort`), looked at whenever `bron` sends `soort`.
    template <class E>
    void wachtOp(wxEvtHandler& bron, const wxEventTypeTag<E>& soort, std::function<bool()> klaar,
                 const std::function<void()>& doe = {})
    {
        wxGUIEventLoop lus;
        bool gezien = false;
        if (!klaar)
            klaar = [&] { return gezien; };
        auto kijk = [&](E& e) {
            e.Skip();
            gezien = true;
            if (lus.IsRunning() && klaar())
                lus.ScheduleExit();
        };
        bron.Bind(soort, kijk);
        if (doe)
            doe();
        if (!klaar())
            lus.Run();
        bron.Unbind(soort, kijk);
    }
    void wachtOpUitslag(CMakeControleDialoog& d)
    {
        wachtOp(d, EVT_CMAKE_CONTROLE_KLAAR, [&] { return !d.bezig(); });
    }

    // A real mouse click (or double click) on a point of a window, done once
    // the window has sent the event `gevolg` that the click causes.
    template <class E>
    void klikOp(wxWindow& w, const wxEventTypeTag<E>& gevolg, wxPoint punt = wxDefaultPosition, bool dubbel = false)
    {
        wxGetTopLevelParent(&w)->Raise();
        if (punt == wxDefaultPosition)
            punt = wxPoint(w.GetClientSize().x / 2, w.GetClientSize().y / 2);
        wachtOp(w, gevolg, {}, [&] {
            wxUIActionSimulator muis;
            muis.MouseMove(w.ClientToScreen(wxPoint(-3, -3))); // in from outside: the control sees it enter
            verwerk();
            muis.MouseMove(w.ClientToScreen(punt));
            verwerk();
            dubbel ? muis.MouseDblClick() : muis.MouseClick();
        });
    }
    void klikOp(int id) { klikOp(*venster().FindWindow(id), wxEVT_BUTTON); }
};

// One test for everything the mouse does: two such tests at once on one
// display would click into each other's windows.
TEST_F(Controle, EnablingTheVerdictAMessageThatLeadsToItsLineAndCancelDuringALongBuild)
{
    const wxString tijdelijk = maakMap("tmp");
    wxSetEnv("TMPDIR", tijdelijk);
    start();
    EXPECT_FALSE(aan(CMakeControleID)); // no saved file yet
    const wxString pad = bewaarProjekt();
    EXPECT_TRUE(aan(CMakeControleID));
    wxRemoveFile(thuis + "/p/src/a.c"); // deleted after Add
    klikOp(CMakeControleID);
    CMakeControleDialoog* d = dialoog();
    ASSERT_NE(d, nullptr);
    wachtOpUitslag(*d);
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "CMake stopped with 2 errors");

    wxTextCtrl& tekst = *venster().uitvoerTekst;
    const wxString doel = "add_executable(${ProjectName} ${SRCS})";
    const int regel = wxSplit(tekst.GetValue(), '\n', 0).Index(doel) + 1;
    wxListCtrl& lijst = *d->geefMeldingLijst();
    ASSERT_EQ(lijst.GetItemCount(), 3); // the folded note, then the two errors
    EXPECT_EQ(lijst.GetItemText(1, 1), "CMakeLists.txt"); // below the output directory: from there
    EXPECT_EQ(lijst.GetItemText(1, 2), wxString::Format("%d", regel));
    wxRect rij;
    ASSERT_TRUE(lijst.GetItemRect(1, rij));
    klikOp(lijst, wxEVT_LIST_ITEM_ACTIVATED, rij.GetPosition() + wxPoint(20, rij.height / 2), true);
    long van = 0, tot = 0;
    tekst.GetSelection(&van, &tot);
    EXPECT_EQ(van, tekst.XYToPosition(0, regel - 1));
    EXPECT_EQ(tekst.GetStringSelection(), doel);

    // a build that only ends when it is cancelled
    std::ofstream(pad.ToStdString())
        << "cmake_minimum_required(VERSION 3.10)\nproject(Slaap NONE)\n"
           "add_custom_target(slaap ALL COMMAND echo klavermol-slaapt COMMAND sleep 600)\n";
    klikOp(*d->geefBouwKeuze(), wxEVT_CHECKBOX);
    EXPECT_TRUE(d->geefBouwKeuze()->GetValue());
    klikOp(*d->FindWindow(CMakeControleDialoog::OpnieuwID), wxEVT_BUTTON);
    wxTextCtrl& uitvoer = *d->geefUitvoer();
    wachtOp(uitvoer, wxEVT_TEXT, [&] { return uitvoer.GetValue().Contains("klavermol-slaapt"); });
    EXPECT_TRUE(d->bezig());
    klikOp(*d->FindWindow(wxID_CANCEL), wxEVT_BUTTON);
    wachtOpUitslag(*d);
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "The check was cancelled.");
    EXPECT_FALSE(wxDir(tijdelijk).HasSubDirs());
}
