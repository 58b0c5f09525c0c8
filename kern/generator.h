#pragma once
// The CMake writers: project, library and include files. They write into a
// text buffer; the caller hands the finished text to its control (or to
// stdout) in one piece. Comment lines are translated, directives never.
#include "kern/sjablonen.h"

#include <wx/arrstr.h>
#include <wx/filename.h>
#include <wx/string.h>

#include <functional>
#include <string>
#include <vector>

namespace kern {

enum UitvoerSoort : int { SoortProjekt = 0, SoortBieb = 1, SoortInclude = 2 };

// A row of the "Libraries" list: the sub-directory and its library name.
struct BiebRegel
{
    wxString map;
    wxString naam;
    bool aangevinkt = true;
};

// A row of the "Include files" list.
struct IncludeRegel
{
    wxString pad;
    bool aangevinkt = true;
};

class BronSelektie;

// Everything a generator reads.
struct GeneratorInvoer
{
    wxArrayString bronnen;              // the checked source entries, in list order
    const BronSelektie* selektie = nullptr; // when given, its checked entries instead of `bronnen`
    std::vector<BiebRegel> biebs;       // the whole "Libraries" list, in order
    std::vector<IncludeRegel> includes; // the whole "Include files" list, in order
    wxString uitvoerDir;                // as the output directory picker holds it
    int soort = SoortProjekt;           // output kind
    int projektType = 0;                // 0 Standard, 1 Crosscompile
    int biebType = 0;                   // 0 Static, 1 Dynamic, 2 Object
    wxString naam;                      // project, library or include name
    Sjablonen sjablonen;
    wxString datum;                     // "%Y-%m-%d %H:%M:%S"
};

// The generator's working lists; Execute empties them before each run.
struct Werklijsten
{
    wxArrayString dirLijst;    // distinct source directories, relative ("." for the output directory)
    wxArrayString groepPaden;  // per source group: "set(SRCS<n>Path ${SrcPath<i>})", or "" for the output directory
    wxArrayString groepNamen;  // per source group: "set(SRCS<n> " or "list(APPEND SRCS " plus the file names
    wxArrayString includeDirs; // "${SrcPath<i>}" or "." per directory holding headers
    wxArrayString extra;       // kept beside them, unused
    bool bewaarNamen = true;   // false: groepNamen stays empty (for a caller that only wants the text)
    void leeg();
};

// Appends the text of the chosen kind to `uit`; any other kind writes nothing.
void maakUitvoer(const GeneratorInvoer& invoer, Werklijsten& werk, wxString& uit);

// The source listing all three kinds share, after their "set(SRCS )" line.
void schrijfProjektLibUitvoer(const GeneratorInvoer& invoer, Werklijsten& werk, wxString& uit);

// The same texts appended as UTF-8 to one buffer: no wide text per file.
void maakUitvoerUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit);
void maakProjektUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit);
void maakLibUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit);
void maakIncludeUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit);
void schrijfBronLijst(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit);

// The volume of a path as the generator compares it (the toolkit's own;
// tests put another in place to produce sources on another volume).
using VolumeNaad = std::function<wxString(const wxFileName&)>;
VolumeNaad& geefVolumeNaad();

} // namespace kern
