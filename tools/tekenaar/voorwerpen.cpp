// Button images that show an object: house, clock, document, bubbles,
// folder, books and chip. All on the 32 unit grid.
#include "knoppen.h"
#include "letters.h"
#include "vormen.h"

namespace {

const Kleur donkerRand = maakKleur(0x34302a);

} // namespace

void tekenThuis(Doek& doek)
{
    doek.vul(rechthoek({20.5, 4.5}, {25, 13}, 0.5), effen(maakKleur(0x8e2a1f)));
    const Vorm muur = rechthoek({6.5, 13}, {25.5, 29}, 1);
    tekenMetSchaduw(doek, muur, verloop(0xfff7e3, 0xe2c898), maakKleur(0x7a5630));
    doek.vul(rechthoek({13.5, 19}, {18.5, 29.5}, 1), verloop(0xb07040, 0x6e3f1c));
    doek.vul(cirkel({17.2, 24.5}, 0.7), effen(maakKleur(0xffe08a)));
    const Vorm raam = rechthoek({20.5, 16.5}, {24, 20.5}, 0.5);
    doek.vul(raam, verloop(0xcfeaff, 0x5aa6e0));
    doek.vul(verenig({omlijning(raam, 0.8), lijn({22.25, 16.5}, {22.25, 20.5}, 0.6)}), effen(maakKleur(0x7a5630)));
    const Vorm dak = verenig({lijn({2.5, 15.5}, {16, 3.5}, 3.8), lijn({16, 3.5}, {29.5, 15.5}, 3.8)});
    tekenMetSchaduw(doek, dak, verloop(0xf0644f, 0xa82a1c), maakKleur(0x6e1a10));
}

void tekenTijdmachine(Doek& doek)
{
    const Punt m{16, 16.5};
    const Vorm wijzerplaat = cirkel(m, 9.6);
    tekenMetSchaduw(doek, wijzerplaat, radiaal(m - Punt{3, 3}, 14, maakKleur(0xffffff), maakKleur(0xd4dde6)),
                    maakKleur(0x2f5f90));
    doek.vul(omlijning(wijzerplaat, 1.6), effen(maakKleur(0x2f6fb0)));
    for (int uur = 0; uur < 12; uur += 3)
        doek.vul(lijn(opCirkel(m, 6.4, uur * 30), opCirkel(m, 7.6, uur * 30), 1.1), effen(maakKleur(0x4a5a6a)));
    doek.vul(verenig({lijn(m, opCirkel(m, 4.6, -150), 1.6), lijn(m, opCirkel(m, 6.6, -90), 1.1)}),
             effen(maakKleur(0x22303d)));
    doek.vul(cirkel(m, 1.1), effen(maakKleur(0xc0392b)));
    // Turning back: an arrow running anticlockwise around the face.
    const double straal = 13.2, begin = -150;
    const Kleur groen = maakKleur(0x2e9a3e);
    const Vorm pijl = verenig({boog(m, straal, 2.4, begin + 14, 150),
                               pijlpunt(opCirkel(opCirkel(m, straal, begin), 2, begin - 90), begin - 90, 6.5, 7.5)});
    doek.vul(verschuif(pijl, {0.3, 0.8}), effen(maakKleur(0x000000, 0.3f)), 1.2 * doek.geefSchaal());
    doek.vul(pijl, effen(groen));
}

void tekenInsluiten(Doek& doek)
{
    const Vorm blad = veelhoek({{9, 2.5}, {22, 2.5}, {28, 8.5}, {28, 29.5}, {9, 29.5}});
    tekenMetSchaduw(doek, blad, verloop(0xffffff, 0xdfe6ee), maakKleur(0x51647a));
    doek.vul(veelhoek({{22, 2.5}, {22, 8.5}, {28, 8.5}}), verloop(0xc5d2e0, 0x95a8bd));
    doek.vul(omlijning(veelhoek({{22, 2.5}, {22, 8.5}, {28, 8.5}}), 0.8), effen(maakKleur(0x51647a)));
    for (double y : {12.0, 16.0, 20.0, 24.0})
        doek.vul(lijn({17, y}, {24.5, y}, 1.2), effen(maakKleur(0x9aaabb)));
    // The arrow going into the page.
    const Vorm pijl = verenig({lijn({1.8, 18}, {11, 18}, 3.6), pijlpunt({17.5, 18}, 0, 7.5, 11)});
    doek.vul(verdik(pijl, 1.0), effen(maakKleur(0xffffff)));
    doek.vul(pijl, verloop(0x5cc35a, 0x1f7a2c));
    doek.vul(omlijning(pijl, 0.6), effen(maakKleur(0x145a1e)));
}

void tekenTaal(Doek& doek)
{
    // Back bubble with a Chinese character, front bubble with a Latin letter.
    const Vorm achter = verenig({rechthoek({11, 1.5}, {31, 19}, 3.5), veelhoek({{23, 17}, {29, 24.5}, {28, 17}})});
    tekenMetSchaduw(doek, achter, verloop(0xffc857, 0xe08a1e), maakKleur(0x8a4f08));
    doek.vul(verenig({lijn({24, 3.6}, {24.8, 5.2}, 1.4), lijn({19.5, 7}, {29, 7}, 1.4),
                      lijn({21.5, 8.6}, {28.6, 16}, 1.4), lijn({27, 8.6}, {19.8, 16}, 1.4)}),
             effen(maakKleur(0x5a3206)));
    const Vorm ballon = rechthoek({1.5, 12.5}, {19, 28}, 3.5);
    const Vorm voor = verenig({ballon, veelhoek({{4.5, 26}, {3.5, 31.5}, {10.5, 26}})});
    tekenMetSchaduw(doek, voor, verloop(0x6fb6f2, 0x1f5fae), maakKleur(0x123f78));
    tekenGlans(doek, ballon, 12, 22);
    doek.vul(verdik(tekstVorm("A", {5.7, 14}, 1.8), 0.15), effen(maakKleur(0xffffff)));
}

void tekenProjekt(Doek& doek)
{
    const Vorm achter = verenig({rechthoek({2.5, 5}, {13, 12}, 1.5), rechthoek({2.5, 8}, {29.5, 27}, 2)});
    tekenMetSchaduw(doek, achter, verloop(0xf2b84b, 0xc98a1c), maakKleur(0x7d5510));
    const Vorm voor = veelhoek({{5, 12.5}, {31, 12.5}, {28.5, 27}, {2.5, 27}});
    doek.vul(verdik(voor, -0.3), verloop(0xffe38a, 0xf0b02a));
    doek.vul(omlijning(verdik(voor, -0.5), 1.0), effen(maakKleur(0x7d5510)));
    doek.vul(cirkel({23, 23}, 8.2), effen(maakKleur(0xffffff, 0.9f)));
    tekenTandwiel(doek, {23, 23}, 7.2, 7);
}

void tekenBoeken(Doek& doek)
{
    struct Boek { double links, rechts, boven; unsigned licht, donker; double helling; };
    const Boek boeken[] = {{3.5, 9.5, 6, 0xe5533f, 0x9c2618, 0}, {9.5, 16, 3, 0x5d9be0, 0x1f4f94, 0},
                           {16, 21, 8, 0x64c25a, 0x1f7a2c, 0}, {21.5, 27.5, 8, 0xffc857, 0xc47a12, 12}};
    for (const Boek& b : boeken) {
        const Punt voet{b.rechts, 28};
        const Vorm boek = draai(rechthoek({b.links, b.boven}, {b.rechts, 28}, 0.8), voet, b.helling);
        tekenMetSchaduw(doek, boek, lineair({b.links, 0}, maakKleur(b.licht), {b.rechts, 0}, maakKleur(b.donker)),
                        donkerRand);
        const Vorm banden = verenig({rechthoek({b.links + 1, b.boven + 2.5}, {b.rechts - 1, b.boven + 3.5}),
                                     rechthoek({b.links + 1, 23.5}, {b.rechts - 1, 24.5})});
        doek.vul(draai(banden, voet, b.helling), effen(maakKleur(0xfff3c4, 0.85f)));
    }
    doek.vul(rechthoek({1, 28}, {31, 30.5}, 0.8), verloop(0xa0703c, 0x6b4420));
}

void tekenSchakeling(Doek& doek)
{
    const Kleur zilver = maakKleur(0xdfe5ea), pootRand = maakKleur(0x4d5660);
    for (int i = 0; i < 4; ++i) {
        const double p = 10 + i * 4;
        for (const Vorm& poot : {rechthoek({p - 1.1, 2}, {p + 1.1, 8}, 0.4), rechthoek({p - 1.1, 24}, {p + 1.1, 30}, 0.4),
                                 rechthoek({2, p - 1.1}, {8, p + 1.1}, 0.4), rechthoek({24, p - 1.1}, {30, p + 1.1}, 0.4)}) {
            doek.vul(poot, effen(zilver));
            doek.vul(omlijning(poot, 0.6), effen(pootRand));
        }
    }
    const Vorm huis = rechthoek({6.5, 6.5}, {25.5, 25.5}, 2);
    tekenMetSchaduw(doek, huis, verloop(0x4a525c, 0x1e2329), maakKleur(0x0d1013));
    tekenGlans(doek, huis, 6, 18);
    doek.vul(omlijning(rechthoek({11.5, 11.5}, {20.5, 20.5}, 1), 1.2), effen(maakKleur(0xe8b84a)));
    doek.vul(cirkel({10, 10}, 1.1), effen(maakKleur(0x9aa5b0)));
}
