#pragma once
// The preferences dialog: edits copies of the nine texts the CMake output is
// built from. Everything it does comes from the standard buttons and the text
// validators; the caller copies the texts in before ShowModal and takes them
// back only on wxID_OK.
#include "dialogs/prefsoverzet.h"
#include "kern/sjablonen.h"

#include <wx/intl.h>
#include <wx/propdlg.h>

#include <utility>
#include <vector>

class wxFlexGridSizer;
class wxPanel;
class wxSizer;
class wxTextCtrl;

class Preferences : public wxPropertySheetDialog
{
    wxDECLARE_DYNAMIC_CLASS(Preferences);
    wxDECLARE_EVENT_TABLE();

public:
    // Control identifiers. The cross-compile text shares 10003 with the
    // project page; nothing looks controls up by id.
    enum
    {
        PreferencesID = 10000,
        AlgemeenPaneelID = 10001,
        KopieerrechtTekstID = 10002,
        ProjektPaneelID = 10003,
        CCProjektTekstID = 10003,
        BiebPaneelID = 10004,
        ProjektTekstID = 10005,
        BiebKommandoTekstID = 10006,
        IncludePaneelID = 10007,
        IncludeTekstID = 10008,
        BiebLibNaamTekstID = 10009,
        BiebIncludeNaamTekstID = 10010,
        DynBiebKommandoTekstID = 10011,
        ObjektBiebKommandoTekstID = 10012
    };

    // A template text, named by its field.
    using Veld = wxString kern::Sjablonen::*;

    Preferences() = default;
    Preferences(wxWindow* ouder, wxWindowID id = PreferencesID, const wxString& titel = _("Preferences"),
                const wxPoint& positie = wxDefaultPosition, const wxSize& grootte = wxDefaultSize,
                long stijl = wxCAPTION | wxRESIZE_BORDER | wxSYSTEM_MENU | wxCLOSE_BOX);

    bool Create(wxWindow* ouder, wxWindowID id = PreferencesID, const wxString& titel = _("Preferences"),
                const wxPoint& positie = wxDefaultPosition, const wxSize& grootte = wxDefaultSize,
                long stijl = wxCAPTION | wxRESIZE_BORDER | wxSYSTEM_MENU | wxCLOSE_BOX);

    void CreateControls();

    wxBitmap GetBitmapResource(const wxString& naam);
    wxIcon GetIconResource(const wxString& naam);

    // The text control that edits the given field (nullptr before CreateControls).
    wxTextCtrl* geefTekst(Veld veld) const;

    // The edited texts; the validators read and write these.
    kern::Sjablonen sjablonen;
    PrefsOverzet overzet;

private:
    wxPanel* voegPaginaToe(int id, const wxString& titel, int beeld);
    wxTextCtrl* maakTekst(wxWindow* ouder, int id, const wxSize& maat, long stijl, Veld veld,
                          const wxString& begin = wxEmptyString);
    void voegKaderTekstToe(wxPanel* pagina, const wxString& label, int id, int breedte, bool meerRegelig,
                           Veld veld);
    void voegRasterRegelToe(wxPanel* pagina, wxFlexGridSizer* raster, const wxString& label, int id, int breedte,
                            Veld veld);
    int geefRand() const;

    std::vector<std::pair<Veld, wxTextCtrl*>> teksten;
};
