// Moving the search location: home, back, forward, elsewhere, recent.
#include "toepassing/klavermolvenster.h"

#include <wx/filepicker.h>

void KlavermolVenster::OnHomeKnopClick(wxCommandEvent& event)
{
    OnHOMEClick(event);
}

void KlavermolVenster::OnVorigeLokatieIDClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnBACKWARDClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnFORWARDClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnVindBestandenInDirsIDDirPickerChanged(wxFileDirPickerEvent&)
{
    onderzoekPadOpBestanden();
    lokatieGeschiedenis.voegToe(wxFileName::DirName(vindBestandenInDirs->GetPath()));
}

void KlavermolVenster::OnHOMEClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnMOREClick(wxCommandEvent&)
{
}
