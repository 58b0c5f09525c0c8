// Checking the saved file with cmake from the window: when the command is
// there to be had, the results dialog, the way from a message to its line,
// and Cancel during a long build.
#include "programma.h"
#include "dialogs/cmakecontroledialoog.h"
#include "kern/bestand.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dir.h>
#include <wx/evtloop.h>
#include <wx/filepicker.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
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
        // Wide enough to show the buttons at the panel's far side, which comes
        // to lie at the screen's right edge, away from other tests' windows.
        const wxSize scherm = wxGetDisplaySize();
        v.SetSize(0, 0, scherm.x, std::min(740, scherm.y));
        v.outputDirPicker->SetPath(maakMap("p"));
        std::size_t overgeslagen = 0;
        wxArrayString bronnen;
        bronnen.Add(maakBestand("p/main.c"));
        bronnen.Add(maakBestand("p/src/a.c"));
        v.voegBronnenToe(bronnen, overgeslagen);
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
        {
            d->Move(wxGetDisplaySize().x - d->GetSize().x, wxGetDisplaySize().y - d->GetSize().y);
            verwerk();
        }
        return d;
    }

    // Runs the event loop until `klaar` holds, looked at whenever `bron` sends `soort`.
    template <class E>
    void wachtOp(wxEvtHandler& bron, const wxEventTypeTag<E>& soort, const std::function<bool()>& klaar)
    {
        wxGUIEventLoop lus;
        auto kijk = [&](E& e) {
            e.Skip();
            if (klaar())
                lus.ScheduleExit();
        };
        bron.Bind(soort, kijk);
        if (!klaar())
            lus.Run();
        bron.Unbind(soort, kijk);
    }
    void wachtOpUitslag(CMakeControleDialoog& d)
    {
        wachtOp(d, EVT_CMAKE_CONTROLE_KLAAR, [&] { return !d.bezig(); });
    }

    // A real mouse click (or double click) on a point of a window; returns
    // once the window has sent the event `gevolg` that the click causes.
    template <class E>
    void klikOp(wxWindow& w, const wxEventTypeTag<E>& gevolg, wxPoint punt = wxDefaultPosition, bool dubbel = false)
    {
        wxGetTopLevelParent(&w)->Raise();
        verwerk();
        wxGUIEventLoop lus;
        bool gezien = false;
        auto zie = [&](E& e) {
            e.Skip();
            gezien = true;
            if (lus.IsRunning())
                lus.ScheduleExit();
        };
        w.Bind(gevolg, zie);
        wxUIActionSimulator muis;
        // in from outside, so that the control sees the pointer enter
        muis.MouseMove(w.ClientToScreen(wxPoint(-3, -3)));
        verwerk();
        const wxSize maat = w.GetClientSize();
        muis.MouseMove(w.ClientToScreen(punt == wxDefaultPosition ? wxPoint(maat.x / 2, maat.y / 2) : punt));
        verwerk();
        if (dubbel)
            muis.MouseDblClick();
        else
            muis.MouseClick();
        if (!gezien)
            lus.Run();
        w.Unbind(gevolg, zie);
    }
    void klikOp(int id) { klikOp(*venster().FindWindow(id), wxEVT_BUTTON); }
};

TEST_F(Controle, AvailableOnceTheFileOfTheCurrentOutputIsSaved)
{
    start();
    KlavermolVenster& v = venster();
    auto beide = [&] {
        v.DoMenuUpdates();
        EXPECT_EQ(v.GetMenuBar()->IsEnabled(CMakeControleID), aan(CMakeControleID));
        return aan(CMakeControleID);
    };
    EXPECT_FALSE(beide());
    bewaarProjekt();
    EXPECT_TRUE(beide());
    // the include kind's file is another one, not saved yet
    v.uitvoerSoortKeuze->SetSelection(2);
    opdracht(wxEVT_CHOICE, UitvoerSoortKeuzeID, 2);
    EXPECT_FALSE(beide());
    std::ofstream((thuis + "/p/MyFirstProject.cmake").ToStdString()) << "\n";
    EXPECT_TRUE(beide());
}

// One test for everything the mouse does: two such tests at once on one
// display would click into each other's windows.
TEST_F(Controle, TheVerdictAMessageThatLeadsToItsLineAndCancelDuringALongBuild)
{
    const wxString tijdelijk = maakMap("tmp");
    wxSetEnv("TMPDIR", tijdelijk);
    start();
    const wxString pad = bewaarProjekt();
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
    EXPECT_EQ(lijst.GetItemText(1, 0), "Error");
    EXPECT_EQ(lijst.GetItemText(1, 1), "CMakeLists.txt"); // below the output directory: from there
    EXPECT_EQ(lijst.GetItemText(1, 2), wxString::Format("%d", regel));
    EXPECT_TRUE(lijst.GetItemText(1, 3).StartsWith("Cannot find source file: " + thuis + "/p/src/a.c"));
    wxRect rij;
    ASSERT_TRUE(lijst.GetItemRect(1, rij));
    klikOp(lijst, wxEVT_LIST_ITEM_ACTIVATED, rij.GetPosition() + wxPoint(20, rij.height / 2), true);
    long van = 0, tot = 0;
    tekst.GetSelection(&van, &tot);
    EXPECT_EQ(van, tekst.XYToPosition(0, regel - 1));
    EXPECT_EQ(tekst.GetStringSelection(), doel);

    // a build that only ends when it is cancelled
    std::ofstream(pad.ToStdString()) << "cmake_minimum_required(VERSION 3.10)\nproject(Slaap NONE)\n"
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
