#include <gtest/gtest.h>
#include <wx/image.h>

#include "letters.h"
#include "vormen.h"

TEST(Vormen, CirkelGeeftAfstandTotDeRand)
{
    const Vorm c = cirkel({10, 10}, 4);
    EXPECT_NEAR(c({10, 10}), -4, 1e-9);
    EXPECT_NEAR(c({14, 10}), 0, 1e-9);
    EXPECT_NEAR(c({10, 17}), 3, 1e-9);
}

TEST(Vormen, HolleVeelhoekKentBinnenEnBuiten)
{
    // An L: the notch at the top right is outside.
    const Vorm l = veelhoek({{0, 0}, {2, 0}, {2, 8}, {8, 8}, {8, 10}, {0, 10}});
    EXPECT_LT(l({1, 5}), 0);
    EXPECT_LT(l({6, 9}), 0);
    EXPECT_GT(l({5, 4}), 0);
    EXPECT_NEAR(l({5, 4}), 3, 1e-9);  // nearest edge: the arm's side at x = 2
    EXPECT_NEAR(l({-1, 5}), 1, 1e-9);
}

TEST(Vormen, RechthoekMetAfrondingSnijdtDeHoekenAf)
{
    const Vorm r = rechthoek({0, 0}, {10, 10}, 3);
    EXPECT_LT(r({5, 5}), 0);
    EXPECT_LT(r({0.5, 5}), 0);
    EXPECT_GT(r({0.4, 0.4}), 0);
}

TEST(Vormen, BoogLooptAlleenTussenZijnHoeken)
{
    // From three o'clock clockwise to six o'clock (y points down).
    const Vorm b = boog({0, 0}, 10, 2, 0, 90);
    EXPECT_LT(b(opCirkel({0, 0}, 10, 45)), 0);
    EXPECT_GT(b(opCirkel({0, 0}, 10, -45)), 0);
    EXPECT_GT(b(opCirkel({0, 0}, 10, 180)), 0);
    EXPECT_GT(b({0, 0}), 0);
}

TEST(Vormen, VerschilMaaktEenGat)
{
    const Vorm ring = verschil(cirkel({0, 0}, 10), cirkel({0, 0}, 5));
    EXPECT_GT(ring({0, 0}), 0);
    EXPECT_LT(ring({7.5, 0}), 0);
    EXPECT_GT(ring({11, 0}), 0);
}

TEST(Vormen, HartWijstMetZijnLobbenDeGevraagdeKantOp)
{
    const Vorm h = hart({0, 0}, 10, 0);  // lobes to the right
    EXPECT_LT(h({5, 0}), 0);
    EXPECT_GT(h({-5, 0}), 0);
    EXPECT_GT(h({0, 5}), 0);
}

TEST(Letters, PixelsVanEenTekenLiggenOpHunCel)
{
    // 'T': full top row, then only the middle column.
    const Vorm t = tekstVorm("T", {0, 0}, 2);
    EXPECT_LT(t({1, 1}), 0);
    EXPECT_LT(t({5, 9}), 0);
    EXPECT_GT(t({1, 9}), 0);
    EXPECT_NEAR(t({1, 5}), 3, 1e-9);  // one and a half cells from the bar and from the stem
}

TEST(Letters, TweedeTekenBegintZesCellenVerder)
{
    const Vorm tekst = tekstVorm(" l", {0, 0}, 1);
    EXPECT_GT(tekst({2.5, 3.5}), 0);
    EXPECT_LT(tekst({8.5, 3.5}), 0);
    EXPECT_DOUBLE_EQ(geefTekstBreedte(" l", 1), 11);
}

TEST(Letters, StaartVanDeGZaktOnderDeRegel)
{
    const Vorm g = tekstVorm("g", {0, 0}, 1);
    EXPECT_LT(g({4.5, 7.5}), 0);
    EXPECT_LT(g({2.5, 8.5}), 0);
}

TEST(Letters, OnbekendTekenBlijftLeeg)
{
    const Vorm tekst = tekstVorm("~", {0, 0}, 1);
    for (double y = 0.5; y < 9; y += 1)
        for (double x = 0.5; x < 5; x += 1)
            EXPECT_GT(tekst({x, y}), 0) << x << "," << y;
}

TEST(Doek, DekkendeVullingGeeftPreciesDeKleur)
{
    Doek doek(4, 4);
    doek.vulAlles(effen(maakKleur(0x336699)));
    const wxImage beeld = doek.geefBeeld(true);
    EXPECT_EQ(beeld.GetRed(2, 2), 0x33);
    EXPECT_EQ(beeld.GetGreen(2, 2), 0x66);
    EXPECT_EQ(beeld.GetBlue(2, 2), 0x99);
    EXPECT_EQ(beeld.GetAlpha(2, 2), 255);
}

TEST(Doek, DoorschijnendeVerfMengtMetWatEronderLigt)
{
    Doek doek(2, 2);
    doek.vulAlles(effen(maakKleur(0x0000ff)));
    doek.vulAlles(effen(maakKleur(0xff0000, 0.5f)));
    const wxImage beeld = doek.geefBeeld(true);
    EXPECT_NEAR(beeld.GetRed(0, 0), 128, 1);
    EXPECT_NEAR(beeld.GetBlue(0, 0), 128, 1);
    EXPECT_EQ(beeld.GetAlpha(0, 0), 255);
}

TEST(Doek, RandPixelIsHalfBedekt)
{
    // The edge runs through the centres of column 2.
    Doek doek(4, 1);
    doek.vul(rechthoek({-5, -5}, {2.5, 5}), effen(maakKleur(0x000000)));
    const wxImage beeld = doek.geefBeeld(true);
    EXPECT_EQ(beeld.GetAlpha(1, 0), 255);
    EXPECT_NEAR(beeld.GetAlpha(2, 0), 128, 1);
    EXPECT_EQ(beeld.GetAlpha(3, 0), 0);
    // Colour of a half-covered pixel is not darkened by the missing half.
    EXPECT_EQ(beeld.GetRed(2, 0), 0);
}

TEST(Doek, SchaalZetOntwerpEenhedenOmInPixels)
{
    Doek doek(8, 8, 4.0);  // 2 x 2 design units
    doek.vul(rechthoek({0, 0}, {1, 2}), effen(maakKleur(0xffffff)));
    const wxImage beeld = doek.geefBeeld(true);
    EXPECT_EQ(beeld.GetAlpha(3, 5), 255);
    EXPECT_EQ(beeld.GetAlpha(4, 5), 0);
}

TEST(Doek, ZonderAlfaKomtLeegOpWit)
{
    Doek doek(2, 2);
    const wxImage beeld = doek.geefBeeld(false);
    EXPECT_FALSE(beeld.HasAlpha());
    EXPECT_EQ(beeld.GetRed(0, 0), 255);
    EXPECT_EQ(beeld.GetGreen(1, 1), 255);
}
