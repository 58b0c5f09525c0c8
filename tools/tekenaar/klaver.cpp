// The clover: the program's own mark, used by the icons and the splash screen.
#include "tekeningen.h"
#include "vormen.h"

namespace {

const Kleur bladDonker = maakKleur(0x1f6b2a);
const Kleur bladLicht = maakKleur(0x8fd65e);
const Kleur bladRand = maakKleur(0x154d1e);

// Leaves sit diagonally; the stem leaves through the gap at the bottom.
constexpr double bladHoeken[] = {-135, -45, 45, 135};

void tekenBlad(Doek& doek, Punt midden, double grootte, double hoek)
{
    const Punt voet = opCirkel(midden, grootte * 0.05, hoek);
    const double lengte = grootte * 0.95;
    const Vorm blad = hart(voet, lengte, hoek);
    doek.vul(blad, radiaal(midden, grootte, bladDonker, bladLicht));
    // The pale chevron clover leaves carry, and the middle vein.
    const Kleur bleek = maakKleur(0xe8f7d0, 0.4f);
    const Punt knik = opCirkel(voet, lengte * 0.42, hoek);
    const double dikte = grootte * 0.035;
    doek.vul(verenig({lijn(knik, opCirkel(voet, lengte * 0.66, hoek - 33), dikte),
                      lijn(knik, opCirkel(voet, lengte * 0.66, hoek + 33), dikte)}),
             effen(bleek));
    doek.vul(lijn(opCirkel(voet, lengte * 0.08, hoek), opCirkel(voet, lengte * 0.8, hoek), dikte * 0.6),
             effen(maakKleur(0x1b5e20, 0.45f)));
    doek.vul(omlijning(blad, grootte * 0.035), effen(bladRand));
}

} // namespace

void tekenKlaver(Doek& doek, Punt midden, double grootte, bool metSteel)
{
    const double schaal = doek.geefSchaal();
    // Soft shadow below the whole plant.
    Vorm silhouet = cirkel(midden, grootte * 0.2);
    for (double hoek : bladHoeken)
        silhouet = verenig({silhouet, hart(opCirkel(midden, grootte * 0.05, hoek), grootte * 0.95, hoek)});
    doek.vul(verschuif(silhouet, Punt{grootte * 0.04, grootte * 0.07}), effen(maakKleur(0x0b2a10, 0.35f)),
             grootte * 0.12 * schaal + 1);
    if (metSteel) {
        const Punt boogMidden{midden.x + grootte * 1.6, midden.y};
        doek.vul(boog(boogMidden, grootte * 1.6, grootte * 0.11, 136, 180), effen(bladRand));
        doek.vul(boog(boogMidden, grootte * 1.6, grootte * 0.05, 137, 179), effen(maakKleur(0x5fae45)));
    }
    for (double hoek : bladHoeken)
        tekenBlad(doek, midden, grootte, hoek);
}

Doek maakKlaverIkoon(int pixels)
{
    Doek doek(pixels, pixels, pixels / 64.0);
    tekenKlaver(doek, {30, 28}, 26.5, pixels >= 32);
    return doek;
}
