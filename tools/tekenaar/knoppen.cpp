// Round buttons and plus signs, plus the dispatch for every button image.
#include "knoppen.h"

#include "tekeningen.h"
#include "vormen.h"

void tekenMetSchaduw(Doek& doek, const Vorm& vorm, const Verf& verf, Kleur rand)
{
    doek.vul(verschuif(vorm, {0.5, 1.0}), effen(maakKleur(0x000000, 0.35f)), 1.6 * doek.geefSchaal() + 0.5);
    doek.vul(vorm, verf);
    doek.vul(omlijning(verdik(vorm, -0.5), 1.0), effen(rand));
}

void tekenGlans(Doek& doek, const Vorm& vorm, double boven, double onder)
{
    doek.vul(verdik(vorm, -1.2), lineair({0, boven}, maakKleur(0xffffff, 0.55f), {0, onder}, maakKleur(0xffffff, 0.0f)));
}

Verf verloop(unsigned boven, unsigned onder)
{
    return lineair({0, 2}, maakKleur(boven), {0, 30}, maakKleur(onder));
}

void tekenTandwiel(Doek& doek, Punt midden, double straal, int tanden)
{
    const Vorm wiel = verschil(tandwiel(midden, straal * 0.72, straal, tanden), cirkel(midden, straal * 0.32));
    tekenMetSchaduw(doek, wiel, lineair(midden - Punt{0, straal}, maakKleur(0xb7c7d6), midden + Punt{0, straal},
                                        maakKleur(0x4d6479)),
                    maakKleur(0x2c3e50));
}

namespace {

const Kleur groenRand = maakKleur(0x1b5e20);

// A white arrow on a green disc; 'naarRechts' mirrors it.
void tekenRondePijl(Doek& doek, bool naarRechts)
{
    const Vorm schijf = cirkel({16, 16}, 14);
    tekenMetSchaduw(doek, schijf, verloop(0x74c94f, 0x23762c), groenRand);
    tekenGlans(doek, schijf, 2, 17);
    Vorm pijl = verenig({lijn({11, 16}, {23.5, 16}, 4.2), pijlpunt({6.5, 16}, 180, 8, 14)});
    if (naarRechts)
        pijl = spiegelHorizontaal(pijl, 16);
    doek.vul(verschuif(pijl, {0.3, 0.8}), effen(maakKleur(0x0b3d12, 0.45f)), 1.2 * doek.geefSchaal());
    doek.vul(pijl, effen(maakKleur(0xffffff)));
}

void tekenPlus(Doek& doek, unsigned licht, unsigned donker, unsigned rand)
{
    const Vorm plus = verenig({rechthoek({12, 3}, {20, 29}, 2.5), rechthoek({3, 12}, {29, 20}, 2.5)});
    tekenMetSchaduw(doek, plus, verloop(licht, donker), maakKleur(rand));
    tekenGlans(doek, plus, 3, 18);
}

void tekenUitvoeren(Doek& doek)
{
    const Vorm schijf = cirkel({16, 16}, 14.5);
    tekenMetSchaduw(doek, schijf, verloop(0x63c24c, 0x1d6a28), groenRand);
    tekenGlans(doek, schijf, 1.5, 16);
    const Vorm speel = verdik(veelhoek({{12.2, 9.5}, {22.5, 15.5}, {12.2, 21.5}}), 1.3);
    doek.vul(verschuif(speel, {0.4, 0.9}), effen(maakKleur(0x0b3d12, 0.45f)), 1.2 * doek.geefSchaal());
    doek.vul(speel, lineair({0, 8}, maakKleur(0xffffff), {0, 23}, maakKleur(0xe3f5d6)));
    doek.vul(cirkel({25.2, 25.2}, 6.6), effen(maakKleur(0xffffff)));
    doek.vul(omlijning(cirkel({25.2, 25.2}, 6.6), 0.8), effen(groenRand));
    tekenKlaver(doek, {25.2, 25.0}, 5.6, false);
}

void tekenAlgemeen(Doek& doek)
{
    tekenTandwiel(doek, {16, 16}, 14, 8);
}

} // namespace

Doek maakKnop(Knop knop, int pixels)
{
    Doek doek(pixels, pixels, pixels / 32.0);
    switch (knop) {
    case Knop::Thuis: tekenThuis(doek); break;
    case Knop::Tijdmachine: tekenTijdmachine(doek); break;
    case Knop::Terug: tekenRondePijl(doek, false); break;
    case Knop::Vooruit: tekenRondePijl(doek, true); break;
    case Knop::GroenPlus: tekenPlus(doek, 0x7fd65a, 0x2a8a32, 0x1b5e20); break;
    case Knop::BlauwPlus: tekenPlus(doek, 0x6fb6f2, 0x1f5fae, 0x123f78); break;
    case Knop::Insluiten: tekenInsluiten(doek); break;
    case Knop::Taal: tekenTaal(doek); break;
    case Knop::Algemeen: tekenAlgemeen(doek); break;
    case Knop::Projekt: tekenProjekt(doek); break;
    case Knop::Boeken: tekenBoeken(doek); break;
    case Knop::Schakeling: tekenSchakeling(doek); break;
    case Knop::Uitvoeren: tekenUitvoeren(doek); break;
    }
    return doek;
}
