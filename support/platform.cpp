#include "support/platform.h"

#include <wx/platinfo.h>
#include <wx/utils.h>

void ProcessorBeschrijving::neemWaar()
{
    const wxPlatformInfo& info = wxPlatformInfo::Get();
    architectuur = info.GetCpuArchitectureName();
    bitBreedte = info.GetBitness() == wxBITNESS_64 ? 64 : 32;
}

void BesturingsSysteemBeschrijving::neemWaar()
{
    const wxPlatformInfo& info = wxPlatformInfo::Get();
    id = info.GetOperatingSystemId();
    naam = info.GetOperatingSystemIdName();
    omschrijving = wxGetOsDescription();
}
