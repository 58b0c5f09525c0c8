#pragma once
// Signed distance shapes (negative inside) and ways to combine them.
// Angles are in degrees, clockwise from three o'clock, because y points down.
#include <initializer_list>
#include <vector>

#include "doek.h"

Vorm cirkel(Punt midden, double straal);
Vorm rechthoek(Punt linksboven, Punt rechtsonder, double afronding = 0);
// A stroke from a to b with round ends.
Vorm lijn(Punt a, Punt b, double dikte);
Vorm veelhoek(std::vector<Punt> hoeken);
// A stroke along a circle from angle 'van' to 'tot' (tot > van), round ends.
Vorm boog(Punt midden, double straal, double dikte, double van, double tot);
Vorm ster(Punt midden, double buiten, double binnen, int punten, double draaiing = -90);
Vorm tandwiel(Punt midden, double binnen, double buiten, int tanden);
// A heart whose point lies at 'punt' and whose lobes lie 'lengte' away in
// direction 'hoek'.
Vorm hart(Punt punt, double lengte, double hoek);
// A triangular arrow head with its tip at 'punt', pointing towards 'hoek'.
Vorm pijlpunt(Punt punt, double hoek, double lengte, double breedte);

Vorm verenig(std::initializer_list<Vorm> vormen);
Vorm verschil(Vorm vorm, Vorm weg);
Vorm snijding(Vorm a, Vorm b);
// A band of width 'dikte' centred on the edge of 'vorm'.
Vorm omlijning(Vorm vorm, double dikte);
// Grows (positive) or shrinks the shape by 'marge'.
Vorm verdik(Vorm vorm, double marge);
Vorm verschuif(Vorm vorm, Punt d);
Vorm draai(Vorm vorm, Punt midden, double hoek);
Vorm spiegelHorizontaal(Vorm vorm, double asX);

Punt opCirkel(Punt midden, double straal, double hoek);
