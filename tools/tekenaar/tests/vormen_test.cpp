// The drawing primitives of the artwork generator: signed distances of the
// shapes (negative inside), the pixel font, and how the canvas covers and
// blends.
#include <gtest/gtest.h>
#include <wx/image.h>

#include "letters.h"
#include "vormen.h"

TEST(Vormen, ShapesGiveTheirSignedDistance)
{
    const Vorm c = cirkel({10, 10}, 4);
    EXPECT_NEAR(c({10, 10}), -4, 1e-9);
    EXPECT_NEAR(c({10, 17}), 3, 1e-9);

    // A concave L: the notch at the top right is outside.
    const Vorm l = veelhoek({{0, 0}, {2, 0}, {2, 8}, {8, 8}, {8, 10}, {0, 10}});
    EXPECT_LT(l({6, 9}), 0);
    EXPECT_NEAR(l({5, 4}), 3, 1e-9); // nearest edge: the arm's side at x = 2

    const Vorm r = rechthoek({0, 0}, {10, 10}, 3); // rounded corners are cut off
    EXPECT_LT(r({0.5, 5}), 0);
    EXPECT_GT(r({0.4, 0.4}), 0);

    // From three o'clock clockwise to six o'clock (y points down).
    const Vorm b = boog({0, 0}, 10, 2, 0, 90);
    EXPECT_LT(b(opCirkel({0, 0}, 10, 45)), 0);
    EXPECT_GT(b(opCirkel({0, 0}, 10, -45)), 0);

    const Vorm ring = verschil(cirkel({0, 0}, 10), cirkel({0, 0}, 5));
    EXPECT_GT(ring({0, 0}), 0);
    EXPECT_LT(ring({7.5, 0}), 0);

    const Vorm h = hart({0, 0}, 10, 0); // lobes to the right
    EXPECT_LT(h({5, 0}), 0);
    EXPECT_GT(h({-5, 0}), 0);
}

TEST(Letters, CharactersSitOnTheirCells)
{
    // 'T': full top row, then only the middle column.
    const Vorm t = tekstVorm("T", {0, 0}, 2);
    EXPECT_LT(t({1, 1}), 0);
    EXPECT_NEAR(t({1, 5}), 3, 1e-9); // one and a half cells from the bar and from the stem

    // the second character starts six cells on; an unknown one is a blank
    const Vorm tekst = tekstVorm("~l", {0, 0}, 1);
    for (double y = 0.5; y < 9; y += 1)
        for (double x = 0.5; x < 5; x += 1)
            EXPECT_GT(tekst({x, y}), 0) << x << "," << y;
    EXPECT_LT(tekst({8.5, 3.5}), 0);
    EXPECT_DOUBLE_EQ(geefTekstBreedte("~l", 1), 11);

    EXPECT_LT(tekstVorm("g", {0, 0}, 1)({2.5, 8.5}), 0); // the tail drops below the line
}

TEST(Doek, CoverageAndBlending)
{
    Doek leeg(2, 2); // without alpha, empty is white
    EXPECT_FALSE(leeg.geefBeeld(false).HasAlpha());
    EXPECT_EQ(leeg.geefBeeld(false).GetRed(0, 0), 255);

    Doek mengDoek(2, 2); // see-through paint mixes with what lies below
    mengDoek.vulAlles(effen(maakKleur(0x3366ff)));
    mengDoek.vulAlles(effen(maakKleur(0xff0000, 0.5f)));
    wxImage beeld = mengDoek.geefBeeld(true);
    EXPECT_NEAR(beeld.GetRed(0, 0), 0x99, 1);
    EXPECT_NEAR(beeld.GetGreen(0, 0), 0x33, 1);
    EXPECT_NEAR(beeld.GetBlue(0, 0), 0x80, 1);
    EXPECT_EQ(beeld.GetAlpha(0, 0), 255);

    Doek rand(4, 1); // the edge runs through the centres of column 2
    rand.vul(rechthoek({-5, -5}, {2.5, 5}), effen(maakKleur(0x000000)));
    beeld = rand.geefBeeld(true);
    EXPECT_EQ(beeld.GetAlpha(1, 0), 255);
    EXPECT_NEAR(beeld.GetAlpha(2, 0), 128, 1);
    EXPECT_EQ(beeld.GetAlpha(3, 0), 0);
    EXPECT_EQ(beeld.GetRed(2, 0), 0); // not darkened by the missing half

    Doek schaal(8, 8, 4.0); // 2 x 2 design units
    schaal.vul(rechthoek({0, 0}, {1, 2}), effen(maakKleur(0xffffff)));
    beeld = schaal.geefBeeld(true);
    EXPECT_EQ(beeld.GetAlpha(3, 5), 255);
    EXPECT_EQ(beeld.GetAlpha(4, 5), 0);
}
