// The source listing shared by the three generators: source files grouped
// per directory into numbered variables relative to the output directory,
// the include directories, the include files and the sub-directories.
#include "kern/generator.h"

#include "kern/selektie.h"
#include "kern/tekst.h"

#include <wx/log.h>
#include <wx/translation.h>

#include <unordered_map>
#include <unordered_set>

namespace kern {

VolumeNaad& geefVolumeNaad()
{
    static VolumeNaad naad = [](const wxFileName& f) { return f.GetVolume(); };
    return naad;
}

void Werklijsten::leeg()
{
    dirLijst.Clear();
    groepPaden.Clear();
    groepNamen.Clear();
    includeDirs.Clear();
    extra.Clear();
}

namespace {

const char* const padBasis[] = {"${PROJECT_SOURCE_DIR}/", "${CMAKE_CURRENT_SOURCE_DIR}/", "${CMAKE_CURRENT_LIST_DIR}/"};
const char* const uitvoerMapNaam = ".";
const char* const appendRegel = "list(APPEND SRCS ";

wxString metSlashes(wxString pad)
{
    pad.Replace("\\", "/");
    return pad;
}

// CMake reads an unquoted argument up to white space, and gives "()#$\"
// and the backslash meanings of their own. Names without them are written
// as they are; others go between double quotes, with the characters that
// mean something there escaped. (A ";" separates list elements in any
// form; CMake cannot keep it inside a source name.)
bool isGewoon(std::string_view tekst)
{
    for (const char teken : tekst) {
        const auto c = static_cast<unsigned char>(teken);
        if (c <= ' ' || c == '"' || c == '(' || c == ')' || c == '#' || c == '$' || c == '\\' || c == 0x7f)
            return false;
    }
    return true;
}

// An argument made of a fixed start (variable references, kept as they
// are) and a name, quoted only when the name needs it.
std::string cmakeArgument(std::string_view begin, std::string_view naam)
{
    std::string uit;
    const bool gewoon = isGewoon(naam);
    if (!gewoon)
        uit += '"';
    uit += begin;
    for (const char c : naam) {
        if (!gewoon && (c == '\\' || c == '"' || c == '$'))
            uit += '\\';
        uit += c;
    }
    if (!gewoon)
        uit += '"';
    return uit;
}

std::string cmakeArgument(const wxString& begin, const wxString& naam)
{
    return cmakeArgument(std::string_view(begin.utf8_string()), std::string_view(naam.utf8_string()));
}

wxString srcPad(size_t i)
{
    return wxString::Format("${SrcPath%d}", static_cast<int>(i));
}

// A directory made relative to the output directory; the output directory
// itself is ".".
wxString relatieveMap(const wxString& map, const wxString& uitvoerDir)
{
    wxFileName f = wxFileName::DirName(map);
    f.MakeRelativeTo(uitvoerDir);
    const wxString rel = metSlashes(f.GetPath());
    return rel.empty() ? wxString(uitvoerMapNaam) : rel;
}

// A source's directory, name and extension as the toolkit's file name object
// gives them; plain absolute paths are split by hand, for speed, anything
// else goes through the toolkit.
struct Delen
{
    wxString map, naam, extensie;
};

Delen splits(const wxString& pad)
{
    const size_t slash = pad.rfind(wxFILE_SEP_PATH);
    const bool eenvoudig = wxFILE_SEP_PATH == '/' && slash != wxString::npos && slash > 0 && pad[0] == '/'
        && slash + 1 < pad.length() && pad.find(wxS("//")) == wxString::npos && pad.find(wxS("/./")) == wxString::npos
        && pad.find(wxS("/../")) == wxString::npos;
    Delen delen;
    if (!eenvoudig) {
        const wxFileName f(pad);
        delen.map = f.GetPath();
        delen.naam = f.GetFullName();
        delen.extensie = f.GetExt();
        return delen;
    }
    delen.map = pad.substr(0, slash);
    delen.naam = pad.substr(slash + 1);
    const size_t punt = delen.naam.rfind('.');
    if (punt != wxString::npos && punt > 0)
        delen.extensie = delen.naam.substr(punt + 1);
    return delen;
}

// What a source directory stands for, found once per directory.
enum class MapStaat : unsigned char { Onbekend, AnderVolume, Uitvoer, Relatief, Langzaam };
struct MapInfo
{
    MapStaat staat = MapStaat::Onbekend;
    size_t index = 0; // its place in the directory list
};

// A group of source names: its text so far (UTF-8), and its length in
// characters since its start or its last tab.
struct Groep
{
    std::string regel;
    size_t sindsTab = 0;
};

size_t tekens(std::string_view utf8)
{
    size_t n = 0;
    for (const char c : utf8)
        n += (static_cast<unsigned char>(c) & 0xc0) != 0x80;
    return n;
}

// The parts of a plain absolute directory, or false when the toolkit's
// normalisation could change it (".", "..", "~", variables, backslashes),
// which leaves it to the toolkit.
bool geefDelen(std::string_view map, std::vector<std::string_view>& delen)
{
    delen.clear();
    if (map.empty() || map[0] != '/' || map.find_first_of("$%\\") != std::string_view::npos)
        return false;
    for (size_t begin = 1; begin <= map.size();) {
        size_t eind = map.find('/', begin);
        if (eind == std::string_view::npos)
            eind = map.size();
        const std::string_view deel = map.substr(begin, eind - begin);
        if (deel.empty() || deel == "." || deel == ".." || deel[0] == '~')
            return false;
        delen.push_back(deel);
        begin = eind + 1;
    }
    return true;
}

// Collects the checked sources into the working lists, each source
// directory judged and made relative once, with index maps beside the lists
// so that every look-up stays cheap for a million files while giving the
// results of the list searches they stand for.
class Verzamelaar
{
public:
    Verzamelaar(const GeneratorInvoer& invoer, Werklijsten& werk) : invoer(invoer), werk(werk)
    {
        for (size_t i = 0; i < werk.dirLijst.size(); ++i)
            dirIndex.emplace(werk.dirLijst[i].utf8_string(), i);
        std::string uitvoer = invoer.uitvoerDir.utf8_string();
        while (uitvoer.size() > 1 && uitvoer.back() == '/')
            uitvoer.pop_back();
        uitvoerEenvoudig = geefDelen(uitvoer, uitvoerDelen);
        uitvoerDelenTekst.assign(uitvoerDelen.begin(), uitvoerDelen.end());
        uitvoerDelen.assign(uitvoerDelenTekst.begin(), uitvoerDelenTekst.end());
    }

    // The sources in `bronnen`. False when a source lies on another volume
    // than the output directory.
    bool voegToe(const wxString& bron)
    {
        const wxScopedCharBuffer utf8 = bron.utf8_str();
        const std::string_view pad(utf8.data(), utf8.length());
        const size_t slash = pad.rfind('/');
        if (slash == std::string_view::npos || slash + 1 == pad.size())
            return voegToeLangzaam(bron);
        // Sources come mostly directory by directory: the last one is kept at hand.
        const std::string_view prefix = pad.substr(0, slash + 1);
        if (laatsteInfo == nullptr || prefix != laatstePrefix) {
            laatstePrefix.assign(prefix);
            laatsteInfo = &infoPerTekst[laatstePrefix];
        }
        return voegToe(*laatsteInfo, prefix, pad.substr(slash + 1), [&] { return bron; });
    }

    // Entry `i` of the store.
    bool voegToe(const BronSelektie& selektie, size_t i)
    {
        if (infoPerMap.size() < selektie.aantalMappen())
            infoPerMap.resize(selektie.aantalMappen());
        const std::uint32_t map = selektie.geefMapNummer(i);
        const std::string_view naam = selektie.geefNaam(i);
        if (naam.empty())
            return voegToeLangzaam(selektie.geef(i));
        return voegToe(infoPerMap[map], selektie.geefMap(map), naam, [&] { return selektie.geef(i); });
    }

    // Hands the groups to the working lists, closed or as they stand.
    void geefGroepenDoor(bool sluit)
    {
        for (Groep& groep : groepen) {
            if (sluit)
                groep.regel += ")";
            if (werk.bewaarNamen)
                werk.groepNamen.Add(wxString::FromUTF8(groep.regel));
        }
    }

    std::vector<Groep>& geefGroepen() { return groepen; }

    // About the length of the listing: the groups and a line per directory.
    size_t geefSchatting() const
    {
        size_t n = werk.dirLijst.size() * 128;
        for (const Groep& groep : groepen)
            n += groep.regel.size() + 128;
        return n;
    }

private:
    template <typename GeefBron>
    bool voegToe(MapInfo& info, std::string_view prefix, std::string_view naam, const GeefBron& geefBron)
    {
        if (info.staat == MapStaat::Onbekend)
            bepaal(info, prefix);
        const bool isHeader = naam.size() >= 3 && naam.substr(naam.size() - 2) == ".h";
        switch (info.staat) {
        case MapStaat::AnderVolume: return false;
        case MapStaat::Uitvoer: voegToeInUitvoerMap(naam, isHeader); return true;
        case MapStaat::Relatief: voegToeInMap(info.index, naam, isHeader); return true;
        default: return voegToeLangzaam(geefBron());
        }
    }

    // A directory given as a plain absolute path ending in its separator.
    void bepaal(MapInfo& info, std::string_view prefix)
    {
        const std::string_view map = prefix.substr(0, prefix.size() - 1);
        if (map.empty() || map[0] != '/' || prefix.find("//") != std::string_view::npos
            || prefix.find("/./") != std::string_view::npos || prefix.find("/../") != std::string_view::npos) {
            info.staat = MapStaat::Langzaam;
            return;
        }
        const wxString mapW = wxString::FromUTF8(map.data(), map.size());
        if (geefVolumeNaad()(wxFileName::DirName(mapW)) != uitvoerVolume)
            info.staat = MapStaat::AnderVolume;
        else if (invoer.soort != SoortInclude && mapW == invoer.uitvoerDir)
            info.staat = MapStaat::Uitvoer;
        else if (uitvoerEenvoudig && geefDelen(map, mapDelen)) {
            info.staat = MapStaat::Relatief;
            info.index = geefDirIndex(maakRelatief());
        } else
            info.staat = MapStaat::Langzaam;
    }

    // The directory in mapDelen relative to the output directory, as the
    // toolkit's MakeRelativeTo writes it for plain absolute paths.
    std::string maakRelatief() const
    {
        size_t gelijk = 0;
        while (gelijk < mapDelen.size() && gelijk < uitvoerDelen.size() && mapDelen[gelijk] == uitvoerDelen[gelijk])
            ++gelijk;
        std::string rel;
        for (size_t i = gelijk; i < uitvoerDelen.size(); ++i)
            rel += rel.empty() ? ".." : "/..";
        for (size_t i = gelijk; i < mapDelen.size(); ++i)
            (rel += rel.empty() ? "" : "/") += mapDelen[i];
        return rel;
    }

    bool isZelfdeVolume(const wxString& map)
    {
        auto volume = zelfdeVolume.find(map);
        if (volume == zelfdeVolume.end())
            volume = zelfdeVolume.emplace(map, geefVolumeNaad()(wxFileName::DirName(map)) == uitvoerVolume).first;
        return volume->second;
    }

    // Any source, through the toolkit's file name object.
    bool voegToeLangzaam(const wxString& bron)
    {
        const Delen delen = splits(bron);
        if (!isZelfdeVolume(delen.map))
            return false;
        const std::string naam = delen.naam.utf8_string();
        const bool isHeader = delen.extensie == wxS("h");
        if (invoer.soort != SoortInclude && delen.map == invoer.uitvoerDir) {
            voegToeInUitvoerMap(naam, isHeader);
            return true;
        }
        auto rel = relatief.find(delen.map);
        if (rel == relatief.end()) {
            wxFileName f(bron);
            f.MakeRelativeTo(invoer.uitvoerDir);
            rel = relatief.emplace(delen.map, geefDirIndex(metSlashes(f.GetPath()).utf8_string())).first;
        }
        voegToeInMap(rel->second, naam, isHeader);
        return true;
    }

    // The place of a directory in the directory list, added when new.
    size_t geefDirIndex(const std::string& rel)
    {
        const auto [plek, nieuw] = dirIndex.emplace(rel, werk.dirLijst.size());
        if (nieuw) {
            werk.dirLijst.Add(wxString::FromUTF8(rel));
            groepVanMap.push_back(-1);
        }
        return plek->second;
    }

    void voegToeInMap(size_t i, std::string_view naam, bool isHeader)
    {
        if (isHeader) {
            if (includeMappen.insert(i).second)
                werk.includeDirs.Add(srcPad(i));
            return;
        }
        if (groepVanMap[i] < 0) {
            const int n = static_cast<int>(groepen.size());
            werk.groepPaden.Add(wxString::Format("set(SRCS%dPath ", n) + srcPad(i) + ")");
            groepen.push_back(maakGroep("set(SRCS" + std::to_string(n) + " "));
            groepVanMap[i] = n;
        }
        voegNaamToe(groepen[static_cast<size_t>(groepVanMap[i])], naam);
    }

    void voegToeInUitvoerMap(std::string_view naam, bool isHeader)
    {
        geefDirIndex(uitvoerMapNaam);
        if (isHeader) {
            if (!uitvoerInclude) {
                uitvoerInclude = true;
                werk.includeDirs.Add(uitvoerMapNaam);
            }
            return;
        }
        if (appendGroep < 0) {
            appendGroep = static_cast<int>(groepen.size());
            werk.groepPaden.Add(wxString());
            groepen.push_back(maakGroep(appendRegel));
        }
        voegNaamToe(groepen[static_cast<size_t>(appendGroep)], naam);
    }

    static Groep maakGroep(const std::string& begin) { return Groep{begin, tekens(begin)}; }

    // The line breaks after the first name added once it has run past 80
    // characters since its start or its last tab.
    static void voegNaamToe(Groep& groep, std::string_view naam)
    {
        const size_t lengte = groep.sindsTab;
        const size_t voor = groep.regel.size();
        if (isGewoon(naam))
            groep.regel += naam;
        else
            groep.regel += cmakeArgument(std::string_view(), naam);
        if (lengte > 80) {
            groep.regel += " \n\t";
            groep.sindsTab = 1;
        } else {
            groep.regel += ' ';
            groep.sindsTab += tekens(std::string_view(groep.regel).substr(voor));
        }
    }

    const GeneratorInvoer& invoer;
    Werklijsten& werk;
    const wxString uitvoerVolume = geefVolumeNaad()(wxFileName::DirName(invoer.uitvoerDir));
    bool uitvoerEenvoudig = false;
    std::vector<std::string> uitvoerDelenTekst;
    std::vector<std::string_view> uitvoerDelen, mapDelen;
    std::unordered_map<std::string, size_t> dirIndex;
    std::unordered_map<std::string, MapInfo> infoPerTekst; // directory of a source in `bronnen`
    std::string laatstePrefix;
    MapInfo* laatsteInfo = nullptr;
    std::vector<MapInfo> infoPerMap;                       // directory of the store
    std::unordered_map<wxString, size_t> relatief;         // directory -> its place, the toolkit's way
    std::unordered_map<wxString, bool> zelfdeVolume;       // directory -> on the output's volume
    std::vector<int> groepVanMap;                          // per directory: its group, or -1
    std::vector<Groep> groepen;
    std::unordered_set<size_t> includeMappen;
    bool uitvoerInclude = false;
    int appendGroep = -1;
};

void schrijfSrcPaden(const GeneratorInvoer& invoer, const Werklijsten& werk, Utf8Schrijver& uit)
{
    const size_t type = static_cast<size_t>(invoer.projektType);
    const std::string_view basis = type < WXSIZEOF(padBasis) ? padBasis[type] : "";
    for (size_t i = 0; i < werk.dirLijst.size(); ++i)
        uit << "set(SrcPath" << i << " " << cmakeArgument(basis, std::string_view(werk.dirLijst[i].utf8_string()))
            << ")\n";
}

void schrijfIncludeMappen(const GeneratorInvoer& invoer, const Werklijsten& werk, Utf8Schrijver& uit)
{
    const wxString& naam = invoer.sjablonen.biebIncludeNaam;
    uit << "\nset(" << naam << " ";
    for (size_t j = 0; j < werk.includeDirs.size(); ++j) {
        uit << werk.includeDirs[j] << " ";
        if (j != 0 && j % 8 == 0)
            uit << "\n\t";
    }
    uit << ")\ninclude_directories(${" << naam << "})\n\n";
}

// "${SrcPath<i>}" when the directory stands in the directory list as it
// is, otherwise the project source directory plus its relative form.
std::string geefPadVerwijzing(const wxString& map, const Werklijsten& werk, const wxString& uitvoerDir)
{
    const int i = werk.dirLijst.Index(map);
    if (i != wxNOT_FOUND)
        return srcPad(static_cast<size_t>(i)).utf8_string();
    return cmakeArgument("${PROJECT_SOURCE_DIR}/", relatieveMap(map, uitvoerDir));
}

void schrijfIncludeBestanden(const GeneratorInvoer& invoer, const Werklijsten& werk, Utf8Schrijver& uit)
{
    for (size_t k = 0; k < invoer.includes.size(); ++k) {
        const IncludeRegel& regel = invoer.includes[k];
        if (!regel.aangevinkt)
            continue;
        const wxFileName bestand(regel.pad);
        const int n = static_cast<int>(k);
        uit << wxString::Format("set(Include%dPath ", n)
            << geefPadVerwijzing(bestand.GetPath(), werk, invoer.uitvoerDir) << ")\n"
            << "include(" << cmakeArgument(wxString::Format("${Include%dPath}/", n), bestand.GetFullName()) << ")\n\n";
    }
}

// Each group's text is let go once written.
void schrijfGroepen(const Werklijsten& werk, std::vector<Groep>& groepen, Utf8Schrijver& uit)
{
    for (size_t n = 0; n < groepen.size(); ++n) {
        std::string naamRegel;
        naamRegel.swap(groepen[n].regel);
        if (naamRegel.find("set(SRCS ") != std::string::npos) {
            uit << naamRegel << "\n";
            continue;
        }
        uit << werk.groepPaden[n] << "\n" << naamRegel << "\n"
            << "foreach(SRC ${SRCS" << n << "})\n"
            << "\tlist(APPEND SRCS ${SRCS" << n << "Path}/${SRC})\n" << "endforeach(SRC)\n\n";
    }
}

void schrijfSubMappen(const GeneratorInvoer& invoer, const Werklijsten& werk, Utf8Schrijver& uit)
{
    for (size_t m = 0; m < invoer.biebs.size(); ++m) {
        const BiebRegel& regel = invoer.biebs[m];
        if (!regel.aangevinkt)
            continue;
        const int n = static_cast<int>(m);
        uit << wxString::Format("set(Lib%dPath ", n) << geefPadVerwijzing(regel.map, werk, invoer.uitvoerDir)
            << ")\n" << wxString::Format("add_subdirectory(${Lib%dPath})", n) << "\n\n";
    }
}

} // namespace

void schrijfBronLijst(const GeneratorInvoer& invoer, Werklijsten& werk, std::string& tekst)
{
    Verzamelaar verzamelaar(invoer, werk);
    bool goed = true;
    if (invoer.selektie) {
        const BronSelektie& selektie = *invoer.selektie;
        for (size_t i = 0; goed && i < selektie.aantal(); ++i)
            goed = !selektie.isAangevinkt(i) || verzamelaar.voegToe(selektie, i);
    } else {
        for (size_t i = 0; goed && i < invoer.bronnen.size(); ++i)
            goed = verzamelaar.voegToe(invoer.bronnen[i]);
    }
    verzamelaar.geefGroepenDoor(goed);
    if (!goed) {
        wxLogError(wxString(_("Error computing the relative path between output file and the source files."))
                   + "\n" + _("Please select the output directory to reside on the same volume as the sources files."));
        return;
    }

    tekst.reserve(tekst.size() + verzamelaar.geefSchatting());
    Utf8Schrijver uit(tekst);
    schrijfSrcPaden(invoer, werk, uit);
    schrijfIncludeMappen(invoer, werk, uit);
    schrijfIncludeBestanden(invoer, werk, uit);
    schrijfGroepen(werk, verzamelaar.geefGroepen(), uit);
    schrijfSubMappen(invoer, werk, uit);
}

} // namespace kern
