#pragma once
// Which project, library and include names the generated CMake text can take.
#include <wx/string.h>

namespace kern {

// Why `naam` cannot be the name for output kind `soort`; empty when it can.
// A project or library name stands unquoted in the CMake text, so it needs
// a character and none of the ones that end, split or expand an argument;
// an include name becomes a file name in the output directory and a
// comment line.
wxString geefNaamFout(int soort, const wxString& naam);

} // namespace kern
