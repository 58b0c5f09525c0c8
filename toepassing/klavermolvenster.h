#pragma once
// The program's only frame.
#include <wx/frame.h>

class KlavermolVenster : public wxFrame
{
    wxDECLARE_DYNAMIC_CLASS(KlavermolVenster);

public:
    KlavermolVenster();
    KlavermolVenster(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                     const wxSize& grootte, long stijl);
    ~KlavermolVenster() override;

    bool Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                const wxSize& grootte, long stijl);
};
