#pragma once
// Images loaded from disk at run time. The program names them by their
// historical relative names ("../../../grafisch/ikonen/32x32/icons8-home.png",
// "ikoon/Klavermol.jpg", ...); this table says where each one lives below the
// shared data directory, and which stock image stands in when the file is
// missing, so that no button is ever left blank.
#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/string.h>

// <directory of the executable>/../share/klavermol: the same relative place
// in the build tree and in an installation.
wxString geefDataMap();

// The catalogue prefix below which <lang>/LC_MESSAGES/<name>.mo are found
// next to the executable (build tree and installation alike).
wxString geefLocaleMap();

// The bitmap for a known name, scaled to grootte when that is given; an
// unknown name gives an empty bitmap.
wxBitmap geefAfbeelding(const wxString& sleutel, const wxSize& grootte = wxDefaultSize);

// The same as an icon.
wxIcon geefIkoon(const wxString& sleutel, const wxSize& grootte = wxDefaultSize);

// Whether the name is one of the known names.
bool isBekendeAfbeelding(const wxString& sleutel);
