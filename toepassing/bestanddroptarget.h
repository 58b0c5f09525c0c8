#pragma once
// Dropping files or a directory on the search-location picker sets the
// picker to the directory part of the first dropped path.
#include <wx/dnd.h>

class KlavermolVenster;

class BestandDropTarget : public wxFileDropTarget
{
public:
    explicit BestandDropTarget(KlavermolVenster* venster) : venster(venster) {}

    wxDragResult OnDragOver(wxCoord x, wxCoord y, wxDragResult standaard) override;
    bool OnDropFiles(wxCoord x, wxCoord y, const wxArrayString& bestanden) override;

private:
    KlavermolVenster* venster;
};
