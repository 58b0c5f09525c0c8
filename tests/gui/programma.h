#pragma once
// Runs the real program in this process for one test: a private HOME with
// its own settings file, a fixed language, a recording log, wx assertions
// turned into test failures unless expected, and no real restart.
#include "toepassing/klavermol.h"
#include "toepassing/bronlijstweergave.h"
#include "toepassing/klavermolvenster.h"

#include <gtest/gtest.h>
#include <wx/evtloop.h>
#include <wx/fileconf.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/testing.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

struct LogRegel
{
    wxLogLevel niveau;
    wxString tekst;
};

class ProgrammaTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Writes the settings file the program will find (before start()).
    void schrijfInstellingen(const std::string& inhoud) { instellingen = inhoud; }
    // Pins the interface language in the settings file (default English).
    void zetTaal(int taal) { eersteTaal = taal; }

    void start();   // constructs the application object and runs OnInit
    void stop();    // closes the program in order: window, then application

    // The settings file as the program left it.
    std::unique_ptr<wxFileConfig> leesInstellingen() const;
    wxString instellingenPad() const { return thuis + "/.Klavermol"; }

    Klavermol& app() const;
    KlavermolVenster& venster() const;

    // Lets pending events and idle processing run; refreshes update-UI state.
    void verwerk();
    // Until the window's probe or Add on its workers has been applied.
    void wachtOpVenster();

    // Sends a command event (button, menu, check box...) to the main window.
    void opdracht(wxEventType soort, int id, int waarde = 0);
    void klik(int id) { opdracht(wxEVT_BUTTON, id); }
    // Whether the window's control `id` is enabled after an update-UI refresh.
    bool aan(int id);
    // Picks `pad` in the search-location picker, as the user does.
    void kiesZoekMap(const wxString& pad);

    // Runs the event loop until `klaar` holds; waits for events, not for
    // time. What never comes fails the test after half a minute, naming `wat`.
    void wachtTot(const std::function<bool()>& klaar, const char* wat = "a condition");
    // Real input through the display: a mouse click in the middle of `w`
    // (returns once `w` has its event of type `soort`), and typing `tekst`
    // into a text field in place of what it holds, closed with Enter.
    void klikOp(wxWindow* w, wxEventType soort = wxEVT_BUTTON);
    void typIn(wxTextCtrl* veld, const wxString& tekst);
    // Moves a choice to row `rij` with the arrow keys, as a keyboard user does.
    void kiesRij(wxChoice* keuze, int rij);

    // A directory, or a one-line file with its directories, below the home.
    wxString maakMap(const wxString& naam) const;
    wxString maakBestand(const wxString& naam) const;

    // The assertion (by its condition text) that this test expects to see.
    void verwachtAssert(const std::string& conditie);
    int aantalAsserts(const std::string& conditie) const;

    std::vector<LogRegel> logRegels(wxLogLevel niveau) const;
    bool heeftLog(wxLogLevel niveau, const wxString& tekst) const;
    // The texts logged at `niveau` that start with `begin`, in order.
    std::vector<wxString> logMet(wxLogLevel niveau, const wxString& begin) const;

    // What the restart seam recorded, in order ("start:<path>", "stop").
    std::vector<std::string> procesStappen;

    wxString thuis;

    // Runs the given test of this program in a new process in the same home,
    // as the next start of the program; returns its exit status.
    int startOpnieuw(const std::string& filter);
    static constexpr const char* vorigThuis = "KLAVERMOL_VORIG_THUIS";
    bool isVervolg() const { return !eigenThuis; }

private:
    bool eigenThuis = true;
    bool gestart = false;
    // The loop every wait of the test runs in, as the program's main loop
    // would be: without one, each yield and each progress dialog makes a
    // passing loop of its own, which can go while it still runs.
    std::unique_ptr<wxEventLoopBase> lus;
    int eersteTaal = -1;
    std::string instellingen;
};

// Answers a modal dialog of type D with what `beantwoord` does with it: it
// checks and works the dialog and gives the answer (wxID_OK, wxID_CANCEL...).
template <class D>
class Antwoord : public wxExpectModalBase<D, Antwoord<D>>
{
public:
    explicit Antwoord(std::function<int(D&)> beantwoord) : beantwoord(std::move(beantwoord)) {}

protected:
    int OnInvoked(D* dlg) const override { return beantwoord(*dlg); }

private:
    std::function<int(D&)> beantwoord;
};

// Answers a Yes/No question after checking its text and caption.
inline Antwoord<wxMessageDialog> beantwoordVraag(const wxString& tekst, const wxString& titel, int antwoord)
{
    return Antwoord<wxMessageDialog>([=](wxMessageDialog& dlg) {
        EXPECT_EQ(dlg.GetMessage() + dlg.GetExtendedMessage(), tekst);
        EXPECT_EQ(dlg.GetTitle(), titel);
        return antwoord;
    });
}

inline void PrintTo(const wxString& s, std::ostream* os)
{
    *os << '"' << s.utf8_string() << '"';
}
