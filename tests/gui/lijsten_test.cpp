// Clear, Select all and dropping on the search-location picker.
#include "programma.h"

#include "toepassing/bestanddroptarget.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

using Lijsten = ProgrammaTest;

// Clear asks from ten entries on and empties the page's list and its data; Select all on "Include files" acts on "Libraries".
TEST_F(Lijsten, ClearAndSelectAllActOnTheirPagesList)
{
    start();
    KlavermolVenster& v = venster();
    const auto vraag = [](int aantal, int antwoord) {
        return beantwoordVraag(wxString::Format("%d files are present the visible selection list.\nDo you want to remove them all?", aantal),
                               "More than 10 files found", antwoord);
    };
    const wxArrayString negen = wxSplit("/a.c,/b.h,/c.c,/d.c,/e.c,/f.c,/g.c,/h.c,/i.c", ',');
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(negen, overgeslagen);
    klik(wxID_CLEAR);
    EXPECT_EQ(v.voegBronnenToe(negen, overgeslagen), 9);
    v.voegBronnenToe(wxArrayString(1, "/x.c"), overgeslagen);
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(10, wxID_NO));
    EXPECT_EQ(v.bestandSelektieLijst->GetCount(), 10u);

    for (int i = 0; i < 12; ++i) { // unchecked entries, and the data behind them
        v.biebLijst->Append("/l"), v.subDirPaden.Add("/l"), v.subDirBiebNamen.Add("l");
        if (i < 2)
            v.includeLijst->Append("/i"), v.includeBestanden.Add("/i");
    }
    const auto vinkjes = [](wxCheckListBox* lijst) { wxArrayInt aan; return wxString::Format("|%u", lijst->GetCheckedItems(aan)); };
    v.selektieBoek->SetSelection(2);
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 1);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel() + vinkjes(v.biebLijst) + vinkjes(v.includeLijst), "Deselect All|12|0");
    v.selektieBoek->SetSelection(1);
    opdracht(wxEVT_TOGGLEBUTTON, wxID_SELECTALL, 0);
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel() + vinkjes(v.biebLijst), "Select All|0");
    EXPECT_FALSE(v.biebLijst->IsFrozen());

    v.selekteerAllesKnop->SetValue(true);
    wxTEST_DIALOG(klik(wxID_CLEAR), vraag(12, wxID_YES));
    EXPECT_EQ(wxString::Format("%u %zu %zu %zu", v.biebLijst->GetCount(), v.subDirPaden.size(), v.subDirBiebNamen.size(),
                               v.includeBestanden.size()), "0 0 0 2");
    v.selektieBoek->SetSelection(2);
    klik(wxID_CLEAR);
    EXPECT_EQ(v.includeLijst->GetCount() + v.includeBestanden.size() + v.biebLijst->IsFrozen() + v.includeLijst->IsFrozen(), 0u);
    EXPECT_TRUE(v.bestandSelektieLijst->GetCount() == 10u && v.selekteerAllesKnop->GetValue()); // the toggle is not told
}

// A drop sets the picker to the first path's directory part, without probe, record or add; a web link changes nothing.
TEST_F(Lijsten, DroppingSetsThePickerToTheDirectoryPart)
{
    const wxString proj = thuis + "/proj";
    maakBestand("proj/src/c.c"), maakBestand("proj/a.c");
    start();
    KlavermolVenster& v = venster();
    v.voegCBestandenToe = true, v.voegToeModeKeuze->SetSelection(1);
    auto* doel = dynamic_cast<BestandDropTarget*>(v.vindBestandenInDirs->GetTextCtrl()->GetDropTarget());
    ASSERT_NE(doel, nullptr);
    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxSplit(proj + "/a.c," + thuis + "/elders/b.c", ','))); // the second is ignored
    EXPECT_EQ(v.vindBestandenInDirs->GetPath() + wxString::Format("|%d|%zu", v.heeftCBestanden, // a probe would find a.c
              v.lokatieGeschiedenis.geefAantal() + v.bestandSelektieLijst->GetCount()), proj + "|0|0");
    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxArrayString(1, proj + "/src/c.c")));
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj + "/src");
    EXPECT_TRUE(doel->OnDropFiles(0, 0, wxArrayString(1, proj + "/src"))); // a directory: its parent
    verwachtAssert("nIndex < m_nCount");
    EXPECT_FALSE(doel->OnDropFiles(0, 0, wxArrayString(1, thuis + "/weg/x.c")) || doel->OnDropFiles(0, 0, {}));
    EXPECT_EQ(aantalAsserts("nIndex < m_nCount"), 1);
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), proj);
}
