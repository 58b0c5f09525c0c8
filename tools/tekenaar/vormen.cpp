#include "vormen.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

double radialen(double graden) { return graden * pi / 180.0; }
double lengte(Punt p) { return std::hypot(p.x, p.y); }
double inproduct(Punt a, Punt b) { return a.x * b.x + a.y * b.y; }

Punt draaiPunt(Punt p, Punt midden, double graden)
{
    const double c = std::cos(radialen(graden)), s = std::sin(radialen(graden));
    const Punt d = p - midden;
    return {midden.x + d.x * c - d.y * s, midden.y + d.x * s + d.y * c};
}

} // namespace

Punt opCirkel(Punt midden, double straal, double hoek)
{
    return {midden.x + straal * std::cos(radialen(hoek)), midden.y + straal * std::sin(radialen(hoek))};
}

Vorm cirkel(Punt midden, double straal)
{
    return [=](Punt p) { return lengte(p - midden) - straal; };
}

Vorm rechthoek(Punt lb, Punt ro, double afronding)
{
    const Punt midden = (lb + ro) * 0.5;
    const Punt half = (ro - lb) * 0.5;
    return [=](Punt p) {
        const double qx = std::abs(p.x - midden.x) - half.x + afronding;
        const double qy = std::abs(p.y - midden.y) - half.y + afronding;
        return std::hypot(std::max(qx, 0.0), std::max(qy, 0.0)) + std::min(std::max(qx, qy), 0.0) - afronding;
    };
}

Vorm lijn(Punt a, Punt b, double dikte)
{
    const Punt as = b - a;
    const double lengte2 = std::max(inproduct(as, as), 1e-12);
    return [=](Punt p) {
        const Punt w = p - a;
        const double t = std::clamp(inproduct(w, as) / lengte2, 0.0, 1.0);
        return lengte(w - as * t) - dikte / 2;
    };
}

Vorm veelhoek(std::vector<Punt> v)
{
    return [v = std::move(v)](Punt p) {
        double d2 = inproduct(p - v[0], p - v[0]);
        double teken = 1;
        for (std::size_t i = 0, j = v.size() - 1; i < v.size(); j = i++) {
            const Punt e = v[j] - v[i];
            const Punt w = p - v[i];
            const Punt b = w - e * std::clamp(inproduct(w, e) / inproduct(e, e), 0.0, 1.0);
            d2 = std::min(d2, inproduct(b, b));
            const bool c1 = p.y >= v[i].y, c2 = p.y < v[j].y, c3 = e.x * w.y > e.y * w.x;
            if ((c1 && c2 && c3) || (!c1 && !c2 && !c3))
                teken = -teken;
        }
        return teken * std::sqrt(d2);
    };
}

Vorm boog(Punt midden, double straal, double dikte, double van, double tot)
{
    const Punt begin = opCirkel(midden, straal, van), eind = opCirkel(midden, straal, tot);
    return [=](Punt p) {
        double hoek = std::atan2(p.y - midden.y, p.x - midden.x) * 180.0 / pi;
        while (hoek < van)
            hoek += 360;
        if (hoek <= tot)
            return std::abs(lengte(p - midden) - straal) - dikte / 2;
        return std::min(lengte(p - begin), lengte(p - eind)) - dikte / 2;
    };
}

Vorm ster(Punt midden, double buiten, double binnen, int punten, double draaiing)
{
    std::vector<Punt> hoeken;
    for (int i = 0; i < punten * 2; ++i)
        hoeken.push_back(opCirkel(midden, i % 2 ? binnen : buiten, draaiing + i * 180.0 / punten));
    return veelhoek(hoeken);
}

Vorm tandwiel(Punt midden, double binnen, double buiten, int tanden)
{
    return [=](Punt p) {
        const Punt d = p - midden;
        // Position within one tooth period, 0 at the middle of a tooth.
        const double fase = std::atan2(d.y, d.x) / (2 * pi) * tanden;
        const double f = std::abs(fase - std::round(fase));  // 0 .. 0.5
        const double hoogte = std::clamp((0.32 - f) / 0.1, 0.0, 1.0);
        const double rand = binnen + (buiten - binnen) * hoogte;
        // Scale down a little: the edge of the teeth is steeper than the radius.
        return (lengte(d) - rand) * 0.7;
    };
}

Vorm hart(Punt punt, double lengte, double hoek)
{
    // Built pointing along +y: a square on its corner plus two circles on
    // its far edges.
    const double a = lengte / (1.5 + std::sqrt(0.5));
    const double straal = a / std::sqrt(2.0);
    const Vorm ruit = [a](Punt p) { return (std::abs(p.x) + std::abs(p.y - a) - a) / std::sqrt(2.0); };
    const Vorm recht = verenig({ruit, cirkel({-a / 2, 1.5 * a}, straal), cirkel({a / 2, 1.5 * a}, straal)});
    return [=](Punt p) { return recht(draaiPunt(p, punt, 90 - hoek) - punt); };
}

Vorm pijlpunt(Punt punt, double hoek, double lengte, double breedte)
{
    const Punt achter = opCirkel(punt, lengte, hoek + 180);
    return veelhoek({punt, opCirkel(achter, breedte / 2, hoek + 90), opCirkel(achter, breedte / 2, hoek - 90)});
}

Vorm verenig(std::initializer_list<Vorm> vormen)
{
    return [v = std::vector<Vorm>(vormen)](Punt p) {
        double d = 1e9;
        for (const Vorm& vorm : v)
            d = std::min(d, vorm(p));
        return d;
    };
}

Vorm verschil(Vorm vorm, Vorm weg)
{
    return [=](Punt p) { return std::max(vorm(p), -weg(p)); };
}

Vorm snijding(Vorm a, Vorm b)
{
    return [=](Punt p) { return std::max(a(p), b(p)); };
}

Vorm omlijning(Vorm vorm, double dikte)
{
    return [=](Punt p) { return std::abs(vorm(p)) - dikte / 2; };
}

Vorm verdik(Vorm vorm, double marge)
{
    return [=](Punt p) { return vorm(p) - marge; };
}

Vorm verschuif(Vorm vorm, Punt d)
{
    return [=](Punt p) { return vorm(p - d); };
}

Vorm draai(Vorm vorm, Punt midden, double hoek)
{
    return [=](Punt p) { return vorm(draaiPunt(p, midden, -hoek)); };
}

Vorm spiegelHorizontaal(Vorm vorm, double asX)
{
    return [=](Punt p) { return vorm({2 * asX - p.x, p.y}); };
}
