#include "kern/bestand.h"

#include <wx/filename.h>
#include <wx/log.h>
#include <wx/txtstrm.h>
#include <wx/wfstream.h>

#include <cerrno>
#include <sys/stat.h>

namespace kern {

namespace {

bool mislukt(wxString* reden, int fout)
{
    if (reden)
        *reden = wxSysErrorMsgStr(static_cast<unsigned long>(fout));
    return false;
}

} // namespace

bool schrijfTekstBestand(const wxString& pad, const wxString& tekst, wxString* reden)
{
    wxLogNull stil; // the caller reports failures in its own words
    // A file marked read-only is refused for every user, root included,
    // though replacing it through a rename would succeed.
    struct stat st;
    if (::stat(pad.fn_str(), &st) == 0 && ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0
                                           || !wxFileName::IsFileWritable(pad)))
        return mislukt(reden, EACCES);

    errno = 0;
    wxTempFileOutputStream stroom(pad);
    if (!stroom.IsOk())
        return mislukt(reden, errno ? errno : EACCES);
    {
        wxTextOutputStream tekstStroom(stroom, wxEOL_NATIVE, wxConvUTF8);
        tekstStroom.WriteString(tekst);
        tekstStroom.Flush();
    }
    if (!stroom.IsOk()) {
        const int fout = errno ? errno : EIO;
        stroom.Discard();
        return mislukt(reden, fout);
    }
    return stroom.Commit() || mislukt(reden, errno ? errno : EIO);
}

} // namespace kern
