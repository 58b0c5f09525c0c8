// The list operations on lists that the window filled itself: clear keeps
// list and model in step, select all by page, the double click on a tree.
#include "programma.h"

#include "toepassing/bestanddroptarget.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/tglbtn.h>

#include <filesystem>
#include <fstream>

class Lijsten : public ProgrammaTest
{
protected:
    // Files under the home; then the window adds that tree recursively
    // with C and header files on.
    void voegBoomToe(std::initializer_list<const char*> paden)
    {
        for (const char* pad : paden) {
            const std::filesystem::path vol = (thuis + "/" + pad).ToStdString();
            std::filesystem::create_directories(vol.parent_path());
            std::ofstream(vol) << "\n";
        }
        KlavermolVenster& v = venster();
        v.voegCBestandenToe = true;
        v.voegHBestandenToe = true;
        v.voegToeModeKeuze->SetSelection(2);
        v.vindBestandenInDirs->SetPath(thuis + "/src");
        opdracht(wxEVT_BUTTON, wxID_ADD);
    }

    void opdracht(wxEventType soort, int id, int waarde = 0)
    {
        wxCommandEvent e(soort, id);
        e.SetInt(waarde);
        venster().ProcessWindowEvent(e);
    }

    int rij(const wxString& pad) const { return venster().bestandSelektieLijst->FindString(thuis + pad, true); }

    bool aan(const wxString& pad) const { return venster().bestandSelektieLijst->IsChecked(rij(pad)); }

    void vul(wxCheckListBox* lijst, int aantal)
    {
        for (int i = 0; i < aantal; ++i)
            lijst->Append(wxString::Format("/lib/l%02d", i));
    }
};

TEST_F(Lijsten, AfterClearTheSameFilesAreNewAgain)
{
    start();
    voegBoomToe({"src/a.c", "src/b.h"});
    ASSERT_EQ(venster().bestandSelektieLijst->GetCount(), 2u);
    opdracht(wxEVT_BUTTON, wxID_CLEAR);
    EXPECT_EQ(venster().bestandSelektieLijst->GetCount(), 0u);
    EXPECT_EQ(venster().bronSelektie.aantal(), 0u);
    opdracht(wxEVT_BUTTON, wxID_ADD);
    EXPECT_EQ(venster().bestandSelektieLijst->GetCount(), 2u);
    for (const LogRegel& r : logRegels(wxLOG_Message))
        EXPECT_FALSE(r.tekst.Contains("won't be added")) << r.tekst;
}

TEST_F(Lijsten, ClearOnTheLibrariesPageAsksWithItsOwnCountAndLeavesTheRest)
{
    start();
    KlavermolVenster& v = venster();
    voegBoomToe({"src/a.c"});
    vul(v.biebLijst, 12);
    v.selektieBoek->SetSelection(1);
    v.selekteerAllesKnop->SetValue(true);
    const wxString vraag = "12 files are present the visible selection list.\nDo you want to remove them all?";
    wxTEST_DIALOG(opdracht(wxEVT_BUTTON, wxID_CLEAR), BeantwoordVraag(vraag, "More than 10 files found", wxID_YES));
    EXPECT_EQ(v.biebLijst->GetCount(), 0u);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 1u);
    EXPECT_TRUE(v.selekteerAllesKnop->GetValue()); // the toggle is not told
    EXPECT_EQ(v.recenteLokaties.GetCount(), 1u);
}

TEST_F(Lijsten, SelectAllOnTheLibrariesPageActsThereOnly)
{
    start();
    KlavermolVenster& v = venster();
    voegBoomToe({"src/a.c"});
    vul(v.biebLijst, 3);
    vul(v.includeLijst, 2);
    v.selektieBoek->SetSelection(1);
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 1);
    for (unsigned int i = 0; i < 3; ++i)
        EXPECT_TRUE(v.biebLijst->IsChecked(i));
    EXPECT_FALSE(v.includeLijst->IsChecked(0));
    EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(0));
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 0);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Select All");
    EXPECT_FALSE(v.biebLijst->IsChecked(2));
    EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(0)); // the source list is on another page
}

TEST_F(Lijsten, DoubleClickInvertsOneDirectoryOfATreeTheWindowAdded)
{
    start();
    voegBoomToe({"src/a/x.c", "src/a/y.h", "src/a/sub/z.c", "src/b/x.c"});
    KlavermolVenster& v = venster();
    ASSERT_EQ(v.bestandSelektieLijst->GetCount(), 4u);
    v.bestandSelektieLijst->Check(rij("/src/a/y.h"), false);

    opdracht(wxEVT_LISTBOX_DCLICK, BestandSelektieLijstID, rij("/src/a/x.c"));
    EXPECT_FALSE(aan("/src/a/x.c"));
    EXPECT_TRUE(aan("/src/a/y.h"));
    EXPECT_TRUE(aan("/src/a/sub/z.c"));
    EXPECT_TRUE(aan("/src/b/x.c")); // same name, other directory

    // Clicking the other entry of the same directory inverts both back.
    opdracht(wxEVT_LISTBOX_DCLICK, BestandSelektieLijstID, rij("/src/a/y.h"));
    EXPECT_TRUE(aan("/src/a/x.c"));
    EXPECT_FALSE(aan("/src/a/y.h"));

    // No entry named: nothing has an empty directory, nothing changes.
    opdracht(wxEVT_LISTBOX_DCLICK, BestandSelektieLijstID, wxNOT_FOUND);
    EXPECT_TRUE(aan("/src/a/x.c"));
    EXPECT_FALSE(aan("/src/a/y.h"));
    EXPECT_TRUE(aan("/src/a/sub/z.c"));
}

TEST_F(Lijsten, ADropNeitherProbesNorRecordsTheLocation)
{
    const wxString proj = thuis + "/proj";
    wxFileName::Mkdir(proj + "/src", wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    std::ofstream((proj + "/src/a.c").ToStdString()) << "\n";
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    ASSERT_FALSE(v.heeftCBestanden);
    BestandDropTarget doel(&v);
    wxArrayString twee;
    twee.Add(proj + "/src/a.c");
    twee.Add(thuis + "/elders/b.c"); // ignored
    EXPECT_TRUE(doel.OnDropFiles(0, 0, twee));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj + "/src");
    EXPECT_FALSE(v.heeftCBestanden); // a probe would have found a.c
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);
}
