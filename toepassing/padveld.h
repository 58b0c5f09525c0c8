#pragma once
// The one form in which the window keeps paths, equal to the command-line
// program's: absolute, dots resolved, a directory without a closing separator.
#include <wx/string.h>

wxString normaleMap(const wxString& map);
wxString normaalBestand(const wxString& pad);

// Whether `map` is `boven` itself or lies below it (both in the normal form).
bool ligtIn(const wxString& map, const wxString& boven);
