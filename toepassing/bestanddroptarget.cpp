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
    const wxFileName eerste(bestanden[0]); // an empty drop asserts on the index
    if (!eerste.DirExists())
        return false;
    venster->vindBestandenInDirs->SetPath(eerste.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE));
    return true;
}
