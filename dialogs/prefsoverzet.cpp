#include "dialogs/prefsoverzet.h"

wxIMPLEMENT_DYNAMIC_CLASS(PrefsOverzet, wxObject);
