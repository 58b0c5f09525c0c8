#include "kern/instellingenbestand.h"

#include "desktop/h/logVanger.h"
#include "kern/bestand.h"
#include "kern/instellingen.h"

#include <wx/intl.h>
#include <wx/mstream.h>
#include <wx/utils.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <string_view>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace kern {

namespace {

// What a stored number must be for its reader to take it. The selections
// of the main window are left to the window, which applies them as stored.
struct Bereik
{
    const char* sleutel; // absolute
    long kleinste, grootste;
};

constexpr long Taal = -1; // any language the toolkit knows

const Bereik bereiken[] = {
    {instelling::EncodingPad, Taal, Taal},
    {instelling::ToonHulpToolTipsPad, 0, 1},
    {instelling::EigenHerstartPad, 0, 1},
    {instelling::TaalGekozenPad, 0, 1},
    {"/Configuratie/AutoDirToewijzing", 0, 1},
    {"/Configuratie/VoegCBestandenToe", 0, 1},
    {"/Configuratie/VoegCPPBestandenToe", 0, 1},
    {"/Configuratie/VoegHBestandenToe", 0, 1},
    {"/Configuratie/VoegSBestandenToe", 0, 1},
};

bool isGeldig(const wxString& tekst, const Bereik& bereik)
{
    long waarde = 0;
    if (!wxString(tekst).Trim().Trim(false).ToLong(&waarde))
        return false;
    if (bereik.kleinste == Taal)
        return wxLocale::GetLanguageInfo(static_cast<int>(waarde)) != nullptr;
    return waarde >= bereik.kleinste && waarde <= bereik.grootste;
}

// Well-formed UTF-8: no stray or missing continuation bytes, no overlong
// forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view regel)
{
    for (std::size_t i = 0; i < regel.size();) {
        const unsigned char b = static_cast<unsigned char>(regel[i]);
        const std::size_t lengte = b < 0x80 ? 1 : b >= 0xC2 && b <= 0xDF ? 2 : b >= 0xE0 && b <= 0xEF ? 3
                                 : b >= 0xF0 && b <= 0xF4                 ? 4
                                                                          : 0;
        if (lengte == 0 || i + lengte > regel.size())
            return false;
        const unsigned char tweede = static_cast<unsigned char>(regel[i + (lengte > 1)]);
        if ((b == 0xE0 && tweede < 0xA0) || (b == 0xED && tweede > 0x9F) || (b == 0xF0 && tweede < 0x90)
            || (b == 0xF4 && tweede > 0x8F))
            return false;
        for (std::size_t k = 1; k < lengte; ++k)
            if ((static_cast<unsigned char>(regel[i + k]) & 0xC0) != 0x80)
                return false;
        i += lengte;
    }
    return true;
}

// The file's lines as the store can take them without complaint: each group
// once, each key once in its group. `beschadigd` tells whether anything was
// dropped or merged.
std::string maakSchoon(const std::string& tekst, bool& beschadigd)
{
    struct Groep
    {
        std::vector<std::string_view> regels;
        std::unordered_map<std::string_view, std::size_t> sleutels;
    };
    std::vector<Groep> groepen(1); // the first holds the lines before any header
    std::unordered_map<std::string_view, std::size_t> groepNummers;
    std::size_t huidig = 0;
    std::size_t begin = tekst.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    while (begin < tekst.size()) {
        std::size_t einde = tekst.find('\n', begin);
        if (einde == std::string::npos)
            einde = tekst.size();
        std::string_view regel(tekst.data() + begin, einde - begin);
        begin = einde + 1;
        if (!regel.empty() && regel.back() == '\r')
            regel.remove_suffix(1);
        if (!isUtf8(regel)) {
            beschadigd = true;
            continue;
        }
        const std::size_t eerste = regel.find_first_not_of(" \t");
        if (eerste != std::string::npos && regel[eerste] == '[') {
            const std::string_view naam = regel.substr(eerste, regel.find_last_not_of(" \t") + 1 - eerste);
            const auto [plaats, nieuw] = groepNummers.emplace(naam, groepen.size());
            if (nieuw) {
                groepen.emplace_back();
                groepen.back().regels.push_back(regel);
            }
            beschadigd |= !nieuw;
            huidig = plaats->second;
            continue;
        }
        Groep& groep = groepen[huidig];
        if (eerste != std::string::npos && regel[eerste] != ';' && regel[eerste] != '#') {
            std::string_view sleutel = regel.substr(eerste, regel.find('=') == std::string_view::npos
                                                                ? std::string_view::npos
                                                                : regel.find('=') - eerste);
            sleutel = sleutel.substr(0, sleutel.find_last_not_of(" \t") + 1);
            const auto [plaats, nieuw] = groep.sleutels.emplace(sleutel, groep.regels.size());
            if (!nieuw) {
                groep.regels[plaats->second] = regel;
                beschadigd = true;
                continue;
            }
        }
        groep.regels.push_back(regel);
    }
    std::string schoon;
    for (const Groep& groep : groepen)
        for (const std::string_view regel : groep.regels)
            (schoon += regel) += '\n';
    return schoon;
}

// Every key of the store by its absolute path, with its value as stored.
void geefWaarden(wxFileConfig& config, const wxString& groep, std::map<wxString, wxString>& waarden)
{
    config.SetPath(groep.empty() ? "/" : groep);
    wxString naam;
    long index = 0;
    std::vector<wxString> namen;
    for (bool meer = config.GetFirstEntry(naam, index); meer; meer = config.GetNextEntry(naam, index))
        namen.push_back(naam);
    for (const wxString& n : namen)
        config.Read(n, &waarden[groep + "/" + n]);
    namen.clear();
    for (bool meer = config.GetFirstGroup(naam, index); meer; meer = config.GetNextGroup(naam, index))
        namen.push_back(naam);
    for (const wxString& n : namen)
        geefWaarden(config, groep + "/" + n, waarden);
}

std::map<wxString, wxString> geefWaarden(wxFileConfig& config)
{
    const wxString pad = config.GetPath();
    std::map<wxString, wxString> waarden;
    geefWaarden(config, wxString(), waarden);
    config.SetPath(pad.empty() ? "/" : pad);
    return waarden;
}

int leesBestand(const std::string& pad, std::string& inhoud)
{
    std::ifstream in(pad, std::ios::binary);
    if (!in)
        return errno ? errno : EIO;
    struct stat st;
    if (::stat(pad.c_str(), &st) == 0 && !S_ISREG(st.st_mode))
        return EINVAL;
    inhoud.assign(std::istreambuf_iterator<char>(in), {});
    return in.bad() ? EIO : 0;
}

} // namespace

std::string geefInstellingenPad(const wxString& appNaam)
{
    const char* home = std::getenv("HOME");
    std::string map = home && *home ? home : wxGetHomeDir().utf8_string();
    if (map.empty() || map[0] != '/') {
        char werkMap[4096];
        if (::getcwd(werkMap, sizeof werkMap))
            map = std::string(werkMap) + (map.empty() ? "" : "/" + map);
    }
    if (map.size() > 1 && map.back() == '/')
        map.pop_back();
    return (map == "/" ? "" : map) + "/." + appNaam.utf8_string();
}

std::unique_ptr<wxFileConfig> InstellingenBestand::leesStore(bool& fouten) const
{
    std::string inhoud;
    const int fout = leesBestand(pad, inhoud);
    fouten = fout != 0 && fout != ENOENT;
    const std::string schoon = maakSchoon(inhoud, fouten);
    wxMemoryInputStream stroom(schoon.data(), schoon.size());
    std::unique_ptr<wxFileConfig> config;
    {
        LogVanger vanger;
        config = std::make_unique<wxFileConfig>(stroom, wxConvUTF8);
        fouten |= vanger.heeftProblemen();
    }
    // Values such as "${SRCS}" are CMake text, never environment variables.
    config->SetExpandEnvVars(false);
    config->DisableAutoSave();
    return config;
}

std::unique_ptr<wxFileConfig> InstellingenBestand::lees()
{
    std::unique_ptr<wxFileConfig> config = leesStore(beschadigd);
    for (const Bereik& bereik : bereiken) {
        wxString waarde;
        if (config->Read(bereik.sleutel, &waarde) && !isGeldig(waarde, bereik))
            config->DeleteEntry(bereik.sleutel, false);
    }
    config->SetPath("/");
    begin = geefWaarden(*config);
    return config;
}

bool InstellingenBestand::bewaarKopie(wxString* kopie) const
{
    std::string inhoud;
    if (kopie)
        *kopie = geefPad() + ".bak";
    return leesBestand(pad, inhoud) == 0 && vervangBestand(pad + ".bak", inhoud);
}

// Holds the settings file's directory locked against other instances that
// read, merge and write the file at the same moment.
class MapSlot
{
public:
    explicit MapSlot(const std::string& pad)
        : fd(::open(pad.substr(0, pad.rfind('/') + 1).append(".").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        if (fd >= 0)
            while (::flock(fd, LOCK_EX) != 0 && errno == EINTR) {
            }
    }
    ~MapSlot()
    {
        if (fd >= 0)
            ::close(fd);
    }
    MapSlot(const MapSlot&) = delete;
    MapSlot& operator=(const MapSlot&) = delete;

private:
    int fd;
};

InstellingenBestand::Uitslag InstellingenBestand::bewaar(wxFileConfig& config, wxString* reden)
{
    const MapSlot slot(pad);
    struct stat st;
    if (::stat(pad.c_str(), &st) == 0 && (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        return AlleenLezen;

    bool fouten = false;
    const std::map<wxString, wxString> nu = geefWaarden(*leesStore(fouten));
    const std::map<wxString, wxString> eigen = geefWaarden(config);
    const wxString groep = config.GetPath();
    for (const auto& [sleutel, waarde] : nu) {
        const auto oud = begin.find(sleutel);
        const auto hier = eigen.find(sleutel);
        const bool ongewijzigd = oud == begin.end() ? hier == eigen.end()
                                                    : hier != eigen.end() && hier->second == oud->second;
        if (ongewijzigd && (oud == begin.end() || oud->second != waarde))
            config.Write(sleutel, waarde);
    }
    config.SetPath(groep.empty() ? "/" : groep);

    wxMemoryOutputStream geheugen;
    if (!config.Save(geheugen, wxConvUTF8))
        return Mislukt;
    std::string inhoud(geheugen.GetLength(), '\0');
    geheugen.CopyTo(inhoud.data(), inhoud.size());
    if (!vervangBestand(pad, inhoud, reden))
        return Mislukt;
    begin = geefWaarden(config);
    return Geschreven;
}

} // namespace kern
