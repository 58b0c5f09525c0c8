// The three CMake generators: a project CMakeLists.txt, a library
// CMakeLists.txt built on add_library, and a .cmake include file.
#include "kern/generator.h"

#include "kern/tekst.h"

#include <wx/translation.h>

namespace kern {

namespace {

const char* const minimumVersie = "cmake_minimum_required(VERSION 2.8.10)";

// The lines every kind starts with after its title: the date, the header
// text and the minimum version.
void schrijfKop(const GeneratorInvoer& invoer, const wxString& titel, bool metProjektNaam, Utf8Schrijver& uit)
{
    uit << titel << vr;
    uit << _("## File generated on : ") << invoer.datum << ".\n";
    uit << invoer.sjablonen.kopieerrechtMededeling << vr;
    if (metProjektNaam)
        uit << "set(ProjectName " << invoer.naam << ")\n\n";
    uit << _("# define minimum cmake version.") << vr;
    uit << minimumVersie << "\n\n";
}

} // namespace

void maakProjektUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& tekst)
{
    Utf8Schrijver uit(tekst);
    schrijfKop(invoer, _("## Klavermol generated CMakelists Project file"), true, uit);
    const bool kruis = invoer.projektType != 0;
    if (kruis) {
        uit << _("## Cross-compilation requires a rewrite of several CMake compilation directive.\n");
        uit << _("## Please include a cross-compile configuration file here (using include or directly).") << "\n\n";
    }
    uit << "set(SRCS )\n";
    schrijfBronLijst(invoer, werk, tekst);
    uit << "\nlist(SORT SRCS)\n\n";
    uit << (kruis ? invoer.sjablonen.ccProjektKommando : invoer.sjablonen.projektKommando);
    uit << "\ntarget_link_libraries(${ProjectName} ";
    for (const BiebRegel& bieb : invoer.biebs)
        if (bieb.aangevinkt)
            uit << bieb.naam << " ";
    uit << ")\n\n";
    uit << _("## This project will probably need some tuning, but this is the raw form with most ingredients in place.");
    uit << "\n\n\n";
}

void maakLibUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& tekst)
{
    Utf8Schrijver uit(tekst);
    schrijfKop(invoer, _("## Klavermol generated CMakelists add_library file"), false, uit);
    uit << _("# The absolute path for this CMakeLists.txt file is : \"") << invoer.uitvoerDir << "\"\n";
    uit << "set(" << invoer.sjablonen.biebLibNaam << " " << invoer.naam << ")\n\n";
    uit << "set(SRCS )\n";
    schrijfBronLijst(invoer, werk, tekst);
    uit << "\nlist(SORT SRCS)\n\n";
    switch (invoer.biebType) {
    case 0: uit << invoer.sjablonen.biebKommando; break;
    case 1: uit << invoer.sjablonen.dynBiebKommando; break;
    case 2: uit << invoer.sjablonen.objektBiebKommando; break;
    default: break;
    }
    uit << "\n\n\n";
}

void maakIncludeUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& tekst)
{
    Utf8Schrijver uit(tekst);
    schrijfKop(invoer, _("## Klavermol generated ") + invoer.naam + sp + _("include file"), false, uit);
    uit << "set(SRCS )\n";
    schrijfBronLijst(invoer, werk, tekst);
    if (!werk.groepPaden.empty()) { // one per group
        uit << "\nlist(SORT SRCS)\n\n";
        uit << _("## Include this file where you would want to compile the listed source files (stored in variable SRCS).")
            << vr;
        uit << _("## and for including the listed include_directories directives.");
    } else {
        uit << _("## Include this file for including the listed include_directories directives.");
    }
    uit << "\n\n\n";
}

void maakUitvoerUtf8(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& uit)
{
    switch (invoer.soort) {
    case SoortProjekt: maakProjektUtf8(invoer, werk, uit); break;
    case SoortBieb: maakLibUtf8(invoer, werk, uit); break;
    case SoortInclude: maakIncludeUtf8(invoer, werk, uit); break;
    default: break;
    }
}

namespace {

void naarWx(void (*maak)(const GeneratorInvoer&, Werklijsten&, std::string&), const GeneratorInvoer& invoer,
            Werklijsten& werk, wxString& uit)
{
    std::string tekst;
    maak(invoer, werk, tekst);
    uit << wxString::FromUTF8(tekst);
}

} // namespace

void maakUitvoer(const GeneratorInvoer& invoer, Werklijsten& werk, wxString& uit)
{
    naarWx(maakUitvoerUtf8, invoer, werk, uit);
}

void schrijfProjektLibUitvoer(const GeneratorInvoer& invoer, Werklijsten& werk, wxString& uit)
{
    naarWx(schrijfBronLijst, invoer, werk, uit);
}

} // namespace kern
