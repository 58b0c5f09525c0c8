#include "toepassing/klavermolvenster.h"

#include "toepassing/klavermol.h"

wxIMPLEMENT_DYNAMIC_CLASS(KlavermolVenster, wxFrame);

KlavermolVenster::KlavermolVenster() = default;

KlavermolVenster::KlavermolVenster(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                                   const wxSize& grootte, long stijl)
{
    Create(ouder, id, titel, positie, grootte, stijl);
}

bool KlavermolVenster::Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                              const wxSize& grootte, long stijl)
{
    wxFrame::Create(ouder, id, titel, positie, grootte, stijl);
    CreateStatusBar(2, wxSTB_SIZEGRIP | wxSUNKEN_BORDER, 10007);
    Centre(wxBOTH);
    PushStatusText("Welkom bij Klavermol !!", 0);
    return true;
}

KlavermolVenster::~KlavermolVenster()
{
    wxGetApp().bewaarHoofdVensterGrootte();
}
