#pragma once
// Small text helpers shared by the core, the desktop frame and the front ends.
#include <wx/string.h>
#include <wx/datetime.h>

namespace kern {

extern const wxString vr;   // the line end every generator writes: "\n"
extern const wxString sp;   // one blank
extern const wxString tab;  // "\t"

// s between two double-quote characters; with metSpaties also one blank
// before and after the quoted text.
wxString dubbeleQuotes(const wxString& s, bool metSpaties);

// The date line of a generated file, "%Y-%m-%d %H:%M:%S": the local time
// now, or, when SOURCE_DATE_EPOCH holds a valid number (reproducible
// builds), that moment in UTC.
wxString geefGeneratieDatum();

} // namespace kern
