#include "kern/sjablonen.h"
#include "kern/tekst.h"

#include <gtest/gtest.h>
#include <wx/utils.h>

// SOURCE_DATE_EPOCH gives the date in UTC when it holds a number of seconds
// from 0 up; otherwise the clock does.
TEST(Tekst, TheDateLine)
{
    const wxString vandaag = wxDateTime::Now().Format("%Y-%m-%d");
    for (const char* epoch : {"0", "not a number", "-1", static_cast<const char*>(nullptr)}) {
        epoch ? wxSetEnv("SOURCE_DATE_EPOCH", epoch) : wxUnsetEnv("SOURCE_DATE_EPOCH");
        const wxString datum = kern::geefGeneratieDatum();
        EXPECT_TRUE(epoch && *epoch == '0' ? datum == "1970-01-01 00:00:00"
                                           : datum.Matches("\?\?\?\?-\?\?-\?\? \?\?:\?\?:\?\?") && datum >= vandaag) << datum;
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
    const wxString voegToe = "\n## This library can now be included in any build by using \"add_subdirectory( "
                             "the_path_to_this_lib )\" .\n## ",
                   link = "This library can now be linked in any build by including the Library name in the list: "
                          "\"target_link_libraries( ... LibName ... )\" .";
    EXPECT_EQ(s.biebLibNaam + "|" + s.biebKommando + "|" + s.dynBiebKommando + "|" + s.objektBiebKommando,
              "LibName|add_library(${LibName} STATIC ${SRCS})" + voegToe + link + "|add_library(${LibName} SHARED ${SRCS})" +
                  voegToe + link + "|add_library(${LibName} OBJECT ${SRCS})" + voegToe + "The objects in this library "
                  "can now be included in any other library or executable by referring to the object library name: "
                  "\"$<TARGET_OBJECTS: Library Name >\" .");
    EXPECT_TRUE(s.kopieerrechtMededeling.StartsWith("## (c)2001-2017 YOUR Copyright\n## $Id: ") &&
                s.kopieerrechtMededeling.EndsWith("$\n\n"));
}
