// The output side: kind and names, sub-directories and include files,
// Execute and save.
#include "toepassing/klavermolvenster.h"

#include <wx/filepicker.h>

void KlavermolVenster::OnVindCMakeSubDirIDFilePickerChanged(wxFileDirPickerEvent&)
{
}

void KlavermolVenster::OnVoegToeCMakeSubDirIDClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnVindCMakeIncludeDirIDFilePickerChanged(wxFileDirPickerEvent&)
{
}

void KlavermolVenster::OnVoegToeCMakeIncludeIDClick(wxCommandEvent&)
{
}

void KlavermolVenster::OnUitvoerSoortKeuzeIDSelected(wxCommandEvent&)
{
}

void KlavermolVenster::OnProjektLibIncludeNaamIDTextUpdated(wxCommandEvent&)
{
}

void KlavermolVenster::OnGebruikSourceDirNaamIDClick(wxCommandEvent&)
{
}

void KlavermolVenster::outputDirVeranderdHandler(wxFileDirPickerEvent& event)
{
    event.Skip();
}

void KlavermolVenster::OnGenerateCMakeHandler(wxCommandEvent&)
{
}

void KlavermolVenster::SlaOpCMakeHandler(wxCommandEvent&)
{
}

void KlavermolVenster::OnZetAlsUitvoerIDClick(wxCommandEvent&)
{
    outputDirPicker->SetPath(vindBestandenInDirs->GetPath());
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
