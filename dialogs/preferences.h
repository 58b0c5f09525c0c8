#pragma once
// Placeholder until the preferences dialog lands.
#include "kern/sjablonen.h"

#include <wx/propdlg.h>

class Preferences : public wxPropertySheetDialog
{
public:
    Preferences(wxWindow* ouder, wxWindowID id, const wxString& titel)
    {
        Create(ouder, id, titel);
    }
    kern::Sjablonen sjablonen;
};
