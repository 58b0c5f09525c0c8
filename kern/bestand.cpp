#include "kern/bestand.h"

#include <wx/filename.h>
#include <wx/log.h>
#include <wx/txtstrm.h>
#include <wx/wfstream.h>

#include <sys/stat.h>

namespace kern {

bool schrijfTekstBestand(const wxString& pad, const wxString& tekst)
{
    wxLogNull stil; // the caller reports failures in its own words
    // A file marked read-only is refused for every user, root included,
    // though replacing it through a rename would succeed.
    struct stat st;
    if (::stat(pad.fn_str(), &st) == 0 && ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0
                                           || !wxFileName::IsFileWritable(pad)))
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
