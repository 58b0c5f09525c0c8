#include "afbeeldingen.h"

#include <wx/filename.h>
#include <wx/image.h>
#include <wx/stdpaths.h>

#include <string>

namespace {

struct Afbeelding
{
    const char* sleutel;
    const char* bestand;     // below geefDataMap()
    int maat;                // width and height the window shows it at
};

const Afbeelding afbeeldingen[] = {
    {"../../../grafisch/ikonen/32x32/icons8-home.png", "ikonen/thuis.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-time_machine.png", "ikonen/tijdmachine.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-circled_left.png", "ikonen/terug.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-circled_right.png", "ikonen/vooruit.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-greenplus.png", "ikonen/groenplus.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-blueplus.png", "ikonen/blauwplus.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-joyent.png", "ikonen/insluiten.svg", 32},
    {"ikoon/cmakelogo_klein.png", "ikonen/uitvoeren.svg", 48},
    {"../../../grafisch/ikonen/32x32/icons8-language.png", "ikonen/taal.svg", 32},
    {"../../../grafisch/ikonen/Zelvano_zeerklein.jpg", "ikonen/zelvano.svg", 24},
    {"ikoon/Klavermol.jpg", "ikonen/klavermol.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-customer_support.png", "ikonen/algemeen.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-project_setup.png", "ikonen/projekt.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-books.png", "ikonen/boeken.svg", 32},
    {"../../../grafisch/ikonen/32x32/icons8-circuit.png", "ikonen/schakeling.svg", 32},
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

wxBitmapBundle geefBeeldBundel(const wxString& sleutel, const wxSize& grootte)
{
    const Afbeelding* a = zoek(sleutel);
    if (a == nullptr)
        return wxBitmapBundle();

    const wxSize maat = grootte.IsFullySpecified() ? grootte : wxSize(a->maat, a->maat);
    const wxString pad = geefDataMap() + wxFILE_SEP_PATH + a->bestand;
    if (!wxFileName::FileExists(pad))
        return wxBitmapBundle();
    return wxBitmapBundle::FromSVGFile(pad, maat);
}

wxBitmapBundle geefSvgBundel(const unsigned char* svg, std::size_t lengte, const wxSize& grootte)
{
    // The renderer wants a NUL-terminated text.
    const std::string tekst(reinterpret_cast<const char*>(svg), lengte);
    return wxBitmapBundle::FromSVG(tekst.c_str(), grootte);
}

wxBitmap geefLijstBeeld(const wxBitmapBundle& bundel, const wxWindow* venster, const wxSize& maat)
{
    if (bundel.IsOk())
        return bundel.GetBitmapFor(venster);
    wxImage leeg(maat);
    leeg.SetMaskColour(0, 0, 0);
    return wxBitmap(leeg);
}

wxBitmap geefAfbeelding(const wxString& sleutel, const wxSize& grootte)
{
    return geefBeeldBundel(sleutel, grootte).GetBitmap(wxDefaultSize);
}

wxIcon geefIkoon(const wxString& sleutel, const wxSize& grootte)
{
    return geefBeeldBundel(sleutel, grootte).GetIcon(wxDefaultSize);
}
