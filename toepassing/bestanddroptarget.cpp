#include "toepassing/bestanddroptarget.h"

#include "toepassing/klavermolvenster.h"

#include <wx/filename.h>
#include <wx/filepicker.h>

wxDragResult BestandDropTarget::OnDragOver(wxCoord, wxCoord, wxDragResult standaard)
{
    return standaard;
}

bool BestandDropTarget::OnDropFiles(wxCoord, wxCoord, const wxArrayString& bestanden)
{
    if (bestanden.empty()) {
        // a link or text that names no file: the first entry is missing
        wxFAIL_COND_MSG(nIndex < m_nCount, "wxArrayString: index out of bounds");
        return false;
    }
    const wxFileName eerste(bestanden[0]);
    if (!eerste.DirExists())
        return false;
    venster->vindBestandenInDirs->SetPath(eerste.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE));
    return true;
}
