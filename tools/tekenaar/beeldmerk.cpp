// The maker's badge and the splash screen.
#include "letters.h"
#include "tekeningen.h"
#include "vormen.h"

namespace {

// Paints text with a soft shadow, a dark rim and a vertical gradient.
void tekenTekst(Doek& doek, const std::string& tekst, Punt linksboven, double cel, Kleur boven, Kleur onder,
                Kleur rand)
{
    const Vorm letters = tekstVorm(tekst, linksboven, cel);
    const double hoogte = letterHoogte * cel;
    doek.vul(verschuif(verdik(letters, cel * 0.3), Punt{cel * 0.35, cel * 0.5}), effen(maakKleur(0x0b2a10, 0.4f)),
             cel * 0.8 * doek.geefSchaal() + 1);
    doek.vul(verdik(letters, cel * 0.28), effen(rand));
    doek.vul(letters, lineair(linksboven, boven, linksboven + Punt{0, hoogte}, onder));
}

// A centred line of text.
void tekenMiddenTekst(Doek& doek, const std::string& tekst, double midden, double boven, double cel, Kleur kleur)
{
    const double x = midden - geefTekstBreedte(tekst, cel) / 2;
    doek.vul(tekstVorm(tekst, {x, boven}, cel), effen(kleur));
}

} // namespace

Doek maakZelvanoLogo(int pixels)
{
    Doek doek(pixels, pixels, pixels / 96.0);
    const Punt midden{48, 47};
    const bool metTekst = pixels >= 48;
    doek.vul(cirkel(midden + Punt{1.5, 2.5}, 44), effen(maakKleur(0x000000, 0.35f)), 5 * doek.geefSchaal() + 1);
    doek.vul(cirkel(midden, 44), radiaal({36, 30}, 70, maakKleur(0x34c0a8), maakKleur(0x0a2f52)));
    doek.vul(omlijning(cirkel(midden, 44), 1.5), effen(maakKleur(0x06223d)));
    doek.vul(omlijning(cirkel(midden, 39), 2.2), lineair({0, 8}, maakKleur(0xfbe7a1), {0, 88}, maakKleur(0xc99a3b)));

    // The Z, raised with a shadow and lit from the top left.
    const double onder = metTekst ? 58 : 66;
    const double boven = metTekst ? 21 : 26;
    const double balk = metTekst ? 8 : 10;
    const Vorm z = veelhoek({{30, boven}, {66, boven}, {66, boven + balk}, {43, onder - balk}, {66, onder - balk},
                             {66, onder}, {30, onder}, {30, onder - balk}, {53, boven + balk}, {30, boven + balk}});
    doek.vul(verschuif(z, {2, 3}), effen(maakKleur(0x021526, 0.5f)), 2.5 * doek.geefSchaal() + 1);
    doek.vul(z, lineair({30, boven}, maakKleur(0xffffff), {66, onder}, maakKleur(0xf1d58a)));
    doek.vul(omlijning(z, 0.8), effen(maakKleur(0x7a5a1a, 0.6f)));
    tekenKlaver(doek, {71, 22}, 11, false);

    if (metTekst)
        tekenMiddenTekst(doek, "ZELVANO", 48, 65.5, 1.2, maakKleur(0xfdf1c8));
    // Gloss over the upper half.
    doek.vul(snijding(cirkel(midden, 42), cirkel({48, -30}, 72)),
             lineair({0, 4}, maakKleur(0xffffff, 0.35f), {0, 44}, maakKleur(0xffffff, 0.0f)));
    if (pixels >= 64)
        doek.voegKorrelToe(0.005f, 7);
    return doek;
}

Doek maakOpstartBeeld()
{
    Doek doek(400, 260);
    doek.vulAlles(lineair({0, 0}, maakKleur(0xf3fbe9), {0, 190}, maakKleur(0xb9e2a0)));
    // Light spots in the air.
    const struct { double x, y, r; float a; } vlekken[] = {
        {330, 40, 34, 0.35f}, {250, 28, 16, 0.3f}, {372, 120, 22, 0.25f}, {200, 150, 12, 0.3f}, {28, 30, 20, 0.3f}};
    for (const auto& v : vlekken)
        doek.vul(cirkel({v.x, v.y}, v.r), radiaal({v.x, v.y}, v.r, maakKleur(0xffffff, v.a), maakKleur(0xffffff, 0.05f)));
    // Rolling meadow.
    doek.vul(cirkel({300, 640}, 440), lineair({0, 200}, maakKleur(0x86c66a), {0, 260}, maakKleur(0x4f9a3a)));
    doek.vul(cirkel({40, 700}, 480), lineair({0, 215}, maakKleur(0x5fae45), {0, 260}, maakKleur(0x2f7a2a)));
    const struct { double x, y, g; } klavertjes[] = {
        {238, 236, 9}, {282, 246, 7}, {330, 232, 8}, {372, 244, 10}, {196, 250, 6}, {356, 216, 5}};
    for (const auto& k : klavertjes)
        tekenKlaver(doek, {k.x, k.y}, k.g, false);

    tekenKlaver(doek, {92, 120}, 72);
    tekenTekst(doek, "Klavermol", {180, 84}, 4, maakKleur(0x3fa34a), maakKleur(0x155a1f), maakKleur(0xf6fff0));
    tekenMiddenTekst(doek, "writes your CMake files", 286, 128, 1.4, maakKleur(0x2a5a22));
    tekenMiddenTekst(doek, "Zelvano", 360, 6, 1.2, maakKleur(0x3f7a30, 0.9f));
    return doek;
}
