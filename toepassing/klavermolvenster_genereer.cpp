// Execute: the generators write into a buffer on a worker; the output
// control receives the finished text, or its head, in one call.
#include "toepassing/klavermolvenster.h"

#include "kern/tekst.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <algorithm>
#include <memory>

namespace {

// How much of the text the output control shows: its layout stays short.
const size_t zichtbareTekens = 128 * 1024;

} // namespace

kern::GeneratorInvoer KlavermolVenster::geefGeneratorInvoer() const
{
    kern::GeneratorInvoer invoer;
    // The list shows the selection store: texts and check marks come from it.
    invoer.bronnen.reserve(bronSelektie.aantal());
    for (size_t i = 0; i < bronSelektie.aantal(); ++i)
        if (bronSelektie.isAangevinkt(i))
            invoer.bronnen.Add(bronSelektie.geef(i));

    for (size_t m = 0; m < subDirPaden.size(); ++m)
        invoer.biebs.push_back({subDirPaden[m], subDirBiebNamen[m], biebLijst->IsChecked(static_cast<unsigned>(m))});
    for (size_t k = 0; k < includeBestanden.size(); ++k)
        invoer.includes.push_back({includeBestanden[k], includeLijst->IsChecked(static_cast<unsigned>(k))});

    invoer.uitvoerDir = outputDirPicker->GetPath();
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
    wxBusyCursor bezig;
    zetUitvoer(wxString());
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
    // The generator runs on a worker with its own working lists; the window
    // takes them and the text when it is done.
    auto invoer = std::make_shared<const kern::GeneratorInvoer>(geefGeneratorInvoer());
    uitvoerWerk.start([this, invoer, generator](kern::Voortgang&) -> AchtergrondWerk::Afronding {
        auto werk = std::make_shared<kern::Werklijsten>();
        auto tekst = std::make_shared<wxString>();
        generator(*invoer, *werk, *tekst);
        return [this, werk, tekst] {
            werklijsten = std::move(*werk);
            zetUitvoer(*tekst);
        };
    });
}

void KlavermolVenster::zetUitvoer(const wxString& tekst)
{
    volledigeUitvoer = tekst;
    if (tekst.length() <= zichtbareTekens) {
        uitvoerTekst->ChangeValue(tekst);
        return;
    }
    // The text control lays out all it holds at once: a long text shows
    // its head, whole lines, and a note of what follows.
    const size_t einde = tekst.rfind('\n', zichtbareTekens - 1) + 1;
    const unsigned long regels = static_cast<unsigned long>(std::count(tekst.begin() + einde, tekst.end(), '\n'));
    uitvoerTekst->ChangeValue(
        tekst.Left(einde)
        + wxString::Format(_("[... %lu more lines are not shown here; Save writes the whole text.]"), regels)
        + "\n");
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
