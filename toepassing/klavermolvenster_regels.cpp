// The update-UI rules: each sets only the enabled state of its control,
// from the window's state at the moment of the refresh.
#include "toepassing/klavermolvenster.h"

#include <wx/checklst.h>
#include "toepassing/bronlijstweergave.h"
#include <wx/choice.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>

namespace {

enum Soort { Projekt = 0, Bieb = 1, Include = 2 };

} // namespace

void KlavermolVenster::OnVorigeLokatieIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(recenteLokaties.GetCount() > 0);
}

void KlavermolVenster::OnBACKWARDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(lokatieGeschiedenis.geefIndex() != 0);
}

void KlavermolVenster::OnFORWARDUpdate(wxUpdateUIEvent& event)
{
    // Unsigned on purpose: an empty history wraps to the largest value.
    const std::size_t m = lokatieGeschiedenis.geefAantal() - 1;
    event.Enable(m != 0 && lokatieGeschiedenis.geefIndex() < m);
}

void KlavermolVenster::OnVindBestandenInDirsIDUpdate(wxUpdateUIEvent& event)
{
    event.Skip();
}

void KlavermolVenster::OnAddUpdate(wxUpdateUIEvent& event)
{
    event.Enable((heeftCBestanden && voegCBestandenToe.boolean()) || (heeftCPPBestanden && voegCPPBestandenToe.boolean())
                 || (heeftHBestanden && voegHBestandenToe.boolean())
                 || (heeftSBestanden && voegSBestandenToe.boolean()));
}

void KlavermolVenster::OnVindCMakeSubDirIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() != Bieb);
}

void KlavermolVenster::OnVoegToeCMakeSubDirIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() != Bieb && subDirHeeftCMakeLists);
}

void KlavermolVenster::OnVindCMakeIncludeDirIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(true);
}

void KlavermolVenster::OnVoegToeCMakeIncludeIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(includeIsCMake);
}

void KlavermolVenster::OnClearUpdate(wxUpdateUIEvent& event)
{
    const int pagina = selektieBoek->GetSelection();
    event.Enable((pagina == 1   ? biebLijst->GetCount()
                  : pagina == 0 ? bestandSelektieLijst->GetCount()
                                : includeLijst->GetCount())
                 > 0);
}

void KlavermolVenster::OnCMakeProjektKeuzeIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() == Projekt);
}

void KlavermolVenster::OnCMakeBiebKeuzeIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() == Bieb);
}

void KlavermolVenster::OnBestandNaamTekstIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() == Include);
}

void KlavermolVenster::OnOutputDirPickerIDUpdate(wxUpdateUIEvent& event)
{
    event.Skip();
}

void KlavermolVenster::OnAPPLYUpdate(wxUpdateUIEvent& event)
{
    event.Enable(bestandSelektieLijst->GetCount() > 0);
}

void KlavermolVenster::OnSaveUpdate(wxUpdateUIEvent& event)
{
    event.Enable(!uitvoerTekst->IsEmpty());
}

void KlavermolVenster::OnZetAlsUitvoerIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() != Projekt);
}

void KlavermolVenster::OnAutoZetUitvoerDirIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(uitvoerSoortKeuze->GetSelection() != Projekt);
}
