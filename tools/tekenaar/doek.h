#pragma once
// A small floating-point RGBA canvas for the artwork generator. Shapes are
// signed distance functions in "design units"; the canvas maps design units to
// pixels with one scale factor, so a picture drawn once serves every size.
#include <functional>
#include <string>
#include <vector>

class wxImage;

struct Punt
{
    double x = 0, y = 0;
};

inline Punt operator+(Punt a, Punt b) { return {a.x + b.x, a.y + b.y}; }
inline Punt operator-(Punt a, Punt b) { return {a.x - b.x, a.y - b.y}; }
inline Punt operator*(Punt a, double f) { return {a.x * f, a.y * f}; }

struct Kleur
{
    float r = 0, g = 0, b = 0, a = 1;
};

// 0xRRGGBB plus an optional opacity.
Kleur maakKleur(unsigned rgb, float dekking = 1.0f);
Kleur meng(Kleur a, Kleur b, double t);

// A shape: signed distance to its edge in design units (negative inside).
using Vorm = std::function<double(Punt)>;
// A paint: the colour at a point in design units.
using Verf = std::function<Kleur(Punt)>;

Verf effen(Kleur k);
Verf lineair(Punt van, Kleur begin, Punt naar, Kleur eind);
Verf radiaal(Punt midden, double straal, Kleur binnen, Kleur buiten);

class Doek
{
public:
    // breedte x hoogte pixels; one design unit is 'schaal' pixels.
    Doek(int breedte, int hoogte, double schaal = 1.0);

    int geefBreedte() const { return breedte; }
    int geefHoogte() const { return hoogte; }
    double geefSchaal() const { return schaal; }

    // Paints 'verf' inside 'vorm'. The edge is blended over 'rand' pixels;
    // a wide rand gives a soft shadow or glow.
    void vul(const Vorm& vorm, const Verf& verf, double rand = 1.0);
    // Paints the whole canvas (backgrounds).
    void vulAlles(const Verf& verf);
    // Adds a little deterministic grain so large gradients do not band.
    void voegKorrelToe(float sterkte, unsigned zaad);

    wxImage geefBeeld(bool metAlfa) const;

private:
    int breedte, hoogte;
    double schaal;
    std::vector<Kleur> pixels;  // premultiplied
};

// Writers: throw std::runtime_error when a file cannot be written.
void bewaarPng(const Doek& doek, const std::string& pad);
// A JPEG at a fixed quality (flattened onto the canvas' own background).
void bewaarJpeg(const Doek& doek, const std::string& pad, int kwaliteit);
// A JPEG whose quality is chosen so the file lands as close as possible to
// 'doelBytes'. Returns the size written.
std::size_t bewaarJpegRond(const Doek& doek, const std::string& pad, std::size_t doelBytes);
