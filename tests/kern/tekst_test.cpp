#include "kern/sjablonen.h"
#include "kern/tekst.h"

#include <gtest/gtest.h>
#include <wx/datetime.h>
#include <wx/utils.h>

// The date line follows SOURCE_DATE_EPOCH in UTC when it holds a number of
// seconds from 0 up, and the clock otherwise.
TEST(Tekst, TheDateLine)
{
    const wxString vandaag = wxDateTime::Now().Format("%Y-%m-%d");
    for (const auto& [epoch, verwacht] : std::initializer_list<std::pair<const char*, const char*>>{
             {"0", "1970-01-01 00:00:00"}, {"not a number", ""}, {"-1", ""}, {nullptr, ""}}) {
        epoch ? wxSetEnv("SOURCE_DATE_EPOCH", epoch) : wxUnsetEnv("SOURCE_DATE_EPOCH");
        const wxString datum = kern::geefGeneratieDatum();
        if (*verwacht != '\0')
            EXPECT_EQ(datum, verwacht);
        else
            EXPECT_TRUE(datum.Matches("????-??-?? ??:??:??") && datum >= vandaag) << datum;
    }
    wxUnsetEnv("SOURCE_DATE_EPOCH");
}

// The other defaults show in the generator's expected texts.
TEST(Sjablonen, DefaultsAreTheBuiltInTexts)
{
    const kern::Sjablonen s = kern::geefStandaardSjablonen();
    EXPECT_EQ(s.projektKommando,
              "if(UNIX)\nif (APPLE)\nadd_executable(${ProjectName} MACOSX_BUNDLE ${SRCS} ${OSX_BUNDLE_ICON})\n"
              "elseif(CMAKE_SYSTEM_NAME STREQUAL \"FreeBSD\")\n\tadd_executable(${ProjectName} ${SRCS})\n"
              "install(TARGETS ${ProjectName} RUNTIME DESTINATION bin)\n"
              "elseif(CMAKE_SYSTEM_NAME STREQUAL \"Linux\")\nadd_executable(${ProjectName} ${SRCS})\n"
              "install(TARGETS ${ProjectName}  RUNTIME DESTINATION bin)\nendif(APPLE)\nelseif(WIN32)\n"
              "add_executable(${ProjectName} WIN32 ${SRCS})\nendif(UNIX)\n\n\n");
    EXPECT_EQ(s.biebLibNaam, "LibName");
    const wxString voegToe = "\n## This library can now be included in any build by using \"add_subdirectory( "
                             "the_path_to_this_lib )\" .\n## ",
                   link = "This library can now be linked in any build by including the Library name in the list: "
                          "\"target_link_libraries( ... LibName ... )\" .";
    EXPECT_EQ(s.biebKommando, "add_library(${LibName} STATIC ${SRCS})" + voegToe + link);
    EXPECT_EQ(s.dynBiebKommando, "add_library(${LibName} SHARED ${SRCS})" + voegToe + link);
    EXPECT_EQ(s.objektBiebKommando, "add_library(${LibName} OBJECT ${SRCS})" + voegToe + "The objects in this library "
              "can now be included in any other library or executable by referring to the object library name: "
              "\"$<TARGET_OBJECTS: Library Name >\" .");
    EXPECT_TRUE(s.kopieerrechtMededeling.StartsWith("## (c)2001-2017 YOUR Copyright\n## $Id: ") &&
                s.kopieerrechtMededeling.EndsWith("$\n\n"));
}
