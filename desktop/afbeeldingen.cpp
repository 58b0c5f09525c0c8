#include "afbeeldingen.h"

#include <wx/artprov.h>
#include <wx/filename.h>
#include <wx/image.h>
#include <wx/stdpaths.h>

namespace {

struct Afbeelding
{
    const char* sleutel;
    const char* bestand;     // below geefDataMap()
    const char* vervanging;  // wxArtProvider id used when the file is missing
};

const Afbeelding afbeeldingen[] = {
    {"../../../grafisch/ikonen/32x32/icons8-home.png", "ikonen/thuis.png", wxART_GO_HOME},
    {"../../../grafisch/ikonen/32x32/icons8-time_machine.png", "ikonen/tijdmachine.png", wxART_FILE_OPEN},
    {"../../../grafisch/ikonen/32x32/icons8-circled_left.png", "ikonen/terug.png", wxART_GO_BACK},
    {"../../../grafisch/ikonen/32x32/icons8-circled_right.png", "ikonen/vooruit.png", wxART_GO_FORWARD},
    {"../../../grafisch/ikonen/32x32/icons8-greenplus.png", "ikonen/groenplus.png", wxART_PLUS},
    {"../../../grafisch/ikonen/32x32/icons8-blueplus.png", "ikonen/blauwplus.png", wxART_PLUS},
    {"../../../grafisch/ikonen/32x32/icons8-joyent.png", "ikonen/insluiten.png", wxART_ADD_BOOKMARK},
    {"ikoon/cmakelogo_klein.png", "ikonen/uitvoeren.png", wxART_EXECUTABLE_FILE},
    {"../../../grafisch/ikonen/32x32/icons8-language.png", "ikonen/taal.png", wxART_HELP_SETTINGS},
    {"../../../grafisch/ikonen/Zelvano_zeerklein.jpg", "ikonen/zelvano_zeerklein.jpg", wxART_INFORMATION},
    {"ikoon/Klavermol.jpg", "ikonen/klavermol.jpg", wxART_EXECUTABLE_FILE},
    {"../../../grafisch/ikonen/32x32/icons8-customer_support.png", "ikonen/algemeen.png", wxART_HELP_SETTINGS},
    {"../../../grafisch/ikonen/32x32/icons8-project_setup.png", "ikonen/projekt.png", wxART_FOLDER},
    {"../../../grafisch/ikonen/32x32/icons8-books.png", "ikonen/boeken.png", wxART_HELP_BOOK},
    {"../../../grafisch/ikonen/32x32/icons8-circuit.png", "ikonen/schakeling.png", wxART_EXECUTABLE_FILE},
};

const Afbeelding* zoek(const wxString& sleutel)
{
    for (const Afbeelding& a : afbeeldingen)
        if (sleutel == a.sleutel)
            return &a;
    return nullptr;
}

wxString geefShareMap()
{
    wxFileName exe(wxStandardPaths::Get().GetExecutablePath());
    exe.RemoveLastDir();
    return exe.GetPath() + wxFILE_SEP_PATH + "share";
}

} // namespace

wxString geefDataMap()
{
    return geefShareMap() + wxFILE_SEP_PATH + "klavermol";
}

wxString geefLocaleMap()
{
    return geefShareMap() + wxFILE_SEP_PATH + "locale";
}

bool isBekendeAfbeelding(const wxString& sleutel)
{
    return zoek(sleutel) != nullptr;
}

wxBitmap geefAfbeelding(const wxString& sleutel, const wxSize& grootte)
{
    const Afbeelding* a = zoek(sleutel);
    if (a == nullptr)
        return wxNullBitmap;

    const wxString pad = geefDataMap() + wxFILE_SEP_PATH + a->bestand;
    wxImage beeld;
    if (wxFileName::FileExists(pad) && beeld.LoadFile(pad, wxBITMAP_TYPE_ANY) && beeld.IsOk()) {
        if (grootte.IsFullySpecified() && beeld.GetSize() != grootte)
            beeld.Rescale(grootte.x, grootte.y, wxIMAGE_QUALITY_HIGH);
        return wxBitmap(beeld);
    }
    const wxSize maat = grootte.IsFullySpecified() ? grootte : wxSize(32, 32);
    return wxArtProvider::GetBitmap(a->vervanging, wxART_OTHER, maat);
}

wxIcon geefIkoon(const wxString& sleutel, const wxSize& grootte)
{
    wxIcon ikoon;
    const wxBitmap bitmap = geefAfbeelding(sleutel, grootte);
    if (bitmap.IsOk())
        ikoon.CopyFromBitmap(bitmap);
    return ikoon;
}
