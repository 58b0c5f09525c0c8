// Operations on the three checked lists: clear, select all, double click.
#include "toepassing/klavermolvenster.h"

void KlavermolVenster::OnBestandSelektieLijstIDDoubleClicked(wxCommandEvent&)
{
}

void KlavermolVenster::OnSELECTALLClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnClearClick(wxCommandEvent&)
{
}
