#include "kern/selektie.h"

#include <gtest/gtest.h>

// Adds the blank-separated `paden`; gives the new ones | the duplicates | the whole list.
static wxString voegToe(kern::BronSelektie& selektie, const char* paden)
{
    wxString dubbel;
    const wxArrayString nieuw = selektie.voegToe(wxSplit(paden, ' ', 0), [&](const wxString& p) { dubbel << p << " "; });
    wxString uit = wxJoin(nieuw, ' ', 0) + " | " + dubbel + "|";
    for (size_t i = 0; i < selektie.aantal(); ++i)
        uit << " " << selektie.geef(i);
    return uit;
}

// Exact, case-sensitive paths; duplicates reported in order, also inside a batch; only new paths appended.
TEST(BronSelektie, DuplicatesAreReportedInOrderAndOnlyNewPathsAppended)
{
    kern::BronSelektie s;
    EXPECT_EQ(voegToe(s, "/p/b.c /p/B.c /p/b /SRC/b.c /p/b.cpp"),
              "/p/b.c /p/B.c /p/b /SRC/b.c /p/b.cpp | | /p/b.c /p/B.c /p/b /SRC/b.c /p/b.cpp");
    EXPECT_EQ(voegToe(s, "/p/c.c /p/b.c /p/c.c /p/d.h /p/B.c /p/c.c"),
              "/p/c.c /p/d.h | /p/b.c /p/c.c /p/B.c /p/c.c | /p/b.c /p/B.c /p/b /SRC/b.c /p/b.cpp /p/c.c /p/d.h");
    s.wis(); // empties the list and the duplicate check
    EXPECT_EQ(voegToe(s, "/p/d.h /p/b.c"), "/p/d.h /p/b.c | | /p/d.h /p/b.c");
    EXPECT_EQ(s.voegToe(wxArrayString(1, "/p/b.c"), nullptr).size() + s.aantal(), 2u); // no reporter: still left out
}

// What CMake can name; entries come back as added, also without a separator; marks flip per directory.
TEST(BronSelektie, NamesCompactEntriesAndMarks)
{
    wxString kan;
    for (const char* pad : {"/p/met spatie.c", "/p/haak(1).c", "/p/geld$.c", "/p/hek#.c", "/p/\"a\".c", "/p/caf\u00e9.c",
                            "/p/a;b.c", "/p/a\\b.c", "/p/${x}/a.c"})
        kan << int(kern::kanCMakeNoemen(wxString::FromUTF8(pad)));
    EXPECT_EQ(kan, "111111000");
    kern::BronSelektie s;
    for (const char* pad : {"/p/a.c", "los.c", "/x.c", "/p/q/b.c", "/p/c.h", "/p/"}) ASSERT_TRUE(s.voegToe(wxString(pad))) << pad;
    s.wisselMap(0);
    wxString uit;
    for (size_t i = 0; i < s.aantal(); ++i) uit << s.geef(i) << (s.isAangevinkt(i) ? "+ " : "- ");
    EXPECT_EQ(uit, "/p/a.c- los.c+ /x.c+ /p/q/b.c+ /p/c.h- /p/- ");
    EXPECT_EQ(wxString::Format("%ld %ld %d", s.zoek("/p/c.h"), s.zoek("/p/c"), s.bevat("/P/c.h")), "4 -1 0");
}
