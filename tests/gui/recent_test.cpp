// The recent-locations dialog: the paths in the order given, OK only with a
// row picked, and the picked row handed back.
#include "programma.h"

#include "dialogs/recentelokatievenster.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/testing.h>

namespace {

wxArrayString paden(std::initializer_list<const char*> lijst)
{
    wxArrayString uit;
    for (const char* p : lijst)
        uit.Add(p);
    return uit;
}

bool okAan(RecenteLokatieVenster& dlg)
{
    dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    return dlg.FindWindow(wxID_OK)->IsEnabled();
}

// Picks a row (or none) the way a user would, then answers.
class Kies : public wxExpectModalBase<RecenteLokatieVenster, Kies>
{
public:
    Kies(int rij, int antwoord) : rij(rij), antwoord(antwoord) {}

protected:
    int OnInvoked(RecenteLokatieVenster* dlg) const override
    {
        if (rij != wxNOT_FOUND)
            dlg->geefLijst()->SetSelection(rij);
        return antwoord;
    }

private:
    int rij;
    int antwoord;
};

} // namespace

class Recent : public ProgrammaTest
{
protected:
    std::unique_ptr<RecenteLokatieVenster> maakVenster()
    {
        return std::make_unique<RecenteLokatieVenster>(&venster());
    }
};

TEST_F(Recent, TheDialogIsBuiltAsAListAboveOkAndCancel)
{
    start();
    auto dlg = maakVenster();
    EXPECT_STREQ(dlg->GetClassInfo()->GetClassName(), L"RecenteLokatieVenster");
    EXPECT_EQ(dlg->GetId(), 10000);
    EXPECT_EQ(dlg->GetTitle(), "Recent locations where you searched for CMake files");
    for (long stijl : {wxCAPTION, wxSYSTEM_MENU, wxCLOSE_BOX, wxRESIZE_BORDER, wxSTAY_ON_TOP, wxTAB_TRAVERSAL,
                       wxFULL_REPAINT_ON_RESIZE})
        EXPECT_TRUE(dlg->HasFlag(stijl)) << stijl;

    wxListBox* lijst = dlg->geefLijst();
    ASSERT_NE(lijst, nullptr);
    EXPECT_EQ(lijst->GetId(), 10002);
    EXPECT_EQ(lijst->GetCount(), 0u);
    EXPECT_EQ(lijst->GetMinSize(), wxSize(500, 200));
    EXPECT_TRUE(lijst->HasFlag(wxLB_SINGLE) && lijst->HasFlag(wxLB_HSCROLL)
                && lijst->HasFlag(wxFULL_REPAINT_ON_RESIZE));

    auto* ok = dynamic_cast<wxButton*>(dlg->FindWindow(wxID_OK));
    auto* annuleer = dynamic_cast<wxButton*>(dlg->FindWindow(wxID_CANCEL));
    ASSERT_TRUE(ok != nullptr && annuleer != nullptr);
    EXPECT_EQ(ok->GetLabel(), "OK");
    EXPECT_EQ(annuleer->GetLabel(), "Cancel");
    // one row of buttons, OK first, under the list
    EXPECT_EQ(ok->GetPosition().y, annuleer->GetPosition().y);
    EXPECT_LT(ok->GetPosition().x, annuleer->GetPosition().x);
    EXPECT_GT(ok->GetPosition().y, lijst->GetRect().GetBottom());
    // fitted around its contents
    EXPECT_EQ(dlg->GetClientSize(), dlg->GetSizer()->GetMinSize());
}

TEST_F(Recent, ThePathsAreShownInTheOrderGiven)
{
    start();
    auto dlg = maakVenster();
    dlg->vulpaden(paden({"/home/user/src/newest", "/home/user/src/a", "/opt/oldest"}));
    EXPECT_EQ(dlg->geefLijst()->GetStrings(), paden({"/home/user/src/newest", "/home/user/src/a", "/opt/oldest"}));
    EXPECT_EQ(dlg->geefGekozenPad(), wxNOT_FOUND);
}

TEST_F(Recent, NoPathsLeaveTheListEmpty)
{
    start();
    auto dlg = maakVenster();
    dlg->vulpaden(wxArrayString());
    EXPECT_EQ(dlg->geefLijst()->GetCount(), 0u);
    EXPECT_FALSE(okAan(*dlg));
}

TEST_F(Recent, OkIsAvailableOnlyWhileARowIsPicked)
{
    start();
    auto dlg = maakVenster();
    dlg->vulpaden(paden({"/c", "/b", "/a"}));
    EXPECT_FALSE(okAan(*dlg));
    EXPECT_TRUE(dlg->FindWindow(wxID_CANCEL)->IsEnabled());

    dlg->geefLijst()->SetSelection(2);
    EXPECT_TRUE(okAan(*dlg));
    EXPECT_EQ(dlg->geefGekozenPad(), 2);

    dlg->geefLijst()->SetSelection(0);
    EXPECT_EQ(dlg->geefGekozenPad(), 0);

    dlg->geefLijst()->SetSelection(wxNOT_FOUND);
    EXPECT_FALSE(okAan(*dlg));
    EXPECT_EQ(dlg->geefGekozenPad(), wxNOT_FOUND);
}

TEST_F(Recent, ShownModallyItHandsBackThePickedRow)
{
    start();
    auto dlg = maakVenster();
    dlg->vulpaden(paden({"/c", "/b", "/a"}));
    int antwoord = wxID_NONE;
    wxTEST_DIALOG(antwoord = dlg->ShowModal(), Kies(1, wxID_OK));
    EXPECT_EQ(antwoord, wxID_OK);
    EXPECT_EQ(dlg->geefGekozenPad(), 1);
    EXPECT_EQ(dlg->geefLijst()->GetString(dlg->geefGekozenPad()), "/b");
}
