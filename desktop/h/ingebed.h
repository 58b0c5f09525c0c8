#pragma once
// Images compiled into the program (generated and embedded by the build, see data/).
#include <cstddef>

#define KLAVERMOL_INGEBED(naam) \
    extern const unsigned char naam[]; \
    extern const std::size_t naam##_lengte;

KLAVERMOL_INGEBED(Klavermol_jpg)
KLAVERMOL_INGEBED(Zelvano_klein_png)
KLAVERMOL_INGEBED(NederlandVlag_png)
KLAVERMOL_INGEBED(DuitslandVlag_png)
KLAVERMOL_INGEBED(GrootBritannieVlag_png)
KLAVERMOL_INGEBED(FrankrijkVlag_png)
KLAVERMOL_INGEBED(SpanjeVlag_png)
KLAVERMOL_INGEBED(PortugalVlag_png)
KLAVERMOL_INGEBED(IsraelVlag_png)
KLAVERMOL_INGEBED(ItalieVlag_png)
KLAVERMOL_INGEBED(ZwedenVlag_png)
KLAVERMOL_INGEBED(JapanVlag_png)
KLAVERMOL_INGEBED(ChinaVlag_png)
KLAVERMOL_INGEBED(TaiwanVlag_png)
KLAVERMOL_INGEBED(KoreaVlag_png)
KLAVERMOL_INGEBED(RuslandVlag_png)

#undef KLAVERMOL_INGEBED
