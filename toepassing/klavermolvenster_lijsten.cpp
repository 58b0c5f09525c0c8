// Operations on the three checked lists: clear, select all, double click.
#include "toepassing/klavermolvenster.h"

#include "toepassing/lijstblok.h"

#include <wx/checklst.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/tglbtn.h>

namespace {

// The directory of an entry: its path part, with volume, native, no closing separator.
wxString mapVan(const wxString& pad)
{
    return wxFileName(pad).GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE);
}

void zetAlleVinkjes(wxCheckListBox* lijst, bool aan)
{
    lijst->Freeze();
    for (unsigned int i = 0; i < lijst->GetCount(); ++i)
        lijst->Check(i, aan);
    lijst->Thaw();
}

} // namespace

void KlavermolVenster::OnClearClick(wxCommandEvent&)
{
    const int pagina = selektieBoek->GetSelection();
    wxCheckListBox* lijst = pagina == 1 ? biebLijst : pagina == 0 ? bestandSelektieLijst : includeLijst;
    const int aantal = static_cast<int>(lijst->GetCount());
    if (aantal >= 10) {
        const wxString vraag = wxString(_("%d files are present the visible selection list.")) + "\n"
            + _("Do you want to remove them all?");
        if (wxMessageBox(wxString::Format(vraag, aantal), _("More than 10 files found"), wxYES_NO | wxICON_QUESTION,
                         this) != wxYES)
            return;
    }
    // Emptied in one step: the toolkit answers every row removed from a
    // shown list on its own, which is quadratic in the row count.
    lijst->Freeze();
    leegLijst(lijst);
    lijst->Thaw();
    if (lijst == bestandSelektieLijst)
        bronSelektie.wis();
    else if (lijst == biebLijst) {
        subDirPaden.Clear();
        subDirBiebNamen.Clear();
    } else {
        includeBestanden.Clear();
    }
}

void KlavermolVenster::OnSELECTALLClick(wxCommandEvent& event)
{
    const bool aan = event.IsChecked();
    selekteerAllesKnop->SetLabel(aan ? _("Deselect All") : _("Select All"));
    // The "Include files" page acts on the "Libraries" list, as does page 1.
    zetAlleVinkjes(selektieBoek->GetSelection() == 0 ? bestandSelektieLijst : biebLijst, aan);
}

void KlavermolVenster::OnBestandSelektieLijstIDDoubleClicked(wxCommandEvent& event)
{
    // The double-clicked entry: on this multiple-selection list the toolkit's
    // single-selection query is not available, the event names the entry.
    const int rij = event.GetInt();
    const wxString gekozen = rij >= 0 && static_cast<unsigned>(rij) < bestandSelektieLijst->GetCount()
        ? bestandSelektieLijst->GetString(static_cast<unsigned>(rij))
        : wxString();
    const wxString map = mapVan(gekozen);
    const wxArrayString regels = bestandSelektieLijst->GetStrings();
    if (regels.empty())
        return;
    bestandSelektieLijst->Freeze();
    for (unsigned int i = 0; i < regels.size(); ++i)
        if (mapVan(regels[i]) == map)
            bestandSelektieLijst->Check(i, !bestandSelektieLijst->IsChecked(i));
    bestandSelektieLijst->Thaw();
}
