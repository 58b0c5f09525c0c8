#pragma once
// The program's images. The window names them by their historical relative
// names ("../../../grafisch/ikonen/32x32/icons8-home.png",
// "ikoon/Klavermol.jpg", ...); a table says which SVG file below the shared
// data directory draws each one, and at which size. The toolkit renders the
// SVG at the screen's scale, so the images stay sharp on a high-DPI screen.
// A missing file gives an empty image; the window is built all the same.
#include <wx/bitmap.h>
#include <wx/bmpbndl.h>
#include <wx/icon.h>
#include <wx/string.h>

#include <cstddef>

class wxWindow;

// <directory of the executable>/../share/klavermol: the same relative place
// in the build tree and in an installation.
wxString geefDataMap();

// The catalogue prefix below which <lang>/LC_MESSAGES/<name>.mo are found
// next to the executable (build tree and installation alike).
wxString geefLocaleMap();

// The image for a known name, shown at grootte (by default the name's own
// size); an unknown name gives an empty bundle.
wxBitmapBundle geefBeeldBundel(const wxString& sleutel, const wxSize& grootte = wxDefaultSize);

// An SVG text held in memory (not NUL-terminated), shown at grootte.
wxBitmapBundle geefSvgBundel(const unsigned char* svg, std::size_t lengte, const wxSize& grootte);

// The bitmap an image list holds: the bundle at the window's scale, or a
// see-through one of the list's size, so that the indices stay in step.
wxBitmap geefLijstBeeld(const wxBitmapBundle& bundel, const wxWindow* venster, const wxSize& maat);

// The same as a bitmap and as an icon, at the normal scale.
wxBitmap geefAfbeelding(const wxString& sleutel, const wxSize& grootte = wxDefaultSize);
wxIcon geefIkoon(const wxString& sleutel, const wxSize& grootte = wxDefaultSize);

// Whether the name is one of the known names.
bool isBekendeAfbeelding(const wxString& sleutel);
