#include "kern/sjablonen.h"
#include "kern/tekst.h"

#include <gtest/gtest.h>
#include <wx/utils.h>

// SOURCE_DATE_EPOCH gives the date in UTC when it holds a number of seconds from 0 up; otherwise the clock does.
TEST(Tekst, TheDateLine)
{
    for (const char* epoch : {"0", "not a number", "-1", static_cast<const char*>(nullptr)}) {
        const wxString datum = (epoch ? wxSetEnv("SOURCE_DATE_EPOCH", epoch) : wxUnsetEnv("SOURCE_DATE_EPOCH"), kern::geefGeneratieDatum());
        EXPECT_TRUE(epoch && *epoch == '0' ? datum == "1970-01-01 00:00:00"
                                           : datum.Matches("*-*-* *:*:*") && datum.size() == 19 && datum >= wxDateTime::Now().Format("%Y-%m-%d")) << datum;
    }
}

TEST(Sjablonen, DefaultsAreTheBuiltInTexts)
{
    const kern::Sjablonen s = kern::geefStandaardSjablonen();
    const wxString voegToe = "\n## This library can now be included in any build by using \"add_subdirectory( the_path_to_this_lib )\" .\n## ",
                   link = "This library can now be linked in any build by including the Library name in the list: "
                          "\"target_link_libraries( ... LibName ... )\" .";
    EXPECT_EQ(s.projektKommando + "|" + s.biebLibNaam + "|" + s.biebKommando + "|" + s.dynBiebKommando + "|" + s.objektBiebKommando + "|" +
                  s.kopieerrechtMededeling.Left(39) + s.kopieerrechtMededeling.Right(3),
              "if(UNIX)\nif (APPLE)\nadd_executable(${ProjectName} MACOSX_BUNDLE ${SRCS} ${OSX_BUNDLE_ICON})\n"
              "elseif(CMAKE_SYSTEM_NAME STREQUAL \"FreeBSD\")\n\tadd_executable(${ProjectName} ${SRCS})\ninstall(TARGETS ${ProjectName} "
              "RUNTIME DESTINATION bin)\nelseif(CMAKE_SYSTEM_NAME STREQUAL \"Linux\")\nadd_executable(${ProjectName} ${SRCS})\ninstall("
              "TARGETS ${ProjectName}  RUNTIME DESTINATION bin)\nendif(APPLE)\nelseif(WIN32)\nadd_executable(${ProjectName} WIN32 ${SRCS})\n"
              "endif(UNIX)\n\n\n|LibName|add_library(${LibName} STATIC ${SRCS})" + voegToe + link + "|add_library(${LibName} SHARED ${SRCS})" +
                  voegToe + link + "|add_library(${LibName} OBJECT ${SRCS})" + voegToe + "The objects in this library can now be included "
                  "in any other library or executable by referring to the object library name: \"$<TARGET_OBJECTS: Library Name >\" .|"
                  "## (c)2001-2017 YOUR Copyright\n## $Id: $\n\n");
}
