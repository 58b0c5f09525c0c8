// Execute: the generators write into a buffer; the output control receives
// the finished text in one call.
#include "toepassing/klavermolvenster.h"

#include <wx/textctrl.h>
#include <wx/utils.h>

void KlavermolVenster::OnGenerateCMakeHandler(wxCommandEvent&)
{
    wxBusyCursor bezig;
    uitvoerTekst->Clear();
}

void KlavermolVenster::maakProjekt()
{
}

void KlavermolVenster::maakLib()
{
}

void KlavermolVenster::maakInclude()
{
}
