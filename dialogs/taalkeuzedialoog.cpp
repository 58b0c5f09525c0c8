#include "dialogs/taalkeuzedialoog.h"

#include "afbeeldingen.h"
#include "ingebed.h"

#include <wx/button.h>
#include <wx/intl.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <initializer_list>

const unsigned char* const TaalKeuzeDialoog::NederlandVlag = NederlandVlag_svg;
const unsigned char* const TaalKeuzeDialoog::DuitslandVlag = DuitslandVlag_svg;
const unsigned char* const TaalKeuzeDialoog::GrootBritannieVlag = GrootBritannieVlag_svg;
const unsigned char* const TaalKeuzeDialoog::FrankrijkVlag = FrankrijkVlag_svg;
const unsigned char* const TaalKeuzeDialoog::SpanjeVlag = SpanjeVlag_svg;
const unsigned char* const TaalKeuzeDialoog::PortugalVlag = PortugalVlag_svg;
const unsigned char* const TaalKeuzeDialoog::IsraelVlag = IsraelVlag_svg;
const unsigned char* const TaalKeuzeDialoog::ItalieVlag = ItalieVlag_svg;
const unsigned char* const TaalKeuzeDialoog::ZwedenVlag = ZwedenVlag_svg;
const unsigned char* const TaalKeuzeDialoog::JapanVlag = JapanVlag_svg;
const unsigned char* const TaalKeuzeDialoog::ChinaVlag = ChinaVlag_svg;
const unsigned char* const TaalKeuzeDialoog::TaiwanVlag = TaiwanVlag_svg;
const unsigned char* const TaalKeuzeDialoog::KoreaVlag = KoreaVlag_svg;
const unsigned char* const TaalKeuzeDialoog::RuslandVlag = RuslandVlag_svg;

namespace {

struct TaalRegel
{
    const char* naam;
    std::initializer_list<int> talen;
    int afbeelding;
};

// The dialog's whole vocabulary; a caller may offer any of these.
const TaalRegel taalTabel[] = {
    {wxTRANSLATE("Chinese (simplified)"), {wxLANGUAGE_CHINESE, wxLANGUAGE_CHINESE_SIMPLIFIED}, 10},
    {wxTRANSLATE("Chinese (traditional)"), {wxLANGUAGE_CHINESE_TRADITIONAL, wxLANGUAGE_CHINESE_TAIWAN}, 11},
    {wxTRANSLATE("Dutch"), {wxLANGUAGE_DUTCH, wxLANGUAGE_DUTCH_BELGIAN}, 0},
    {wxTRANSLATE("English"),
     {wxLANGUAGE_ENGLISH, wxLANGUAGE_ENGLISH_US, wxLANGUAGE_ENGLISH_AUSTRALIA, wxLANGUAGE_ENGLISH_CANADA,
      wxLANGUAGE_ENGLISH_NEW_ZEALAND},
     2},
    {wxTRANSLATE("French"),
     {wxLANGUAGE_FRENCH, wxLANGUAGE_FRENCH_BELGIAN, wxLANGUAGE_FRENCH_CANADIAN, wxLANGUAGE_FRENCH_SWISS}, 3},
    {wxTRANSLATE("German"),
     {wxLANGUAGE_GERMAN, wxLANGUAGE_GERMAN_AUSTRIAN, wxLANGUAGE_GERMAN_LIECHTENSTEIN, wxLANGUAGE_GERMAN_SWISS}, 1},
    {wxTRANSLATE("Hebrew"), {wxLANGUAGE_HEBREW}, 6},
    {wxTRANSLATE("Italian"), {wxLANGUAGE_ITALIAN, wxLANGUAGE_ITALIAN_SWISS}, 7},
    {wxTRANSLATE("Japanese"), {wxLANGUAGE_JAPANESE}, 9},
    {wxTRANSLATE("Korean"), {wxLANGUAGE_KOREAN}, 12},
    {wxTRANSLATE("Portuguese"), {wxLANGUAGE_PORTUGUESE, wxLANGUAGE_PORTUGUESE_BRAZILIAN}, 5},
    {wxTRANSLATE("Russian"), {wxLANGUAGE_RUSSIAN, wxLANGUAGE_RUSSIAN_UKRAINE}, 13},
    {wxTRANSLATE("Spanish"), {wxLANGUAGE_SPANISH, wxLANGUAGE_SPANISH_ARGENTINA, wxLANGUAGE_SPANISH_MEXICAN}, 4},
    {wxTRANSLATE("Swedish"), {wxLANGUAGE_SWEDISH, wxLANGUAGE_SWEDISH_FINLAND}, 8},
};

const int geenAfbeelding = 14;

const TaalRegel* zoekRegel(int taal)
{
    for (const TaalRegel& regel : taalTabel)
        for (int t : regel.talen)
            if (t == taal)
                return &regel;
    return nullptr;
}

} // namespace

wxBEGIN_EVENT_TABLE(TaalKeuzeDialoog, wxDialog)
    EVT_LIST_ITEM_SELECTED(TaalKeuzeDialoog::ID_TAAL_LIJST, TaalKeuzeDialoog::OnTaalGeselekteerd)
    EVT_UPDATE_UI(wxID_OK, TaalKeuzeDialoog::OnOkUpdate)
wxEND_EVENT_TABLE()

TaalKeuzeDialoog::TaalKeuzeDialoog(wxWindow* ouder, const wxArrayInt& aangeboden, wxWindowID id,
                                   const wxString& titel, const wxPoint& positie, const wxSize& grootte, long stijl)
    : talen(aangeboden)
{
    vlaggen = new wxImageList(24, 24, talen.GetCount() != 0, 1);
    SetExtraStyle(wxWS_EX_BLOCK_EVENTS);
    wxDialog::Create(ouder, id, titel, positie, grootte, stijl);
    CreateControls();
    if (GetSizer())
        GetSizer()->SetSizeHints(this);
    Centre(wxBOTH);
    initTalen();
    zetTalen();
}

TaalKeuzeDialoog::~TaalKeuzeDialoog()
{
    if (lijst == nullptr)
        delete vlaggen;
}

void TaalKeuzeDialoog::CreateControls()
{
    auto* hoofdSizer = new wxBoxSizer(wxVERTICAL);
    SetSizer(hoofdSizer);

    auto* paneel = new wxPanel(this, ID_PANEEL, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL);
    hoofdSizer->Add(paneel, 1, wxGROW | wxALL, 0);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    paneel->SetSizer(sizer);

    auto* tekst = new wxStaticText(paneel, wxID_STATIC, _("Please select the application interface language"));
    tekst->SetFont(wxFont(20, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL, false, "Lucida Grande"));
    sizer->Add(tekst, 0, wxALIGN_LEFT | wxALL, 5);

    lijst = new wxListCtrl(paneel, ID_TAAL_LIJST, wxDefaultPosition, paneel->ConvertDialogToPixels(wxSize(150, 150)),
                           wxLC_ICON | wxLC_SINGLE_SEL | wxLC_SORT_ASCENDING);
    sizer->Add(lijst, 1, wxGROW | wxALL, 5);

    auto* knoppen = new wxStdDialogButtonSizer;
    knoppen->AddButton(new wxButton(paneel, wxID_OK, _("OK")));
    knoppen->AddButton(new wxButton(paneel, wxID_CANCEL, _("Cancel")));
    knoppen->Realize();
    sizer->Add(knoppen, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
}

void TaalKeuzeDialoog::initTalen()
{
    static const unsigned char* const Vlaggen[] = {
        NederlandVlag, DuitslandVlag, GrootBritannieVlag, FrankrijkVlag, SpanjeVlag, PortugalVlag, IsraelVlag,
        ItalieVlag,    ZwedenVlag,    JapanVlag,          ChinaVlag,     TaiwanVlag, KoreaVlag,    RuslandVlag};
    static const std::size_t Lengten[] = {
        NederlandVlag_svg_lengte, DuitslandVlag_svg_lengte, GrootBritannieVlag_svg_lengte, FrankrijkVlag_svg_lengte,
        SpanjeVlag_svg_lengte,    PortugalVlag_svg_lengte,  IsraelVlag_svg_lengte,         ItalieVlag_svg_lengte,
        ZwedenVlag_svg_lengte,    JapanVlag_svg_lengte,     ChinaVlag_svg_lengte,          TaiwanVlag_svg_lengte,
        KoreaVlag_svg_lengte,     RuslandVlag_svg_lengte};

    // Rendered at the screen's scale: twice the pixels on a doubled screen.
    const wxSize maat = vlaggen->GetSize();
    for (std::size_t i = 0; i < WXSIZEOF(Vlaggen); ++i)
        vlaggen->Add(geefLijstBeeld(geefSvgBundel(Vlaggen[i], Lengten[i], maat), lijst, maat));
    lijst->AssignImageList(vlaggen, wxIMAGE_LIST_NORMAL);
}

void TaalKeuzeDialoog::zetTalen()
{
    for (int taal : talen) {
        const TaalRegel* regel = zoekRegel(taal);
        const wxString naam = regel ? wxGetTranslation(regel->naam) : wxString();
        const int afbeelding = regel ? regel->afbeelding : geenAfbeelding;
        lijst->InsertItem(static_cast<long>(taalKaart.size()), naam, afbeelding);
        taalKaart[naam] = taal;
    }
}

void TaalKeuzeDialoog::OnTaalGeselekteerd(wxListEvent& event)
{
    const wxString naam = lijst->GetItemText(event.GetIndex());
    TalenHashMap::const_iterator gevonden = taalKaart.find(naam);
    if (gevonden != taalKaart.end())
        gekozenTaal = gevonden->second;
}

void TaalKeuzeDialoog::OnOkUpdate(wxUpdateUIEvent& event)
{
    event.Enable(gekozenTaal != wxLANGUAGE_UNKNOWN);
}
