#include "toepassing/padveld.h"

#include <wx/filename.h>

wxString normaleMap(const wxString& map)
{
    if (map.empty())
        return map;
    wxFileName f = wxFileName::DirName(map);
    f.MakeAbsolute();
    return f.GetPath(wxPATH_GET_VOLUME);
}

wxString normaalBestand(const wxString& pad)
{
    if (pad.empty())
        return pad;
    wxFileName f(pad);
    f.MakeAbsolute();
    return f.GetFullPath();
}

bool ligtIn(const wxString& map, const wxString& boven)
{
    if (map == boven)
        return true;
    const wxString voorvoegsel = boven.EndsWith(wxFILE_SEP_PATH) ? boven : boven + wxFILE_SEP_PATH;
    return map.StartsWith(voorvoegsel);
}
