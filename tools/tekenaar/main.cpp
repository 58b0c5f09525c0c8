// klavermol-tekenaar: draws the program's images.
//
//   klavermol-tekenaar <share directory> <name>...
//
// Each name is a path below the share directory ("klavermol/ikonen/thuis.png",
// "icons/hicolor/48x48/apps/klavermol.png", ...). The build lists the names it
// wants; a name this program cannot draw is an error, so the two cannot drift.
#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <string>

#include <wx/filename.h>
#include <wx/image.h>
#include <wx/init.h>

#include "tekeningen.h"

namespace {

using Schrijver = std::function<void(const std::string& pad)>;

Schrijver alsPng(std::function<Doek()> maak)
{
    return [maak](const std::string& pad) { bewaarPng(maak(), pad); };
}

Schrijver alsJpeg(std::function<Doek()> maak, int kwaliteit)
{
    return [maak, kwaliteit](const std::string& pad) { bewaarJpeg(maak(), pad, kwaliteit); };
}

std::map<std::string, Schrijver> maakCatalogus()
{
    std::map<std::string, Schrijver> c;
    const std::string ikonen = "klavermol/ikonen/";
    // The splash screen is kept near 17 kB whatever the picture holds.
    c[ikonen + "opstart.jpg"] = [](const std::string& pad) { bewaarJpegRond(maakOpstartBeeld(), pad, 17000); };
    c[ikonen + "zelvano_klein.png"] = alsPng([] { return maakZelvanoLogo(96); });
    c[ikonen + "zelvano_zeerklein.jpg"] = alsJpeg([] { return maakZelvanoLogo(24); }, 92);
    // The frame icon is loaded as is; wxWidgets only hands back a frame icon
    // of the system icon size (32 on GTK), e.g. for the about box.
    c[ikonen + "klavermol.jpg"] = alsJpeg([] { return maakKlaverIkoon(32); }, 92);

    const std::pair<const char*, Vlag> vlaggen[] = {
        {"nederland", Vlag::Nederland}, {"duitsland", Vlag::Duitsland}, {"grootbritannie", Vlag::GrootBritannie},
        {"frankrijk", Vlag::Frankrijk}, {"spanje", Vlag::Spanje},       {"portugal", Vlag::Portugal},
        {"israel", Vlag::Israel},       {"italie", Vlag::Italie},       {"zweden", Vlag::Zweden},
        {"japan", Vlag::Japan},         {"china", Vlag::China},         {"taiwan", Vlag::Taiwan},
        {"korea", Vlag::Korea},         {"rusland", Vlag::Rusland}};
    for (const auto& [naam, vlag] : vlaggen)
        c[ikonen + "vlaggen/" + naam + ".png"] = alsPng([vlag = vlag] { return maakVlag(vlag); });

    const std::pair<const char*, Knop> knoppen[] = {
        {"thuis", Knop::Thuis},         {"tijdmachine", Knop::Tijdmachine}, {"terug", Knop::Terug},
        {"vooruit", Knop::Vooruit},     {"groenplus", Knop::GroenPlus},     {"blauwplus", Knop::BlauwPlus},
        {"insluiten", Knop::Insluiten}, {"taal", Knop::Taal},               {"algemeen", Knop::Algemeen},
        {"projekt", Knop::Projekt},     {"boeken", Knop::Boeken},           {"schakeling", Knop::Schakeling}};
    for (const auto& [naam, knop] : knoppen)
        c[ikonen + naam + ".png"] = alsPng([knop = knop] { return maakKnop(knop, 32); });
    c[ikonen + "uitvoeren.png"] = alsPng([] { return maakKnop(Knop::Uitvoeren, 48); });

    for (int n : {16, 32, 48, 64, 128, 256}) {
        const std::string maat = std::to_string(n) + "x" + std::to_string(n);
        c["icons/hicolor/" + maat + "/apps/klavermol.png"] = alsPng([n] { return maakKlaverIkoon(n); });
    }
    return c;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <share directory> <name>...\n", argv[0]);
        return 2;
    }
    wxInitializer wx;
    if (!wx.IsOk()) {
        std::fprintf(stderr, "%s: cannot initialise wxWidgets\n", argv[0]);
        return 1;
    }
    wxImage::AddHandler(new wxPNGHandler);
    wxImage::AddHandler(new wxJPEGHandler);

    const auto catalogus = maakCatalogus();
    const std::string basis = argv[1];
    try {
        for (int i = 2; i < argc; ++i) {
            const auto gevonden = catalogus.find(argv[i]);
            if (gevonden == catalogus.end()) {
                std::fprintf(stderr, "%s: no picture called %s\n", argv[0], argv[i]);
                return 1;
            }
            const std::string pad = basis + "/" + argv[i];
            wxFileName::Mkdir(wxFileName(wxString::FromUTF8(pad)).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
            gevonden->second(pad);
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s: %s\n", argv[0], e.what());
        return 1;
    }
    return 0;
}
