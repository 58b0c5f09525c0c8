#include "doek.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include <wx/image.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

Kleur maakKleur(unsigned rgb, float dekking)
{
    return {((rgb >> 16) & 0xff) / 255.0f, ((rgb >> 8) & 0xff) / 255.0f, (rgb & 0xff) / 255.0f, dekking};
}

Kleur meng(Kleur a, Kleur b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    const auto m = [t](float x, float y) { return static_cast<float>(x + (y - x) * t); };
    return {m(a.r, b.r), m(a.g, b.g), m(a.b, b.b), m(a.a, b.a)};
}

Verf effen(Kleur k)
{
    return [k](Punt) { return k; };
}

Verf lineair(Punt van, Kleur begin, Punt naar, Kleur eind)
{
    const Punt as = naar - van;
    const double lengte2 = as.x * as.x + as.y * as.y;
    return [=](Punt p) {
        const Punt d = p - van;
        return meng(begin, eind, (d.x * as.x + d.y * as.y) / lengte2);
    };
}

Verf radiaal(Punt midden, double straal, Kleur binnen, Kleur buiten)
{
    return [=](Punt p) { return meng(binnen, buiten, std::hypot(p.x - midden.x, p.y - midden.y) / straal); };
}

Doek::Doek(int b, int h, double s) : breedte(b), hoogte(h), schaal(s), pixels(b * h, Kleur{0, 0, 0, 0}) {}

void Doek::vul(const Vorm& vorm, const Verf& verf, double rand)
{
    for (int y = 0; y < hoogte; ++y)
        for (int x = 0; x < breedte; ++x) {
            const Punt p{(x + 0.5) / schaal, (y + 0.5) / schaal};
            const double afstand = vorm(p) * schaal;  // in pixels
            const double dekking = std::clamp(0.5 - afstand / rand, 0.0, 1.0);
            if (dekking <= 0.0)
                continue;
            const Kleur k = verf(p);
            const float a = static_cast<float>(k.a * dekking);
            Kleur& d = pixels[y * breedte + x];
            d.r = k.r * a + d.r * (1 - a);
            d.g = k.g * a + d.g * (1 - a);
            d.b = k.b * a + d.b * (1 - a);
            d.a = a + d.a * (1 - a);
        }
}

void Doek::vulAlles(const Verf& verf)
{
    vul([](Punt) { return -1e9; }, verf);
}

void Doek::voegKorrelToe(float sterkte, unsigned zaad)
{
    unsigned toestand = zaad * 2654435761u + 1;
    for (Kleur& k : pixels) {
        toestand = toestand * 1664525u + 1013904223u;
        const float ruis = ((toestand >> 8) / 16777216.0f - 0.5f) * sterkte * k.a;
        k.r = std::clamp(k.r + ruis, 0.0f, k.a);
        k.g = std::clamp(k.g + ruis, 0.0f, k.a);
        k.b = std::clamp(k.b + ruis, 0.0f, k.a);
    }
}

wxImage Doek::geefBeeld(bool metAlfa) const
{
    wxImage beeld(breedte, hoogte);
    if (metAlfa)
        beeld.InitAlpha();
    const auto byte = [](float v) { return static_cast<unsigned char>(std::lround(std::clamp(v, 0.0f, 1.0f) * 255)); };
    for (int y = 0; y < hoogte; ++y)
        for (int x = 0; x < breedte; ++x) {
            const Kleur& k = pixels[y * breedte + x];
            if (metAlfa) {
                // Un-premultiply; fully transparent pixels keep black.
                const float f = k.a > 0 ? 1.0f / k.a : 0.0f;
                beeld.SetRGB(x, y, byte(k.r * f), byte(k.g * f), byte(k.b * f));
                beeld.SetAlpha(x, y, byte(k.a));
            } else {
                // Flatten onto white.
                const float w = 1.0f - k.a;
                beeld.SetRGB(x, y, byte(k.r + w), byte(k.g + w), byte(k.b + w));
            }
        }
    return beeld;
}

namespace {

void schrijf(const wxImage& beeld, const std::string& pad, wxBitmapType soort)
{
    if (!beeld.SaveFile(wxString::FromUTF8(pad), soort))
        throw std::runtime_error("cannot write " + pad);
}

wxImage maakJpegBeeld(const Doek& doek, int kwaliteit)
{
    wxImage beeld = doek.geefBeeld(false);
    beeld.SetOption(wxIMAGE_OPTION_QUALITY, kwaliteit);
    return beeld;
}

std::size_t geefJpegGrootte(const Doek& doek, int kwaliteit)
{
    wxMemoryOutputStream uit;
    maakJpegBeeld(doek, kwaliteit).SaveFile(uit, wxBITMAP_TYPE_JPEG);
    return static_cast<std::size_t>(uit.GetSize());
}

} // namespace

void bewaarPng(const Doek& doek, const std::string& pad)
{
    wxImage beeld = doek.geefBeeld(true);
    beeld.SetOption(wxIMAGE_OPTION_PNG_COMPRESSION_LEVEL, 9);
    schrijf(beeld, pad, wxBITMAP_TYPE_PNG);
}

void bewaarJpeg(const Doek& doek, const std::string& pad, int kwaliteit)
{
    schrijf(maakJpegBeeld(doek, kwaliteit), pad, wxBITMAP_TYPE_JPEG);
}

std::size_t bewaarJpegRond(const Doek& doek, const std::string& pad, std::size_t doelBytes)
{
    int beste = 90;
    std::size_t besteGrootte = geefJpegGrootte(doek, beste);
    for (int q = 40; q <= 100; ++q) {
        const std::size_t grootte = geefJpegGrootte(doek, q);
        const auto verschil = [doelBytes](std::size_t g) { return g > doelBytes ? g - doelBytes : doelBytes - g; };
        if (verschil(grootte) < verschil(besteGrootte)) {
            beste = q;
            besteGrootte = grootte;
        }
    }
    bewaarJpeg(doek, pad, beste);
    return besteGrootte;
}
