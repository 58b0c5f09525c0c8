#pragma once
// Every picture the program ships, drawn from scratch.
#include "doek.h"

// The four-leaf clover centred on 'midden'; 'grootte' is the distance from
// the centre to the far edge of a leaf.
void tekenKlaver(Doek& doek, Punt midden, double grootte, bool metSteel = true);
// The application icon: a clover filling a square of 'pixels'.
Doek maakKlaverIkoon(int pixels);

Doek maakZelvanoLogo(int pixels);
Doek maakOpstartBeeld();

enum class Vlag { Nederland, Duitsland, GrootBritannie, Frankrijk, Spanje, Portugal, Israel,
                  Italie, Zweden, Japan, China, Taiwan, Korea, Rusland };
Doek maakVlag(Vlag vlag);

// Toolbar and button images, drawn on a 32 unit grid and scaled to 'pixels'.
enum class Knop { Thuis, Tijdmachine, Terug, Vooruit, GroenPlus, BlauwPlus, Insluiten, Taal,
                  Algemeen, Projekt, Boeken, Schakeling, Uitvoeren };
Doek maakKnop(Knop knop, int pixels);
