// Execute: the generators write into a buffer on a worker; the output
// control receives the finished text, or its head, in one call.
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

#include <algorithm>
#include <memory>

kern::GeneratorInvoer KlavermolVenster::geefGeneratorInvoer() const
{
    kern::GeneratorInvoer invoer;
    // The list shows the selection store: the generator reads its checked
    // entries there.
    invoer.selektie = &bronSelektie;

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
    zetUitvoer({});
    werklijsten.leeg();
    switch (uitvoerSoortKeuze->GetSelection()) {
    case kern::SoortProjekt: maakProjekt(); break;
    case kern::SoortBieb: maakLib(); break;
    case kern::SoortInclude: maakInclude(); break;
    default: break;
    }
}

namespace {

// How much of the text the output control shows: its layout stays short.
const size_t zichtbareTekens = 128 * 1024;

// The text control lays out all it holds at once: a long text shows its
// head, whole lines, and a note of what follows.
wxString geefZichtbaarDeel(const std::string& utf8)
{
    if (utf8.size() <= zichtbareTekens)
        return wxString::FromUTF8(utf8);
    const size_t einde = utf8.rfind('\n', zichtbareTekens - 1) + 1;
    const auto regels = static_cast<unsigned long>(std::count(utf8.begin() + einde, utf8.end(), '\n'));
    return wxString::FromUTF8(utf8.data(), einde)
        + wxString::Format(_("[... %lu more lines are not shown here; Save writes the whole text.]"), regels) + "\n";
}

} // namespace

void KlavermolVenster::schrijfUitvoer(void (*generator)(const kern::GeneratorInvoer&, kern::Werklijsten&, std::string&))
{
    // The generator runs on a worker with its own working lists and its own
    // copy of the store (a compact block, copied in one go, that a later Add
    // or Clear cannot change under it); the window takes the lists and the
    // text when it is done.
    auto selektie = std::make_shared<const kern::BronSelektie>(bronSelektie);
    auto invoer = std::make_shared<kern::GeneratorInvoer>(geefGeneratorInvoer());
    invoer->selektie = selektie.get();
    uitvoerWerk.start([this, invoer, selektie, generator](kern::Voortgang&) -> AchtergrondWerk::Afronding {
        auto werk = std::make_shared<kern::Werklijsten>();
        auto tekst = std::make_shared<std::string>();
        generator(*invoer, *werk, *tekst);
        return [this, werk, tekst] {
            werklijsten = std::move(*werk);
            zetUitvoer(std::move(*tekst));
        };
    });
}

void KlavermolVenster::zetUitvoer(std::string tekst)
{
    volledigeUitvoer = std::move(tekst);
    uitvoerTekst->ChangeValue(geefZichtbaarDeel(volledigeUitvoer));
}

void KlavermolVenster::maakProjekt()
{
    schrijfUitvoer(kern::maakProjektUtf8);
}

void KlavermolVenster::maakLib()
{
    schrijfUitvoer(kern::maakLibUtf8);
}

void KlavermolVenster::maakInclude()
{
    schrijfUitvoer(kern::maakIncludeUtf8);
}
