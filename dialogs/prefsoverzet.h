#pragma once
// The overview entry of the preferences dialog: a plain record without
// behaviour, created with the dialog and kept as its member.
#include <wx/object.h>

class PrefsOverzet : public wxObject
{
    wxDECLARE_DYNAMIC_CLASS(PrefsOverzet);

public:
    PrefsOverzet() = default;

    int waarde = 0;
};
