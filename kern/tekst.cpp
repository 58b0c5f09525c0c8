#include "kern/tekst.h"

#include <wx/utils.h>

namespace kern {

const wxString vr = "\n";
const wxString sp = " ";
const wxString tab = "\t";

wxString dubbeleQuotes(const wxString& s, bool metSpaties)
{
    const wxString q = "\"" + s + "\"";
    return metSpaties ? sp + q + sp : q;
}

wxString geefGeneratieDatum()
{
    static const char* const vorm = "%Y-%m-%d %H:%M:%S";
    wxString epoch;
    long long seconden = 0;
    if (wxGetEnv("SOURCE_DATE_EPOCH", &epoch) && epoch.ToLongLong(&seconden) && seconden >= 0)
        return wxDateTime(static_cast<time_t>(seconden)).Format(vorm, wxDateTime::UTC);
    return wxDateTime::Now().Format(vorm);
}

} // namespace kern
