#pragma once
// Shared look of the toolbar and button images (32 unit grid).
#include "doek.h"

// A filled shape with a soft drop shadow and a one unit rim.
void tekenMetSchaduw(Doek& doek, const Vorm& vorm, const Verf& verf, Kleur rand);
// A highlight over the top half of 'vorm'.
void tekenGlans(Doek& doek, const Vorm& vorm, double boven, double onder);
// A top-to-bottom gradient between two colours over the full grid.
Verf verloop(unsigned boven, unsigned onder);

void tekenTandwiel(Doek& doek, Punt midden, double straal, int tanden);

// Pictures of objects: a house, a clock, a document, ...
void tekenThuis(Doek& doek);
void tekenTijdmachine(Doek& doek);
void tekenInsluiten(Doek& doek);
void tekenTaal(Doek& doek);
void tekenProjekt(Doek& doek);
void tekenBoeken(Doek& doek);
void tekenSchakeling(Doek& doek);
