// Clear, Select all and dropping on the search-location picker.
#include "programma.h"

#include "toepassing/bestanddroptarget.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

class Lijsten : public ProgrammaTest
{
protected:
    // The window adds the tree under "src" recursively, C and headers on.
    void voegBoomToe(std::initializer_list<const char*> paden)
    {
        for (const char* pad : paden)
            maakBestand(pad);
        KlavermolVenster& v = venster();
        v.voegCBestandenToe = true;
        v.voegHBestandenToe = true;
        v.voegToeModeKeuze->SetSelection(2);
        v.vindBestandenInDirs->SetPath(thuis + "/src");
        klik(wxID_ADD);
    }

    void vul(wxCheckListBox* lijst, int aantal)
    {
        for (int i = 0; i < aantal; ++i)
            lijst->Check(static_cast<unsigned>(lijst->Append(wxString::Format("/lib/l%02d", i))), false);
    }

    int aantalAangevinkt(wxCheckListBox* lijst)
    {
        int n = 0;
        for (unsigned int i = 0; i < lijst->GetCount(); ++i)
            n += lijst->IsChecked(i);
        return n;
    }

    Antwoord<wxMessageDialog> vraag(int aantal, int antwoord) const
    {
        return beantwoordVraag(wxString::Format("%d files are present the visible selection list.\nDo you want to "
                                                "remove them all?",
                                                aantal),
                               "More than 10 files found", antwoord);
    }
};

// Nine entries go without a question, ten ask; after a clear the same
// files are new again. Clear acts on the list of the page shown only.
TEST_F(Lijsten, ClearAsksFromTenEntriesOnAndActsOnTheVisibleList)
{
    start();
    KlavermolVenster& v = venster();
    voegBoomToe({"src/a.c", "src/b.h", "src/c.c", "src/d.c", "src/e.c", "src/f.c", "src/g.c", "src/h.c", "src/i.c"});
    ASSERT_EQ(v.bestandSelektieLijst->GetCount(), 9u);
    klik(wxID_CLEAR);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);
    voegBoomToe({});
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 9u);
    for (const LogRegel& r : logRegels(wxLOG_Message))
        EXPECT_FALSE(r.tekst.Contains("won't be added")) << r.tekst;

    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxArrayString(1, "/x.c"), overgeslagen);
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(10, wxID_NO));
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 10u);

    vul(v.biebLijst, 12);
    vul(v.includeLijst, 2);
    v.selektieBoek->SetSelection(1);
    v.selekteerAllesKnop->SetValue(true);
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(12, wxID_YES));
    EXPECT_EQ(v.biebLijst->GetCount(), 0u);
    v.selektieBoek->SetSelection(2);
    klik(wxID_CLEAR);
    EXPECT_EQ(v.includeLijst->GetCount(), 0u);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 10u);
    EXPECT_TRUE(v.selekteerAllesKnop->GetValue()); // the toggle is not told
}

// On the "Include files" page the toggle acts on the "Libraries" list (the
// source list's own toggling is driven in the threads test).
TEST_F(Lijsten, SelectAllFollowsItsPageTable)
{
    start();
    KlavermolVenster& v = venster();
    vul(v.biebLijst, 2);
    vul(v.includeLijst, 2);
    v.selektieBoek->SetSelection(2);
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 1);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Deselect All");
    EXPECT_EQ(aantalAangevinkt(v.biebLijst), 2);
    EXPECT_EQ(aantalAangevinkt(v.includeLijst), 0);
    v.selektieBoek->SetSelection(1);
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 0);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Select All");
    EXPECT_EQ(aantalAangevinkt(v.biebLijst), 0);
    v.biebLijst->Clear();
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 1); // an empty list: only the label changes
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Deselect All");
}

// A drop on the picker's text field sets the picker to the directory part of
// the first path only; it neither probes, nor records the location, nor adds
// anything. A drop that names no file (a web link) changes nothing.
TEST_F(Lijsten, DroppingSetsThePickerToTheDirectoryPart)
{
    const wxString proj = thuis + "/proj";
    maakBestand("proj/src/c.c");
    maakBestand("proj/a.c");
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true;
    v.voegToeModeKeuze->SetSelection(1);
    auto* doel = dynamic_cast<BestandDropTarget*>(v.vindBestandenInDirs->GetTextCtrl()->GetDropTarget());
    ASSERT_NE(doel, nullptr);
    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxSplit(proj + "/a.c," + thuis + "/elders/b.c", ','))); // the second is ignored
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
    EXPECT_FALSE(v.heeftCBestanden); // a probe would have found a.c
    EXPECT_EQ(v.lokatieGeschiedenis.geefAantal(), 0u);
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 0u);

    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxArrayString(1, proj + "/src/c.c")));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj + "/src");
    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxArrayString(1, proj + "/src"))); // a directory: its parent
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
    EXPECT_FALSE(doel->OnDropFiles(0, 0, wxArrayString(1, thuis + "/weg/x.c")));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
    verwachtAssert("nIndex < m_nCount");
    EXPECT_FALSE(doel->OnDropFiles(0, 0, wxArrayString()));
    EXPECT_EQ(aantalAsserts("nIndex < m_nCount"), 1);
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
}
