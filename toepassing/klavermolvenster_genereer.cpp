// Execute: the generators write into a buffer; the output control receives
// the finished text in one call.
#include "toepassing/klavermolvenster.h"

#include "kern/namen.h"
#include "kern/tekst.h"
#include "toepassing/padveld.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

kern::GeneratorInvoer KlavermolVenster::geefGeneratorInvoer() const
{
    kern::GeneratorInvoer invoer;
    // The texts come from the selection model, which holds the list's
    // entries in the list's order; only the check marks are asked of the
    // control.
    wxASSERT(bronSelektie.aantal() == bestandSelektieLijst->GetCount());
    wxArrayInt aangevinkt;
    bestandSelektieLijst->GetCheckedItems(aangevinkt);
    invoer.bronnen.reserve(aangevinkt.size());
    for (int i : aangevinkt)
        invoer.bronnen.Add(bronSelektie.geef(static_cast<size_t>(i)));

    for (size_t m = 0; m < subDirPaden.size(); ++m)
        invoer.biebs.push_back({subDirPaden[m], subDirBiebNamen[m], biebLijst->IsChecked(static_cast<unsigned>(m))});
    for (size_t k = 0; k < includeBestanden.size(); ++k)
        invoer.includes.push_back({includeBestanden[k], includeLijst->IsChecked(static_cast<unsigned>(k))});

    invoer.uitvoerDir = normaleMap(outputDirPicker->GetPath());
    invoer.soort = uitvoerSoortKeuze->GetSelection();
    invoer.projektType = cmakeProjektKeuze->GetSelection();
    invoer.biebType = cmakeBiebKeuze->GetSelection();
    invoer.naam = projektLibIncludeNaam->GetValue();
    invoer.sjablonen = sjablonen;
    invoer.datum = kern::geefGeneratieDatum();
    return invoer;
}

void KlavermolVenster::OnGenerateCMakeHandler(wxCommandEvent&)
{
    const wxString naamFout = kern::geefNaamFout(uitvoerSoortKeuze->GetSelection(), projektLibIncludeNaam->GetValue());
    if (!naamFout.empty()) {
        wxLogError("%s", naamFout);
        return;
    }
    wxBusyCursor bezig;
    uitvoerTekst->Clear();
    werklijsten.leeg();
    switch (uitvoerSoortKeuze->GetSelection()) {
    case kern::SoortProjekt: maakProjekt(); break;
    case kern::SoortBieb: maakLib(); break;
    case kern::SoortInclude: maakInclude(); break;
    default: break;
    }
}

void KlavermolVenster::schrijfUitvoer(void (*generator)(const kern::GeneratorInvoer&, kern::Werklijsten&, wxString&))
{
    wxString tekst;
    generator(geefGeneratorInvoer(), werklijsten, tekst);
    uitvoerTekst->AppendText(tekst);
}

void KlavermolVenster::maakProjekt()
{
    schrijfUitvoer(kern::maakProjekt);
}

void KlavermolVenster::maakLib()
{
    schrijfUitvoer(kern::maakLib);
}

void KlavermolVenster::maakInclude()
{
    schrijfUitvoer(kern::maakInclude);
}
