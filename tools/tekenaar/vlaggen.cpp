// The language flags: 24 x 24 with a 22 x 16 flag in the middle.
#include <cmath>
#include <vector>

#include "tekeningen.h"
#include "vormen.h"

namespace {

constexpr double links = 1, rechts = 23, boven = 4, onder = 20;
constexpr double midX = (links + rechts) / 2, midY = (boven + onder) / 2;

struct Vlaggendoek
{
    Doek doek{24, 24};
    Vorm veld = rechthoek({links, boven}, {rechts, onder}, 1.2);

    // Fills 'vorm', cut off at the edge of the flag.
    void vul(const Vorm& vorm, unsigned rgb) { doek.vul(snijding(veld, vorm), effen(maakKleur(rgb))); }
};

struct Band
{
    unsigned kleur;
    double gewicht;
};

// Stripes across (liggend) or down the flag, sized by weight.
void tekenBanden(Vlaggendoek& v, const std::vector<Band>& banden, bool liggend)
{
    double totaal = 0;
    for (const Band& b : banden)
        totaal += b.gewicht;
    const double lengte = liggend ? onder - boven : rechts - links;
    double pos = liggend ? boven : links;
    for (const Band& b : banden) {
        const double eind = pos + lengte * b.gewicht / totaal;
        // Overlap the next band slightly so no seam shows.
        const double tot = &b == &banden.back() ? eind : eind + 0.5;
        v.vul(liggend ? rechthoek({0, pos}, {24, tot}) : rechthoek({pos, 0}, {tot, 24}), b.kleur);
        pos = eind;
    }
}

void tekenBritannie(Vlaggendoek& v)
{
    v.vul(v.veld, 0x012169);
    const Punt lb{links, boven}, ro{rechts, onder}, rb{rechts, boven}, lo{links, onder};
    v.vul(verenig({lijn(lb, ro, 3.4), lijn(rb, lo, 3.4)}), 0xffffff);
    v.vul(verenig({lijn(lb, ro, 1.2), lijn(rb, lo, 1.2)}), 0xc8102e);
    v.vul(verenig({rechthoek({midX - 2.7, 0}, {midX + 2.7, 24}), rechthoek({0, midY - 2.7}, {24, midY + 2.7})}),
          0xffffff);
    v.vul(verenig({rechthoek({midX - 1.6, 0}, {midX + 1.6, 24}), rechthoek({0, midY - 1.6}, {24, midY + 1.6})}),
          0xc8102e);
}

void tekenPortugal(Vlaggendoek& v)
{
    tekenBanden(v, {{0x046a38, 2}, {0xda291c, 3}}, false);
    const Punt wapen{links + 22 * 0.4, midY};
    v.vul(omlijning(cirkel(wapen, 3.4), 1.3), 0xffcc29);
    v.vul(rechthoek(wapen - Punt{1.6, 1.9}, wapen + Punt{1.6, 1.9}, 0.8), 0xffffff);
    v.vul(rechthoek(wapen - Punt{0.9, 1.2}, wapen + Punt{0.9, 1.2}, 0.5), 0x003399);
}

void tekenIsrael(Vlaggendoek& v)
{
    v.vul(v.veld, 0xffffff);
    v.vul(verenig({rechthoek({0, 5.6}, {24, 7.6}), rechthoek({0, 16.4}, {24, 18.4})}), 0x0038b8);
    const Punt m{midX, midY};
    const auto driehoek = [m](double draaiing) {
        return veelhoek({opCirkel(m, 3.6, draaiing), opCirkel(m, 3.6, draaiing + 120), opCirkel(m, 3.6, draaiing + 240)});
    };
    v.vul(verenig({omlijning(driehoek(-90), 0.8), omlijning(driehoek(90), 0.8)}), 0x0038b8);
}

void tekenZweden(Vlaggendoek& v)
{
    v.vul(v.veld, 0x006aa7);
    v.vul(verenig({rechthoek({7.9, 0}, {10.7, 24}), rechthoek({0, 10.5}, {24, 13.5})}), 0xfecc02);
}

void tekenChina(Vlaggendoek& v)
{
    v.vul(v.veld, 0xde2910);
    v.vul(ster({6, 8.6}, 3.2, 1.25, 5), 0xffde00);
    const Punt kleintjes[] = {{10.2, 5.9}, {11.8, 7.8}, {11.8, 10.3}, {10.2, 12.0}};
    for (const Punt& p : kleintjes)
        v.vul(ster(p, 1.15, 0.45, 5), 0xffde00);
}

void tekenTaiwan(Vlaggendoek& v)
{
    v.vul(v.veld, 0xfe0000);
    v.vul(rechthoek({0, 0}, {midX, midY}), 0x000095);
    const Punt zon{(links + midX) / 2, (boven + midY) / 2};
    v.vul(ster(zon, 3.2, 2.0, 12), 0xffffff);
    v.vul(cirkel(zon, 1.85), 0x000095);
    v.vul(cirkel(zon, 1.45), 0xffffff);
}

// One trigram: three bars across the direction 'hoek'; 'gebroken' says for
// each bar whether it has a gap in the middle.
void tekenTrigram(Vlaggendoek& v, Punt midden, double hoek, const char* gebroken)
{
    for (int i = 0; i < 3; ++i) {
        const Punt m = opCirkel(midden, (i - 1) * 1.25, hoek);
        const Punt a = opCirkel(m, 1.9, hoek + 90), b = opCirkel(m, 1.9, hoek - 90);
        Vorm balk = lijn(a, b, 0.8);
        if (gebroken[i] == '-')
            balk = verschil(balk, cirkel(m, 0.45));
        v.vul(balk, 0x000000);
    }
}

void tekenKorea(Vlaggendoek& v)
{
    v.vul(v.veld, 0xffffff);
    const Punt m{midX, midY};
    const double hoek = std::atan2(onder - boven, rechts - links) * 180 / 3.14159265358979;
    v.vul(cirkel(m, 4), 0x0047a0);
    const Punt a = opCirkel(m, 2, hoek + 180), b = opCirkel(m, 2, hoek);
    const Vorm bovenHelft = snijding(cirkel(m, 4), draai(rechthoek({m.x - 5, m.y - 5}, {m.x + 5, m.y}), m, hoek));
    v.vul(verschil(verenig({bovenHelft, cirkel(a, 2)}), cirkel(b, 2)), 0xcd2e3a);
    tekenTrigram(v, opCirkel(m, 7.4, hoek + 180), hoek, "===");
    tekenTrigram(v, opCirkel(m, 7.4, hoek), hoek, "---");
    tekenTrigram(v, opCirkel(m, 7.4, -hoek), -hoek, "-=-");
    tekenTrigram(v, opCirkel(m, 7.4, 180 - hoek), -hoek, "=-=");
}

void tekenVeld(Vlaggendoek& v, Vlag vlag)
{
    switch (vlag) {
    case Vlag::Nederland: return tekenBanden(v, {{0xae1c28, 1}, {0xffffff, 1}, {0x21468b, 1}}, true);
    case Vlag::Duitsland: return tekenBanden(v, {{0x000000, 1}, {0xdd0000, 1}, {0xffce00, 1}}, true);
    case Vlag::Rusland: return tekenBanden(v, {{0xffffff, 1}, {0x0039a6, 1}, {0xd52b1e, 1}}, true);
    case Vlag::Frankrijk: return tekenBanden(v, {{0x0055a4, 1}, {0xffffff, 1}, {0xef4135, 1}}, false);
    case Vlag::Italie: return tekenBanden(v, {{0x009246, 1}, {0xffffff, 1}, {0xce2b37, 1}}, false);
    case Vlag::Spanje:
        tekenBanden(v, {{0xaa151b, 1}, {0xf1bf00, 2}, {0xaa151b, 1}}, true);
        v.vul(rechthoek({5.2, 9.6}, {8.4, 14.2}, 1.0), 0xad1519);
        return v.vul(rechthoek({6.1, 10.4}, {7.5, 12.6}, 0.4), 0xf1bf00);
    case Vlag::Portugal: return tekenPortugal(v);
    case Vlag::GrootBritannie: return tekenBritannie(v);
    case Vlag::Israel: return tekenIsrael(v);
    case Vlag::Zweden: return tekenZweden(v);
    case Vlag::Japan:
        v.vul(v.veld, 0xffffff);
        return v.vul(cirkel({midX, midY}, 4.6), 0xbc002d);
    case Vlag::China: return tekenChina(v);
    case Vlag::Taiwan: return tekenTaiwan(v);
    case Vlag::Korea: return tekenKorea(v);
    }
}

} // namespace

Doek maakVlag(Vlag vlag)
{
    Vlaggendoek v;
    v.doek.vul(verschuif(v.veld, {0.4, 0.8}), effen(maakKleur(0x000000, 0.3f)), 1.8);
    tekenVeld(v, vlag);
    // A touch of sheen and a fine rim so white flags stand out on white.
    v.doek.vul(v.veld, lineair({0, boven}, maakKleur(0xffffff, 0.2f), {0, midY + 2}, maakKleur(0xffffff, 0.0f)));
    v.doek.vul(omlijning(verdik(v.veld, -0.25), 0.5), effen(maakKleur(0x000000, 0.3f)));
    return v.doek;
}
