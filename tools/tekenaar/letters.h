#pragma once
// A tiny built-in pixel font: 5x7 glyphs (descenders two rows lower),
// six cells apart. Text becomes an ordinary shape, so it can be filled,
// outlined, shadowed and painted with gradients like any other.
#include <string>

#include "doek.h"

// Text whose top-left cell corner lies at 'linksboven'; each font pixel is a
// square of 'cel' design units. Unknown characters draw as blanks.
Vorm tekstVorm(const std::string& tekst, Punt linksboven, double cel);
// Width of the text in design units, without the trailing gap.
double geefTekstBreedte(const std::string& tekst, double cel);
constexpr int letterHoogte = 7;
