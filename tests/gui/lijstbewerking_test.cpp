// Clear, Select all, the double-click toggle and dropping on the picker.
#include "programma.h"

#include "toepassing/bestanddroptarget.h"

#include <wx/checklst.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/tglbtn.h>

#include <fstream>

class Lijstbewerking : public ProgrammaTest
{
protected:
    void vul(wxCheckListBox* lijst, int aantal, bool aangevinkt = true)
    {
        for (int i = 0; i < aantal; ++i)
            lijst->Check(static_cast<unsigned>(lijst->Append(wxString::Format("/src/f%02d.c", i))), aangevinkt);
    }

    void klik(int id)
    {
        wxCommandEvent e(wxEVT_BUTTON, id);
        venster().ProcessWindowEvent(e);
    }

    void wissel(bool ingedrukt)
    {
        venster().selekteerAllesKnop->SetValue(ingedrukt);
        wxCommandEvent e(wxEVT_TOGGLEBUTTON, wxID_SELECTALL);
        e.SetInt(ingedrukt);
        venster().ProcessWindowEvent(e);
    }

    int aangevinkt(wxCheckListBox* lijst)
    {
        int n = 0;
        for (unsigned int i = 0; i < lijst->GetCount(); ++i)
            n += lijst->IsChecked(i);
        return n;
    }
};

TEST_F(Lijstbewerking, ClearAsksFromTenEntriesOn)
{
    start();
    KlavermolVenster& v = venster();
    vul(v.bestandSelektieLijst, 9);
    klik(wxID_CLEAR); // nine: no question
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);

    vul(v.bestandSelektieLijst, 10);
    const auto vraag = [](int antwoord) {
        return BeantwoordVraag("10 files are present the visible selection list.\nDo you want to remove them all?",
                               "More than 10 files found", antwoord);
    };
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(wxID_NO));
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 10u);
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(wxID_YES));
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);
}

TEST_F(Lijstbewerking, ClearActsOnTheVisibleListOnly)
{
    start();
    KlavermolVenster& v = venster();
    vul(v.bestandSelektieLijst, 3);
    vul(v.includeLijst, 2);
    v.selektieBoek->SetSelection(2);
    klik(wxID_CLEAR);
    EXPECT_EQ(v.includeLijst->GetCount(), 0u);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 3u);
}

TEST_F(Lijstbewerking, SelectAllFollowsItsPageTable)
{
    start();
    KlavermolVenster& v = venster();
    vul(v.bestandSelektieLijst, 3, false);
    vul(v.biebLijst, 2, false);
    vul(v.includeLijst, 2, false);

    v.selektieBoek->SetSelection(2); // the "Include files" page acts on the "Libraries" list
    wissel(true);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Deselect All");
    EXPECT_EQ(aangevinkt(v.biebLijst), 2);
    EXPECT_EQ(aangevinkt(v.includeLijst), 0);
    EXPECT_EQ(aangevinkt(v.bestandSelektieLijst), 0);

    v.selektieBoek->SetSelection(0);
    wissel(true);
    EXPECT_EQ(aangevinkt(v.bestandSelektieLijst), 3);
    wissel(false);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Select All");
    EXPECT_EQ(aangevinkt(v.bestandSelektieLijst), 0);

    v.bestandSelektieLijst->Clear();
    wissel(true); // an empty list: only the label changes
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Deselect All");
}

TEST_F(Lijstbewerking, DoubleClickTogglesTheEntriesOfOneDirectory)
{
    start();
    KlavermolVenster& v = venster();
    wxCheckListBox* lijst = v.bestandSelektieLijst;
    lijst->Check(static_cast<unsigned>(lijst->Append("/src/a/x.c")), true);
    lijst->Check(static_cast<unsigned>(lijst->Append("/src/a/y.h")), false);
    lijst->Check(static_cast<unsigned>(lijst->Append("/src/a/sub/z.c")), true);
    lijst->Check(static_cast<unsigned>(lijst->Append("/src/b/w.c")), true);
    lijst->SetSelection(0);
    wxCommandEvent dubbel(wxEVT_LISTBOX_DCLICK, BestandSelektieLijstID);
    dubbel.SetInt(0);
    v.ProcessWindowEvent(dubbel);
    EXPECT_FALSE(lijst->IsChecked(0));
    EXPECT_TRUE(lijst->IsChecked(1));
    EXPECT_TRUE(lijst->IsChecked(2));
    EXPECT_TRUE(lijst->IsChecked(3));
}

TEST_F(Lijstbewerking, DroppingSetsThePickerToTheDirectoryPart)
{
    const wxString proj = thuis + "/proj";
    wxFileName::Mkdir(proj + "/src", wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    wxArrayString drie;
    for (const char* naam : {"/a.c", "/b.c", "/c.h"}) {
        std::ofstream((proj + naam).ToStdString()) << "\n";
        drie.Add(proj + naam);
    }
    start();
    KlavermolVenster& v = venster();
    BestandDropTarget doel(&v);
    EXPECT_TRUE(doel.OnDropFiles(0, 0, drie));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);

    EXPECT_TRUE(doel.OnDropFiles(0, 0, wxArrayString(1, proj + "/src")));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);

    EXPECT_FALSE(doel.OnDropFiles(0, 0, wxArrayString(1, thuis + "/weg/x.c")));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
    EXPECT_EQ(doel.OnDragOver(0, 0, wxDragCopy), wxDragCopy);
}
