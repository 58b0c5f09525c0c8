#include "dialogs/recentelokatievenster.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>

wxIMPLEMENT_DYNAMIC_CLASS(RecenteLokatieVenster, wxDialog);

wxBEGIN_EVENT_TABLE(RecenteLokatieVenster, wxDialog)
    EVT_UPDATE_UI(wxID_OK, RecenteLokatieVenster::OnOkUpdate)
wxEND_EVENT_TABLE()

RecenteLokatieVenster::RecenteLokatieVenster(wxWindow* ouder, wxWindowID id, const wxString& titel,
                                             const wxPoint& positie, const wxSize& grootte, long stijl)
{
    Create(ouder, id, titel, positie, grootte, stijl);
}

bool RecenteLokatieVenster::Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                                   const wxSize& grootte, long stijl)
{
    if (!wxDialog::Create(ouder, id, titel, positie, grootte, stijl))
        return false;
    CreateControls();
    GetSizer()->Fit(this);
    GetSizer()->SetSizeHints(this);
    Centre(wxBOTH);
    return true;
}

void RecenteLokatieVenster::CreateControls()
{
    auto* hoofdSizer = new wxBoxSizer(wxVERTICAL);
    SetSizer(hoofdSizer);

    lijst = new wxListBox(this, LokatieLijstID, wxDefaultPosition, wxSize(500, 200), wxArrayString(),
                          wxLB_SINGLE | wxLB_HSCROLL | wxFULL_REPAINT_ON_RESIZE);
    hoofdSizer->Add(lijst, 1, wxGROW | wxALL, 5);

    auto* knoppen = new wxBoxSizer(wxHORIZONTAL);
    hoofdSizer->Add(knoppen, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
    knoppen->Add(new wxButton(this, wxID_OK, _("OK")), 0, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    knoppen->Add(new wxButton(this, wxID_CANCEL, _("Cancel")), 0, wxALIGN_CENTER_VERTICAL | wxALL, 5);
}

void RecenteLokatieVenster::vulpaden(const wxArrayString& paden)
{
    if (!paden.empty()) // the list control refuses an empty block
        lijst->Insert(paden, 0);
}

int RecenteLokatieVenster::geefGekozenPad() const
{
    return lijst->GetSelection();
}

void RecenteLokatieVenster::OnOkUpdate(wxUpdateUIEvent& event)
{
    event.Enable(lijst->GetSelection() != wxNOT_FOUND);
}
