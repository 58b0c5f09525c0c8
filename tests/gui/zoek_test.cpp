// Add through the real window: pattern orders, hidden entries, partly known
// directories, the trace lines, the status stack and the unusual modes.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

class Zoek : public ProgrammaTest
{
protected:
    void maak(const char* pad)
    {
        const std::filesystem::path vol = (thuis + "/" + pad).ToStdString();
        std::filesystem::create_directories(vol.parent_path());
        std::ofstream(vol) << "\n";
    }

    // Turns the given switches on (they all start off) and points the picker.
    void richt(std::initializer_list<int> schakelaars, const wxString& map, int modus)
    {
        for (int id : schakelaars) {
            wxCommandEvent e(wxEVT_CHECKBOX, id);
            venster().ProcessWindowEvent(e);
        }
        venster().vindBestandenInDirs->SetPath(map);
        venster().voegToeModeKeuze->SetSelection(modus);
    }

    void voegToe()
    {
        wxCommandEvent e(wxEVT_BUTTON, wxID_ADD);
        venster().ProcessWindowEvent(e);
    }

    std::vector<wxString> lijst() const
    {
        const wxArrayString regels = venster().bestandSelektieLijst->GetStrings();
        return std::vector<wxString>(regels.begin(), regels.end());
    }

    std::vector<wxString> gesorteerd() const
    {
        std::vector<wxString> uit = lijst();
        std::sort(uit.begin(), uit.end());
        return uit;
    }

    wxString status() const { return venster().GetStatusBar()->GetStatusText(0); }

    static wxString totaal(int n)
    {
        return wxString::Format("A total of %d files and dirs was found in  and added to the selection.", n);
    }
};

TEST_F(Zoek, HeadersAloneComeBeforeHppAndTheTwoAssemblerPatternsStayApart)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/b.hpp", "d/q.S", "d/a.h", "d/p.s", "d/c.c", "d/Z.H"})
        maak(naam);
    start();
    richt({VoegHBestandenToeID, VoegSBestandenToeID}, d, 1);
    voegToe();
    // "*.h", "*.hpp", then "*.s", "*.S": q.S only once, Z.H never.
    EXPECT_EQ(lijst(), (std::vector<wxString>{d + "/a.h", d + "/b.hpp", d + "/p.s", d + "/q.S"}));
}

TEST_F(Zoek, ModeTwoLeavesHiddenEntriesOutAndTheExclusionTermExcludesNothing)
{
    const wxString d = thuis + "/d";
    for (const char* naam : {"d/template.c", "d/sub/diep/y.c", "d/.git/x.c", "d/sub/.z.c", "d/k.C"})
        maak(naam);
    start();
    ASSERT_EQ(venster().uitsluitTerm->GetValue(), "template");
    richt({VoegCBestandenToeID}, d, 2);
    voegToe();
    EXPECT_EQ(gesorteerd(), (std::vector<wxString>{d + "/sub/diep/y.c", d + "/template.c"}));
    EXPECT_EQ(status(), totaal(2));
}

TEST_F(Zoek, APartlyKnownDirectoryAsksForAllAndAppendsOnlyTheNewOnesChecked)
{
    const wxString d = thuis + "/d";
    for (int i = 0; i < 11; ++i)
        maak(wxString::Format("d/f%02d.c", i).c_str());
    start();
    KlavermolVenster& v = venster();
    // Five of them are known already, one of those unchecked.
    for (int i = 0; i < 5; ++i)
        v.bronSelektie.voegToe(d + wxString::Format("/f%02d.c", i));
    for (int i = 0; i < 5; ++i)
        v.bestandSelektieLijst->Append(d + wxString::Format("/f%02d.c", i));
    v.bestandSelektieLijst->Check(0);
    richt({VoegCBestandenToeID}, d, 1);
    wxTEST_DIALOG(voegToe(), BeantwoordVraag("11 files were found and will be added to the selection list.\nDo "
                                             "you want to proceed?",
                                             "More than 10 files found", wxID_YES));
    ASSERT_EQ(v.bestandSelektieLijst->GetCount(), 11u);
    const std::vector<wxString> regels = lijst();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(regels[i], d + wxString::Format("/f%02d.c", i)); // the known ones keep their places
    std::vector<wxString> nieuw(regels.begin() + 5, regels.end());
    std::sort(nieuw.begin(), nieuw.end());
    for (int i = 5; i < 11; ++i)
        EXPECT_EQ(nieuw[i - 5], d + wxString::Format("/f%02d.c", i));
    EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(0));
    for (unsigned int i = 1; i < 5; ++i)
        EXPECT_FALSE(v.bestandSelektieLijst->IsChecked(i)) << i;
    for (unsigned int i = 5; i < 11; ++i)
        EXPECT_TRUE(v.bestandSelektieLijst->IsChecked(i)) << i;
    int meldingen = 0;
    for (const LogRegel& r : logRegels(wxLOG_Message))
        meldingen += r.tekst.EndsWith(" won't be added since it is already in your selection list.");
    EXPECT_EQ(meldingen, 5);
    EXPECT_TRUE(heeftLog(wxLOG_Message, d + "/f03.c won't be added since it is already in your selection list."));
    EXPECT_EQ(status(), totaal(6));
}

TEST_F(Zoek, EveryFoundPathLeavesATraceLineAndTheCountIsLogged)
{
    const wxString d = thuis + "/d";
    maak("d/a.c");
    start();
    richt({VoegCBestandenToeID}, d, 1);
    voegToe();
    voegToe();
    std::vector<wxString> sporen;
    for (const LogRegel& r : logRegels(wxLOG_Debug))
        if (r.tekst.StartsWith("OnAddCLick") || r.tekst.StartsWith("The selected directory"))
            sporen.push_back(r.tekst);
    const wxString spoor = "OnAddCLick : voeg toe bestand: \"" + d + "/a.c\"";
    const wxString aantal = "The selected directory resulted in the addition of 1 files";
    EXPECT_EQ(sporen, (std::vector<wxString>{aantal, spoor, aantal, spoor}));
}

TEST_F(Zoek, EachAddReplacesItsStatusLineOnTheStack)
{
    maak("d/a.c");
    start();
    KlavermolVenster& v = venster();
    // What lies under the welcome line, then the welcome line back on top.
    const wxString welkom = status();
    v.PopStatusText(0);
    const wxString onder = status();
    v.PushStatusText(welkom, 0);

    richt({VoegCBestandenToeID}, thuis + "/d", 1);
    voegToe();
    EXPECT_EQ(status(), totaal(1));
    voegToe();
    EXPECT_EQ(status(), totaal(0));
    v.PopStatusText(0); // one level down: neither the first Add's line nor the welcome
    EXPECT_EQ(status(), onder);
}

TEST_F(Zoek, ACancelledFileDialogAndNoModeAtAllStillFinishTheCommand)
{
    const wxString d = thuis + "/d";
    maak("d/a.c");
    start();
    KlavermolVenster& v = venster();
    richt({VoegCBestandenToeID}, d, 0);
    v.selektieBoek->SetSelection(1);
    wxTEST_DIALOG(voegToe(), wxExpectModal<wxFileDialog>(wxString(), wxID_CANCEL));
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(status(), totaal(0));
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");

    v.selektieBoek->SetSelection(2);
    v.voegToeModeKeuze->SetSelection(wxNOT_FOUND);
    v.recenteLokaties.AddFileToHistory(thuis);
    voegToe(); // no dialog, nothing collected
    EXPECT_TRUE(lijst().empty());
    EXPECT_EQ(v.selektieBoek->GetSelection(), 0);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), d + "/");
}
