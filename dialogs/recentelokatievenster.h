#pragma once
// Offers the recent search locations (newest first); OK is available once a
// row is picked.
#include <wx/arrstr.h>
#include <wx/dialog.h>
#include <wx/intl.h>

class wxListBox;

class RecenteLokatieVenster : public wxDialog
{
    wxDECLARE_DYNAMIC_CLASS(RecenteLokatieVenster);
    wxDECLARE_EVENT_TABLE();

public:
    enum { RecenteLokatieVensterID = 10000, LokatieLijstID = 10002 };

    static const long standaardStijl = wxCAPTION | wxSYSTEM_MENU | wxCLOSE_BOX | wxRESIZE_BORDER | wxSTAY_ON_TOP
        | wxTAB_TRAVERSAL | wxFULL_REPAINT_ON_RESIZE;

    RecenteLokatieVenster() = default;
    RecenteLokatieVenster(wxWindow* ouder, wxWindowID id = RecenteLokatieVensterID,
                          const wxString& titel = _("Recent locations where you searched for CMake files"),
                          const wxPoint& positie = wxDefaultPosition, const wxSize& grootte = wxSize(500, -1),
                          long stijl = standaardStijl);

    bool Create(wxWindow* ouder, wxWindowID id = RecenteLokatieVensterID,
                const wxString& titel = _("Recent locations where you searched for CMake files"),
                const wxPoint& positie = wxDefaultPosition, const wxSize& grootte = wxSize(500, -1),
                long stijl = standaardStijl);

    void CreateControls();

    // Fills the empty list with the paths, in the given order.
    void vulpaden(const wxArrayString& paden);

    // The selected row, or wxNOT_FOUND.
    int geefGekozenPad() const;

    wxListBox* geefLijst() const { return lijst; }

private:
    void OnOkUpdate(wxUpdateUIEvent& event);

    wxListBox* lijst = nullptr;
};
