#pragma once
// The language dialog: the offered languages with their flags; OK is
// available once one is picked.
#include <wx/dialog.h>
#include <wx/dynarray.h>
#include <wx/hashmap.h>
#include <wx/imaglist.h>
#include <wx/listctrl.h>

WX_DECLARE_STRING_HASH_MAP(int, TalenHashMap);

class TaalKeuzeDialoog : public wxDialog
{
    wxDECLARE_EVENT_TABLE();

public:
    enum { ID_PANEEL = 10001, ID_TAAL_LIJST = 10002 };

    TaalKeuzeDialoog(wxWindow* ouder, const wxArrayInt& talen, wxWindowID id, const wxString& titel,
                     const wxPoint& positie = wxDefaultPosition, const wxSize& grootte = wxSize(200, 150),
                     long stijl = wxCAPTION | wxRESIZE_BORDER | wxSYSTEM_MENU | wxCLOSE_BOX | wxTAB_TRAVERSAL);
    ~TaalKeuzeDialoog() override;

    int geefTaal() const { return gekozenTaal; }

    wxListCtrl* geefLijst() const { return lijst; }
    const TalenHashMap& geefTaalKaart() const { return taalKaart; }
    wxImageList* geefVlaggen() const { return vlaggen; }

    // The flags, in image-index order.
    static const unsigned char* const NederlandVlag;
    static const unsigned char* const DuitslandVlag;
    static const unsigned char* const GrootBritannieVlag;
    static const unsigned char* const FrankrijkVlag;
    static const unsigned char* const SpanjeVlag;
    static const unsigned char* const PortugalVlag;
    static const unsigned char* const IsraelVlag;
    static const unsigned char* const ItalieVlag;
    static const unsigned char* const ZwedenVlag;
    static const unsigned char* const JapanVlag;
    static const unsigned char* const ChinaVlag;
    static const unsigned char* const TaiwanVlag;
    static const unsigned char* const KoreaVlag;
    static const unsigned char* const RuslandVlag;

private:
    void CreateControls();
    void initTalen();
    void zetTalen();

    void OnTaalGeselekteerd(wxListEvent& event);
    void OnOkUpdate(wxUpdateUIEvent& event);

    wxArrayInt talen;
    wxImageList* vlaggen = nullptr;
    TalenHashMap taalKaart;
    int gekozenTaal = wxLANGUAGE_UNKNOWN;
    wxListCtrl* lijst = nullptr;
};
