#include "desktopHTML.h"

wxString ZelvanoDesktopHTML::mk(const wxString& tag)
{
    return "<" + tag + ">\n";
}

const wxString ZelvanoDesktopHTML::breek = "<br>";
const wxString ZelvanoDesktopHTML::nieuweRegel = "\n";
const wxString ZelvanoDesktopHTML::bodyBegin = ZelvanoDesktopHTML::mk("body");
const wxString ZelvanoDesktopHTML::bodyEind = ZelvanoDesktopHTML::mk("/body");
const wxString ZelvanoDesktopHTML::eindeHeader = ZelvanoDesktopHTML::mk("/head");
const wxString ZelvanoDesktopHTML::tabelEind = "</table>\n";
const wxString ZelvanoDesktopHTML::tabelRijBegin = ZelvanoDesktopHTML::mk("tr");
const wxString ZelvanoDesktopHTML::tabelRijEind = ZelvanoDesktopHTML::mk("/tr");
