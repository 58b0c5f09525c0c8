#pragma once
// Shows a check of the saved file with cmake while it runs: CMake's output
// streaming in, Cancel, then the verdict and the list of messages. The check
// itself runs on a worker thread; its lines reach this dialog by CallAfter.
#include "kern/cmakecontrole.h"

#include <wx/dialog.h>
#include <wx/intl.h>

#include <functional>
#include <mutex>
#include <thread>

class wxCheckBox;
class wxGauge;
class wxListCtrl;
class wxListEvent;
class wxStaticText;
class wxTextCtrl;

// Sent by the dialog to itself when a check has ended and its result shows.
wxDECLARE_EVENT(EVT_CMAKE_CONTROLE_KLAAR, wxCommandEvent);

class CMakeControleDialoog : public wxDialog
{
    wxDECLARE_DYNAMIC_CLASS(CMakeControleDialoog);
    wxDECLARE_EVENT_TABLE();

public:
    enum { CMakeControleDialoogID = 10000, BouwKeuzeID = 10001, OpnieuwID = 10002, MeldingLijstID = 10003 };
    static constexpr const char* naam = "cmakeControleDialoog";

    CMakeControleDialoog() = default;
    explicit CMakeControleDialoog(wxWindow* ouder, wxWindowID id = CMakeControleDialoogID,
                                  const wxString& titel = _("Check with CMake"));
    ~CMakeControleDialoog() override;

    bool Create(wxWindow* ouder, wxWindowID id = CMakeControleDialoogID, const wxString& titel = _("Check with CMake"));
    void CreateControls();

    // Starts a check of `opdracht` (its build flag taken from "Build as well").
    void start(const kern::ControleOpdracht& opdracht);
    bool bezig() const { return werker.joinable(); }

    // Called with a line of the checked file when a message pointing into it
    // is activated.
    void zetSpringer(std::function<void(int)> springer) { this->springer = std::move(springer); }

    wxCheckBox* geefBouwKeuze() const { return bouwKeuze; }
    wxStaticText* geefOordeel() const { return oordeelTekst; }
    wxListCtrl* geefMeldingLijst() const { return meldingLijst; }
    wxTextCtrl* geefUitvoer() const { return uitvoer; }

private:
    void OnOpnieuwClick(wxCommandEvent& event);
    void OnCancelClick(wxCommandEvent& event);
    void OnCloseClick(wxCommandEvent& event);
    void OnSluit(wxCloseEvent& event);
    void OnMeldingGekozen(wxListEvent& event);
    void OnOpnieuwUpdate(wxUpdateUIEvent& event);
    void OnCancelUpdate(wxUpdateUIEvent& event);

    void ontvangRegel(const wxString& regel); // worker thread
    void toonRegels();
    void toonUitslag(const kern::ControleUitslag& uitslag);

    wxCheckBox* bouwKeuze = nullptr;
    wxGauge* voortgang = nullptr;
    wxTextCtrl* uitvoer = nullptr;
    wxStaticText* oordeelTekst = nullptr;
    wxListCtrl* meldingLijst = nullptr;

    kern::ControleOpdracht opdracht;
    kern::ControleUitslag uitslag;
    kern::CMakeControle controle;
    std::thread werker;
    std::mutex slot;
    wxString wachtend; // lines read but not shown yet
    std::function<void(int)> springer;
};
