#include "dialogs/preferences.h"

#include "afbeeldingen.h"

#include <wx/bookctrl.h>
#include <wx/imaglist.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/valtext.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

namespace {

// The page images, by the names the artwork has always had, in page order.
const char* const paginaBeelden[] = {
    "../../../grafisch/ikonen/32x32/icons8-customer_support.png",
    "../../../grafisch/ikonen/32x32/icons8-project_setup.png",
    "../../../grafisch/ikonen/32x32/icons8-books.png",
    "../../../grafisch/ikonen/32x32/icons8-circuit.png",
};

// Command texts are edited as code: tabs and all keys go into the text.
const long tekstStijl = wxTE_PROCESS_TAB | wxWANTS_CHARS | wxSUNKEN_BORDER;
const long meerRegeligStijl = tekstStijl | wxTE_MULTILINE;

// Dialog units: about five lines.
const int rasterTekstHoogte = 40;

} // namespace

wxIMPLEMENT_DYNAMIC_CLASS(Preferences, wxPropertySheetDialog);

wxBEGIN_EVENT_TABLE(Preferences, wxPropertySheetDialog)
wxEND_EVENT_TABLE()

Preferences::Preferences(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                         const wxSize& grootte, long stijl)
{
    Create(ouder, id, titel, positie, grootte, stijl);
}

bool Preferences::Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                         const wxSize& grootte, long stijl)
{
    SetSheetStyle(wxPROPSHEET_DEFAULT);
    if (!wxPropertySheetDialog::Create(ouder, id, titel, positie, grootte, stijl))
        return false;
    CreateButtons(wxOK | wxCANCEL | wxHELP);
    CreateControls();
#ifdef __WXGTK__
    // Every tab in sight, without scroll arrows: the book is as wide as its tabs.
    GtkNotebook* boek = GTK_NOTEBOOK(GetBookCtrl()->GetHandle());
    gtk_notebook_set_scrollable(boek, FALSE);
    gint tabBreedte = 0;
    gtk_widget_get_preferred_width(GTK_WIDGET(boek), &tabBreedte, nullptr);
    GetBookCtrl()->SetMinSize(wxSize(tabBreedte, -1));
#endif
    LayoutDialog(wxBOTH);
    return true;
}

void Preferences::CreateControls()
{
    // Rendered at the screen's scale: twice the pixels on a doubled screen.
    auto* beelden = new wxImageList(16, 16, true, WXSIZEOF(paginaBeelden));
    for (const char* naam : paginaBeelden)
        beelden->Add(geefLijstBeeld(geefBeeldBundel(naam, beelden->GetSize()), GetBookCtrl(), beelden->GetSize()));
    GetBookCtrl()->AssignImageList(beelden);

    wxPanel* algemeen = voegPaginaToe(AlgemeenPaneelID, _("General"), 0);
    voegKaderTekstToe(algemeen, _("Copyright notice"), KopieerrechtTekstID, 0, true,
                      &kern::Sjablonen::kopieerrechtMededeling);

    wxPanel* projekt = voegPaginaToe(ProjektPaneelID, _("CMake Project cmd"), 1);
    voegKaderTekstToe(projekt, _("Projekt generation command "), ProjektTekstID, 250, true,
                      &kern::Sjablonen::projektKommando);
    voegKaderTekstToe(projekt, _("Cross compile projekt generation command "), CCProjektTekstID, 250, true,
                      &kern::Sjablonen::ccProjektKommando);

    wxPanel* bieb = voegPaginaToe(BiebPaneelID, _("CMake Library cmd"), 2);
    voegKaderTekstToe(bieb, _("CMake variable containing library name"), BiebLibNaamTekstID, 0, false,
                      &kern::Sjablonen::biebLibNaam);
    voegKaderTekstToe(bieb, _("CMake variable containing include path name"), BiebIncludeNaamTekstID, 0, false,
                      &kern::Sjablonen::biebIncludeNaam);
    auto* raster = new wxFlexGridSizer(3, 2, 5, 5);
    raster->AddGrowableCol(1);
    bieb->GetSizer()->Add(raster, 0, wxGROW | wxALL, geefRand());
    voegRasterRegelToe(bieb, raster, _("Static library command:"), BiebKommandoTekstID, 200,
                       &kern::Sjablonen::biebKommando);
    voegRasterRegelToe(bieb, raster, _("Dynamic library command:"), DynBiebKommandoTekstID, 0,
                       &kern::Sjablonen::dynBiebKommando);
    voegRasterRegelToe(bieb, raster, _("Object library command:"), ObjektBiebKommandoTekstID, 0,
                       &kern::Sjablonen::objektBiebKommando);

    wxPanel* include = voegPaginaToe(IncludePaneelID, _("CMake Include cmd"), 3);
    voegKaderTekstToe(include, _("Include generation command "), IncludeTekstID, 250, true,
                      &kern::Sjablonen::includeKommando);

    for (const auto& [veld, tekst] : teksten)
        tekst->SetValidator(wxTextValidator(wxFILTER_NONE, &(sjablonen.*veld)));
}

wxBitmap Preferences::GetBitmapResource(const wxString&)
{
    return wxNullBitmap;
}

wxIcon Preferences::GetIconResource(const wxString& naam)
{
    for (const char* beeld : paginaBeelden)
        if (naam == beeld)
            return geefIkoon(naam, wxSize(16, 16));
    return wxNullIcon;
}

wxTextCtrl* Preferences::geefTekst(Veld veld) const
{
    for (const auto& [v, tekst] : teksten)
        if (v == veld)
            return tekst;
    return nullptr;
}

int Preferences::geefRand() const
{
    return ConvertDialogToPixels(wxSize(3, 0)).x;
}

// A page: a panel with a vertical sizer, added to the book with its image.
wxPanel* Preferences::voegPaginaToe(int id, const wxString& titel, int beeld)
{
    auto* pagina = new wxPanel(GetBookCtrl(), id, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL);
    pagina->SetSizer(new wxBoxSizer(wxVERTICAL));
    GetBookCtrl()->AddPage(pagina, titel, false, beeld);
    return pagina;
}

// A text control for one field, maat in dialog units (0: the natural width
// or height), remembered so that its validator can be bound once all pages
// exist.
wxTextCtrl* Preferences::maakTekst(wxWindow* ouder, int id, const wxSize& maat, long stijl, Veld veld,
                                   const wxString& begin)
{
    const wxSize pixels = ConvertDialogToPixels(maat);
    const wxSize grootte(maat.x > 0 ? pixels.x : -1, maat.y > 0 ? pixels.y : -1);
    auto* tekst = new wxTextCtrl(ouder, id, begin, wxDefaultPosition, grootte, stijl);
    teksten.emplace_back(veld, tekst);
    return tekst;
}

// A labelled box holding one text, both taking their share of the page.
void Preferences::voegKaderTekstToe(wxPanel* pagina, const wxString& label, int id, int breedte, bool meerRegelig,
                                    Veld veld)
{
    auto* kader = new wxStaticBoxSizer(wxVERTICAL, pagina, label);
    pagina->GetSizer()->Add(kader, 1, wxGROW | wxALL, geefRand());
    wxTextCtrl* tekst =
        maakTekst(kader->GetStaticBox(), id, wxSize(breedte, 0), meerRegelig ? meerRegeligStijl : tekstStijl, veld);
    kader->Add(tekst, 1, wxGROW | wxALL, geefRand());
}

// A row of the library command grid: the label left, the text right, high
// enough for a command with its hint lines. The placeholder is replaced by
// the validator before the dialog is shown.
void Preferences::voegRasterRegelToe(wxPanel* pagina, wxFlexGridSizer* raster, const wxString& label, int id,
                                     int breedte, Veld veld)
{
    raster->Add(new wxStaticText(pagina, wxID_STATIC, label), 0,
                wxALIGN_CENTER_HORIZONTAL | wxALIGN_CENTER_VERTICAL | wxALL, geefRand());
    wxTextCtrl* tekst = maakTekst(pagina, id, wxSize(breedte, rasterTekstHoogte), meerRegeligStijl, veld, "test");
    raster->Add(tekst, 1, wxGROW | wxALIGN_CENTER_VERTICAL | wxALL, geefRand());
}
