#pragma once
// Images compiled into the program (rendered or readied and embedded by the
// build, see data/): the splash JPEG, the about box's PNG and the flags' SVG.
#include <cstddef>

#define KLAVERMOL_INGEBED(naam) \
    extern const unsigned char naam[]; \
    extern const std::size_t naam##_lengte;

KLAVERMOL_INGEBED(Klavermol_jpg)
KLAVERMOL_INGEBED(Zelvano_klein_png)
KLAVERMOL_INGEBED(NederlandVlag_svg)
KLAVERMOL_INGEBED(DuitslandVlag_svg)
KLAVERMOL_INGEBED(GrootBritannieVlag_svg)
KLAVERMOL_INGEBED(FrankrijkVlag_svg)
KLAVERMOL_INGEBED(SpanjeVlag_svg)
KLAVERMOL_INGEBED(PortugalVlag_svg)
KLAVERMOL_INGEBED(IsraelVlag_svg)
KLAVERMOL_INGEBED(ItalieVlag_svg)
KLAVERMOL_INGEBED(ZwedenVlag_svg)
KLAVERMOL_INGEBED(JapanVlag_svg)
KLAVERMOL_INGEBED(ChinaVlag_svg)
KLAVERMOL_INGEBED(TaiwanVlag_svg)
KLAVERMOL_INGEBED(KoreaVlag_svg)
KLAVERMOL_INGEBED(RuslandVlag_svg)

#undef KLAVERMOL_INGEBED
