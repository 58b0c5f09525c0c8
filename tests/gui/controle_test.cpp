// Checking the saved file with cmake from the window.
#include "programma.h"
#include "dialogs/cmakecontroledialoog.h"
#include "kern/bestand.h"

#include <wx/checkbox.h>
#include <wx/dir.h>
#include <wx/filepicker.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <fstream>

#include <gtk/gtk.h>

class Controle : public ProgrammaTest
{
protected:
    // A real mouse click (or double click) on `punt` of `w` once it can take it; until `w` sends `gevolg`.
    void klikIn(wxWindow& w, wxEventType gevolg, wxPoint punt = wxDefaultPosition, bool dubbel = false)
    {
        auto* top = static_cast<wxTopLevelWindow*>(wxGetTopLevelParent(&w));
        top->Raise();
        wachtTot([&] { // shown, enabled, and its window where the display has it
            GdkRectangle r;
            gdk_window_get_frame_extents(gtk_widget_get_window(top->GetHandle()), &r);
            return w.IsShownOnScreen() && w.IsEnabled() && top->IsActive() && wxPoint(r.x, r.y) == top->GetPosition();
        }, "a control to click");
        if (punt == wxDefaultPosition)
            punt = wxPoint(w.GetClientSize().x / 2, w.GetClientSize().y / 2);
        bool gezien = false;
        auto kijk = [&](wxEvent& e) { e.Skip(), gezien = true; };
        w.Bind(wxEventTypeTag<wxEvent>(gevolg), kijk);
        wxUIActionSimulator muis;
        muis.MouseMove(w.ClientToScreen(wxPoint(-3, -3))); // in from outside: the control sees it enter
        verwerk();
        muis.MouseMove(w.ClientToScreen(punt));
        verwerk();
        dubbel ? muis.MouseDblClick() : muis.MouseClick();
        wachtTot([&] { return gezien; }, "the click's event");
        w.Unbind(wxEventTypeTag<wxEvent>(gevolg), kijk);
    }
};

// One test for all mouse work: two at once would click into each other's windows.
TEST_F(Controle, EnablingTheVerdictAMessageThatLeadsToItsLineAndCancelDuringALongBuild)
{
    start();
    KlavermolVenster& v = venster();
    EXPECT_FALSE(aan(CMakeControleID)); // no saved file yet
    v.outputDirPicker->SetPath(maakMap("p"));
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxSplit(maakBestand("p/main.c") + "," + maakBestand("p/src/a.c"), ','), overgeslagen);
    klik(wxID_APPLY);
    const wxString pad = thuis + "/p/CMakeLists.txt";
    ASSERT_TRUE(kern::schrijfTekstBestand(pad, v.uitvoerTekst->GetValue()));
    EXPECT_TRUE(aan(CMakeControleID));
    wxRemoveFile(thuis + "/p/src/a.c"); // deleted after Add
    if (wxSplashScreen* splash = app().geefSplash()) // it stays on top for its two seconds
        splash->Destroy();
    wachtTot([this] { return app().geefSplash() == nullptr; }, "the splash screen to go");
    klikIn(*v.FindWindow(CMakeControleID), wxEVT_BUTTON);
    auto* d = wxDynamicCast(wxWindow::FindWindowByName(CMakeControleDialoog::naam, &v), CMakeControleDialoog);
    ASSERT_NE(d, nullptr);
    wachtTot([&] { return !d->bezig(); }, "the check to end");
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "CMake stopped with 2 errors");

    const wxString doel = "add_executable(${ProjectName} ${SRCS})";
    const int regel = wxSplit(v.uitvoerTekst->GetValue(), '\n', 0).Index(doel) + 1;
    wxListCtrl& lijst = *d->geefMeldingLijst();
    ASSERT_EQ(lijst.GetItemCount(), 3); // the folded note, then the two errors
    EXPECT_EQ(lijst.GetItemText(1, 1), "CMakeLists.txt"); // below the output directory: from there
    EXPECT_EQ(lijst.GetItemText(1, 2), wxString::Format("%d", regel));
    wxRect rij;
    ASSERT_TRUE(lijst.GetItemRect(1, rij));
    klikIn(lijst, wxEVT_LIST_ITEM_ACTIVATED, rij.GetPosition() + wxPoint(20, rij.height / 2), true);
    EXPECT_EQ(v.uitvoerTekst->GetStringSelection(), doel);

    // a build that only ends when it is cancelled
    std::ofstream(pad.ToStdString())
        << "cmake_minimum_required(VERSION 3.10)\nproject(Slaap NONE)\n"
           "add_custom_target(slaap ALL COMMAND echo klavermol-slaapt COMMAND sleep 600)\n";
    klikIn(*d->geefBouwKeuze(), wxEVT_CHECKBOX);
    klikIn(*d->FindWindow(CMakeControleDialoog::OpnieuwID), wxEVT_BUTTON);
    wachtTot([&] { return d->geefUitvoer()->GetValue().Contains("klavermol-slaapt"); }, "the build's output");
    klikIn(*d->FindWindow(wxID_CANCEL), wxEVT_BUTTON);
    wachtTot([&] { return !d->bezig(); }, "the cancelled check to end");
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "The check was cancelled.");
    EXPECT_FALSE(wxDir(thuis + "/tmp").HasSubDirs());
}
