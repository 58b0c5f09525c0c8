#pragma once
// The nine texts from which the CMake output is built, their defaults and
// their persistence under "/Configuratie".
#include <wx/string.h>

class wxConfigBase;

namespace kern {

struct Sjablonen
{
    wxString kopieerrechtMededeling;
    wxString projektKommando;
    wxString ccProjektKommando;
    wxString biebLibNaam;
    wxString biebIncludeNaam;
    wxString biebKommando;
    wxString dynBiebKommando;
    wxString objektBiebKommando;
    wxString includeKommando;
};

// The hint lines that follow the library commands (translated once, on first use).
const wxString& geefVoegToeTekst();
const wxString& geefLink1Tekst();
const wxString& geefLink2Tekst();

// The built-in texts (translated comment lines, untranslated directives).
Sjablonen geefStandaardSjablonen();

// Reads the nine keys from the group "/Configuratie" (sets that group),
// each with its built-in default.
Sjablonen leesSjablonen(wxConfigBase& config);

// Writes seven of them: the dynamic and object library commands are never
// written, so an edit of those lasts one run only.
void schrijfSjablonen(wxConfigBase& config, const Sjablonen& sjablonen);

} // namespace kern
