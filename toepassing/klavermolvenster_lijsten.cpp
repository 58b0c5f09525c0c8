// Operations on the three checked lists: clear, select all, double click.
// The "Source Files" list shows the selection store: these operations
// change the store and refresh the view once, never row by row.
#include "toepassing/klavermolvenster.h"

#include "toepassing/bronlijstweergave.h"
#include "toepassing/lijstblok.h"

#include <wx/checklst.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/tglbtn.h>

namespace {

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
    wxCheckListBox* lijst = pagina == 1 ? biebLijst : pagina == 0 ? nullptr : includeLijst;
    const int aantal = static_cast<int>(lijst != nullptr ? lijst->GetCount() : bestandSelektieLijst->GetCount());
    if (aantal >= 10) {
        const wxString vraag = wxString(_("%d files are present the visible selection list.")) + "\n"
            + _("Do you want to remove them all?");
        if (wxMessageBox(wxString::Format(vraag, aantal), _("More than 10 files found"), wxYES_NO | wxICON_QUESTION,
                         this) != wxYES)
            return;
    }
    if (lijst == nullptr) {
        bronSelektie.wis();
        bestandSelektieLijst->ververs(0);
        return;
    }
    // Emptied in one step: the toolkit answers every row removed from a
    // shown list on its own, which is quadratic in the row count.
    lijst->Freeze();
    leegLijst(lijst);
    lijst->Thaw();
    if (lijst == biebLijst) {
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
    if (selektieBoek->GetSelection() != 0) {
        zetAlleVinkjes(biebLijst, aan);
        return;
    }
    bronSelektie.zetAllesAangevinkt(aan);
    bestandSelektieLijst->Refresh();
}

void KlavermolVenster::OnBestandSelektieLijstIDDoubleClicked(wxListEvent& event)
{
    // The double-clicked entry is the one the event names; its directory's
    // entries flip, each on its own.
    const long rij = event.GetIndex();
    if (rij < 0 || static_cast<std::size_t>(rij) >= bronSelektie.aantal())
        return;
    bronSelektie.wisselMap(static_cast<std::size_t>(rij));
    bestandSelektieLijst->Refresh();
}
