#include "kern/sjablonen.h"

#include "kern/instellingen.h"
#include "kern/tekst.h"

#include <wx/confbase.h>
#include <wx/translation.h>

namespace kern {

namespace {

const char* const prj1str =
    "if(UNIX)\n"
    "if (APPLE)\n"
    "add_executable(${ProjectName} MACOSX_BUNDLE ${SRCS} ${OSX_BUNDLE_ICON})\n"
    "elseif(CMAKE_SYSTEM_NAME STREQUAL \"FreeBSD\")\n"
    "\tadd_executable(${ProjectName} ${SRCS})\n"
    "install(TARGETS ${ProjectName} RUNTIME DESTINATION bin)\n"
    "elseif(CMAKE_SYSTEM_NAME STREQUAL \"Linux\")\n"
    "add_executable(${ProjectName} ${SRCS})\n";

const char* const prj2str =
    "install(TARGETS ${ProjectName}  RUNTIME DESTINATION bin)\n"
    "endif(APPLE)\n"
    "elseif(WIN32)\n"
    "add_executable(${ProjectName} WIN32 ${SRCS})\n"
    "endif(UNIX)\n"
    "\n\n";

wxString leesTekst(wxConfigBase& config, const char* sleutel, const wxString& standaard)
{
    return config.Read(sleutel, standaard);
}

} // namespace

const wxString& geefVoegToeTekst()
{
    static const wxString tekst = vr + _("## This library can now be included in any build by using")
        + dubbeleQuotes("add_subdirectory( the_path_to_this_lib )", true) + ".";
    return tekst;
}

const wxString& geefLink1Tekst()
{
    static const wxString tekst = vr
        + _("## This library can now be linked in any build by including the Library name in the list:")
        + dubbeleQuotes("target_link_libraries( ... LibName ... )", true) + ".";
    return tekst;
}

const wxString& geefLink2Tekst()
{
    static const wxString tekst = vr
        + _("## The objects in this library can now be included in any other library or executable by referring to the object library name:")
        + dubbeleQuotes("$<TARGET_OBJECTS: Library Name >", true) + ".";
    return tekst;
}

Sjablonen geefStandaardSjablonen()
{
    Sjablonen s;
    s.kopieerrechtMededeling = "## (c)2001-2017 YOUR Copyright\n"
                               "## $Id: klavermolvenster.cpp 1096 2020-09-07 11:25:22Z zelvano $\n"
                               "\n";
    s.projektKommando = wxString(prj1str) + prj2str;
    s.ccProjektKommando = _("## Enter the Cross compile commands here.");
    s.biebLibNaam = "LibName";
    s.biebIncludeNaam = "AllIncludeDirs";
    s.biebKommando = "add_library(${LibName} STATIC ${SRCS})" + geefVoegToeTekst() + geefLink1Tekst();
    s.dynBiebKommando = "add_library(${LibName} SHARED ${SRCS})" + geefVoegToeTekst() + geefLink1Tekst();
    s.objektBiebKommando = "add_library(${LibName} OBJECT ${SRCS})" + geefVoegToeTekst() + geefLink2Tekst();
    s.includeKommando =
        wxString(_("## Include this file where you would want to compile the listed source files (stored in variable SRCS)."))
        + vr + _("## and for including the listed include_directories directives.");
    return s;
}

Sjablonen leesSjablonen(wxConfigBase& config)
{
    const Sjablonen standaard = geefStandaardSjablonen();
    Sjablonen s;
    config.SetPath(instelling::Configuratie);
    s.kopieerrechtMededeling = leesTekst(config, instelling::KopieerrechtMededeling, standaard.kopieerrechtMededeling);
    s.projektKommando = leesTekst(config, instelling::ProjektKommando, standaard.projektKommando);
    s.ccProjektKommando = leesTekst(config, instelling::CCProjektKommando, standaard.ccProjektKommando);
    s.biebLibNaam = leesTekst(config, instelling::BiebLibNaam, standaard.biebLibNaam);
    s.biebIncludeNaam = leesTekst(config, instelling::BiebIncludeNaam, standaard.biebIncludeNaam);
    s.biebKommando = leesTekst(config, instelling::BiebKommando, standaard.biebKommando);
    s.dynBiebKommando = leesTekst(config, instelling::DynBiebKommando, standaard.dynBiebKommando);
    s.objektBiebKommando = leesTekst(config, instelling::ObjektBiebKommando, standaard.objektBiebKommando);
    s.includeKommando = leesTekst(config, instelling::IncludeKommando, standaard.includeKommando);
    return s;
}

void schrijfSjablonen(wxConfigBase& config, const Sjablonen& s)
{
    config.SetPath(instelling::Configuratie);
    config.Write(instelling::KopieerrechtMededeling, s.kopieerrechtMededeling);
    config.Write(instelling::ProjektKommando, s.projektKommando);
    config.Write(instelling::CCProjektKommando, s.ccProjektKommando);
    config.Write(instelling::BiebLibNaam, s.biebLibNaam);
    config.Write(instelling::BiebIncludeNaam, s.biebIncludeNaam);
    config.Write(instelling::BiebKommando, s.biebKommando);
    config.Write(instelling::IncludeKommando, s.includeKommando);
}

} // namespace kern
