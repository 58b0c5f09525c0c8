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

#include <fstream>

using Controle = ProgrammaTest;

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
    klikOp(v.FindWindow(CMakeControleID));
    auto* d = wxDynamicCast(wxWindow::FindWindowByName(CMakeControleDialoog::naam, &v), CMakeControleDialoog);
    ASSERT_NE(d, nullptr);
    wachtTot([&] { return !d->bezig(); }, "the check to end");
    controleerIndeling(d);
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "CMake stopped with 2 errors");

    const wxString doel = "add_executable(${ProjectName} ${SRCS})";
    const int regel = wxSplit(v.uitvoerTekst->GetValue(), '\n', 0).Index(doel) + 1;
    wxListCtrl& lijst = *d->geefMeldingLijst();
    ASSERT_EQ(lijst.GetItemCount(), 3); // the folded note, then the two errors
    EXPECT_EQ(lijst.GetItemText(1, 1) + ":" + lijst.GetItemText(1, 2) + " " + lijst.GetItemText(1, 3),
              wxString::Format("CMakeLists.txt:%d Cannot find source file: %s/p/src/a.c", regel, thuis)); // without the search list
    wxRect rij;
    ASSERT_TRUE(lijst.GetItemRect(1, rij));
    klikOp(&lijst, wxEVT_LIST_ITEM_ACTIVATED, rij.GetPosition() + wxPoint(20, rij.height / 2), true);
    EXPECT_EQ(v.uitvoerTekst->GetStringSelection(), doel);

    // a build that only ends when it is cancelled
    std::ofstream(pad.ToStdString())
        << "cmake_minimum_required(VERSION 3.10)\nproject(Slaap NONE)\n"
           "add_custom_target(slaap ALL COMMAND echo klavermol-slaapt COMMAND sleep 600)\n";
    klikOp(d->geefBouwKeuze(), wxEVT_CHECKBOX);
    klikOp(d->FindWindow(CMakeControleDialoog::OpnieuwID));
    wachtTot([&] { return d->geefUitvoer()->GetValue().Contains("klavermol-slaapt"); }, "the build's output");
    klikOp(d->FindWindow(wxID_CANCEL));
    wachtTot([&] { return !d->bezig(); }, "the cancelled check to end");
    EXPECT_EQ(d->geefOordeel()->GetLabel(), "The check was cancelled.");
    EXPECT_FALSE(wxDir(thuis + "/tmp").HasSubDirs());
}
