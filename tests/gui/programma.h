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

    // Before start(): the settings file the program finds, its language (English).
    void schrijfInstellingen(const std::string& inhoud) { instellingen = inhoud; }
    void zetTaal(int taal) { eersteTaal = taal; }

    void start();   // constructs the application object and runs OnInit
    void stop();    // closes the program in order: window, then application

    std::unique_ptr<wxFileConfig> leesInstellingen() const; // as the program left it
    wxString instellingenPad() const { return thuis + "/.Klavermol"; }

    Klavermol& app() const { return wxGetApp(); }
    KlavermolVenster& venster() const { return *app().geefVenster(); }

    void verwerk();        // pending events and idle time; update-UI refreshed
    void wachtOpVenster(); // until the window's workers have been applied

    // A command event (button, menu, check box...) sent to the main window.
    void opdracht(wxEventType soort, int id, int waarde = 0);
    void klik(int id) { opdracht(wxEVT_BUTTON, id); }
    bool aan(int id); // control `id` enabled after an update-UI refresh
    void kiesZoekMap(const wxString& pad); // picked as the picker does

    // Runs the event loop until `klaar` holds; waits for events, not for
    // time. What never comes fails the test after half a minute, naming `wat`.
    void wachtTot(const std::function<bool()>& klaar, const char* wat = "a condition");
    // Real input: a click (or double click) on `punt` of `w` (its middle) once it can take
    // one, until `w` has its event `soort`; typing `tekst` over a field's text, then Enter.
    void klikOp(wxWindow* w, wxEventType soort = wxEVT_BUTTON, wxPoint punt = wxDefaultPosition, bool dubbel = false);
    void typIn(wxTextCtrl* veld, const wxString& tekst);
    // Moves a choice to row `rij` with the arrow keys, as a keyboard user does.
    void kiesRij(wxChoice* keuze, int rij);

public:
    // Nothing hidden or on top of another: below `ouder` each shown control has a size and
    // lies inside its parent, apart from its siblings.
    static void controleerIndeling(wxWindow* ouder);
    static bool isGeplaatst(wxWindow* top); // framed and placed where the toolkit thinks

protected:
    // A directory, or a one-line file with its directories, below the home.
    wxString maakMap(const wxString& naam) const;
    wxString maakBestand(const wxString& naam) const;

    // An assertion (by its condition text) this test expects to see.
    void verwachtAssert(const std::string& conditie);
    int aantalAsserts(const std::string& conditie) const;

    std::vector<LogRegel> logRegels(wxLogLevel niveau) const;
    bool heeftLog(wxLogLevel niveau, const wxString& tekst) const;
    std::vector<wxString> logMet(wxLogLevel niveau, const wxString& begin) const; // in order

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
    // The loop every wait runs in, as the main loop would be: without it each yield and
    // progress dialog makes a passing loop of its own, which can go while it still runs.
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
