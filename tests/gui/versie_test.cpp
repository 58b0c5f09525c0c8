#include "desktopHTML.h"
#include "desktopVersie.h"

#include <gtest/gtest.h>

TEST(Versie, FourFieldsWithABuildLetter)
{
    EXPECT_EQ(DesktopVersieNummer({2, 0, 0, 'a'}).geefVersieString(), "2.0.0.a");
    EXPECT_EQ(DesktopVersieNummer({12, 255, 3, 'z'}).geefVersieString(), "12.255.3.z");
}

TEST(DesktopHTML, Pieces)
{
    EXPECT_EQ(ZelvanoDesktopHTML::mk("td"), "<td>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::bodyBegin, "<body>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::bodyEind, "</body>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::eindeHeader, "</head>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::tabelEind, "</table>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::tabelRijBegin, "<tr>\n");
    EXPECT_EQ(ZelvanoDesktopHTML::breek, "<br>");
}
