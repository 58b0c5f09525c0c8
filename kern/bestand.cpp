#include "kern/bestand.h"

#include <wx/filename.h>
#include <wx/log.h>
#include <wx/txtstrm.h>
#include <wx/wfstream.h>

namespace kern {

bool schrijfTekstBestand(const wxString& pad, const wxString& tekst)
{
    wxLogNull stil; // the caller reports failures in its own words
    if (wxFileName::FileExists(pad) && !wxFileName::IsFileWritable(pad))
        return false;

    wxTempFileOutputStream stroom(pad);
    if (!stroom.IsOk())
        return false;
    {
        wxTextOutputStream tekstStroom(stroom, wxEOL_NATIVE, wxConvUTF8);
        tekstStroom.WriteString(tekst);
        tekstStroom.Flush();
    }
    if (!stroom.IsOk()) {
        stroom.Discard();
        return false;
    }
    return stroom.Commit();
}

} // namespace kern
