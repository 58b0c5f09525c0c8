#pragma once
#include <wx/string.h>

// Small helper for the frame's HTML output (the optional printing helper).
class ZelvanoDesktopHTML
{
public:
    // "<" + tag + ">\n"
    static wxString mk(const wxString& tag);

    static const wxString breek;
    static const wxString nieuweRegel;
    static const wxString bodyBegin;
    static const wxString bodyEind;
    static const wxString eindeHeader;
    static const wxString tabelEind;
    static const wxString tabelRijBegin;
    static const wxString tabelRijEind;
};
