// The source listing shared by the three generators: source files grouped
// per directory into numbered variables relative to the output directory,
// the include directories, the include files and the sub-directories.
#include "kern/generator.h"

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
const wxString uitvoerMapNaam = ".";
const wxString appendRegel = "list(APPEND SRCS ";

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
bool isGewoon(const wxString& tekst)
{
    for (const wxUniChar c : tekst)
        if (c <= ' ' || c == '"' || c == '(' || c == ')' || c == '#' || c == '$' || c == '\\' || c == 0x7f)
            return false;
    return true;
}

wxString ontsnap(const wxString& tekst)
{
    wxString uit;
    for (const wxUniChar c : tekst) {
        if (c == '\\' || c == '"' || c == '$')
            uit += '\\';
        uit += c;
    }
    return uit;
}

// An argument made of a fixed start (variable references, kept as they
// are) and a name, quoted only when the name needs it.
wxString cmakeArgument(const wxString& begin, const wxString& naam)
{
    return isGewoon(naam) ? begin + naam : "\"" + begin + ontsnap(naam) + "\"";
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
    return rel.empty() ? uitvoerMapNaam : rel;
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

// Collects the checked sources into the working lists, with index maps
// beside them so that every look-up stays cheap for tens of thousands of
// files while giving the results of the list searches they stand for.
class Verzamelaar
{
public:
    Verzamelaar(const GeneratorInvoer& invoer, Werklijsten& werk) : invoer(invoer), werk(werk)
    {
        for (size_t i = 0; i < werk.dirLijst.size(); ++i)
            dirIndex.emplace(werk.dirLijst[i], i);
    }

    // False when a source lies on another volume than the output directory.
    bool voegToe(const wxString& bron)
    {
        const Delen delen = splits(bron);
        auto volume = zelfdeVolume.find(delen.map);
        if (volume == zelfdeVolume.end())
            volume = zelfdeVolume.emplace(delen.map, geefVolumeNaad()(wxFileName::DirName(delen.map)) == uitvoerVolume)
                         .first;
        if (!volume->second)
            return false;
        const bool isHeader = delen.extensie == wxS("h");
        if (invoer.soort != SoortInclude && delen.map == invoer.uitvoerDir)
            voegToeInUitvoerMap(delen.naam, isHeader);
        else
            voegToeRelatief(bron, delen.map, delen.naam, isHeader);
        return true;
    }

    void sluitGroepen()
    {
        for (wxString& regel : werk.groepNamen)
            regel += ")";
    }

private:
    void voegToeRelatief(const wxString& bron, const wxString& map, const wxString& naam, bool isHeader)
    {
        auto rel = relatief.find(map);
        if (rel == relatief.end()) {
            wxFileName f(bron);
            f.MakeRelativeTo(invoer.uitvoerDir);
            rel = relatief.emplace(map, metSlashes(f.GetPath())).first;
        }
        auto [plek, nieuw] = dirIndex.emplace(rel->second, werk.dirLijst.size());
        const size_t i = plek->second;
        if (nieuw) {
            werk.dirLijst.Add(rel->second);
            groepVanMap.push_back(-1);
            if (isHeader)
                voegIncludeToe(i);
            else
                maakGroep(i);
        }
        if (isHeader) {
            voegIncludeToe(i);
            return;
        }
        if (groepVanMap[i] < 0)
            maakGroep(i);
        voegNaamToe(static_cast<size_t>(groepVanMap[i]), naam);
    }

    void voegToeInUitvoerMap(const wxString& naam, bool isHeader)
    {
        auto [plek, nieuw] = dirIndex.emplace(uitvoerMapNaam, werk.dirLijst.size());
        if (nieuw) {
            werk.dirLijst.Add(uitvoerMapNaam);
            groepVanMap.push_back(-1);
            if (isHeader)
                voegUitvoerIncludeToe();
            else
                maakUitvoerGroep();
        }
        if (isHeader) {
            voegUitvoerIncludeToe();
            return;
        }
        if (appendGroep < 0)
            maakUitvoerGroep();
        voegNaamToe(static_cast<size_t>(appendGroep), naam);
    }

    void maakGroep(size_t map)
    {
        const int n = static_cast<int>(werk.groepNamen.size());
        werk.groepPaden.Add(wxString::Format("set(SRCS%dPath ", n) + srcPad(map) + ")");
        werk.groepNamen.Add(wxString::Format("set(SRCS%d ", n));
        groepVanMap[map] = n;
    }

    void maakUitvoerGroep()
    {
        appendGroep = static_cast<int>(werk.groepNamen.size());
        werk.groepPaden.Add(wxString());
        werk.groepNamen.Add(appendRegel);
    }

    void voegIncludeToe(size_t map)
    {
        if (includeMappen.insert(map).second)
            werk.includeDirs.Add(srcPad(map));
    }

    void voegUitvoerIncludeToe()
    {
        if (!uitvoerInclude) {
            uitvoerInclude = true;
            werk.includeDirs.Add(uitvoerMapNaam);
        }
    }

    // The line breaks after the first name added once it has run past 80
    // characters since its start or its last tab.
    void voegNaamToe(size_t groep, const wxString& naam)
    {
        wxString& regel = werk.groepNamen[groep];
        const size_t tab = regel.rfind('\t');
        const size_t lengte = tab == wxString::npos ? regel.length() : regel.length() - tab;
        if (isGewoon(naam))
            regel += naam;
        else
            regel += cmakeArgument(wxString(), naam);
        regel += lengte > 80 ? wxS(" \n\t") : wxS(" ");
    }

    const GeneratorInvoer& invoer;
    Werklijsten& werk;
    const wxString uitvoerVolume = geefVolumeNaad()(wxFileName::DirName(invoer.uitvoerDir));
    std::unordered_map<wxString, size_t> dirIndex;
    std::unordered_map<wxString, wxString> relatief; // directory of a source -> its relative form
    std::unordered_map<wxString, bool> zelfdeVolume; // directory of a source -> on the output's volume
    std::vector<int> groepVanMap;                    // per directory: its group, or -1
    std::unordered_set<size_t> includeMappen;
    bool uitvoerInclude = false;
    int appendGroep = -1;
};

void schrijfSrcPaden(const GeneratorInvoer& invoer, const Werklijsten& werk, wxString& uit)
{
    const size_t type = static_cast<size_t>(invoer.projektType);
    const wxString basis = type < WXSIZEOF(padBasis) ? padBasis[type] : "";
    for (size_t i = 0; i < werk.dirLijst.size(); ++i)
        uit << wxString::Format("set(SrcPath%d ", static_cast<int>(i)) << cmakeArgument(basis, werk.dirLijst[i])
            << ")\n";
}

void schrijfIncludeMappen(const GeneratorInvoer& invoer, const Werklijsten& werk, wxString& uit)
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
wxString geefPadVerwijzing(const wxString& map, const Werklijsten& werk, const wxString& uitvoerDir)
{
    const int i = werk.dirLijst.Index(map);
    if (i != wxNOT_FOUND)
        return srcPad(static_cast<size_t>(i));
    return cmakeArgument("${PROJECT_SOURCE_DIR}/", relatieveMap(map, uitvoerDir));
}

void schrijfIncludeBestanden(const GeneratorInvoer& invoer, const Werklijsten& werk, wxString& uit)
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

void schrijfGroepen(const Werklijsten& werk, wxString& uit)
{
    for (size_t n = 0; n < werk.groepNamen.size(); ++n) {
        const wxString& naamRegel = werk.groepNamen[n];
        if (naamRegel.Contains("set(SRCS ")) {
            uit << naamRegel << "\n";
            continue;
        }
        const int g = static_cast<int>(n);
        uit << werk.groepPaden[n] << "\n" << naamRegel << "\n"
            << wxString::Format("foreach(SRC ${SRCS%d})\n", g)
            << wxString::Format("\tlist(APPEND SRCS ${SRCS%dPath}/${SRC})\n", g) << "endforeach(SRC)\n\n";
    }
}

void schrijfSubMappen(const GeneratorInvoer& invoer, const Werklijsten& werk, wxString& uit)
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

void schrijfProjektLibUitvoer(const GeneratorInvoer& invoer, Werklijsten& werk, wxString& uit)
{
    Verzamelaar verzamelaar(invoer, werk);
    for (const wxString& bron : invoer.bronnen) {
        if (!verzamelaar.voegToe(bron)) {
            wxLogError(wxString(_("Error computing the relative path between output file and the source files."))
                       + "\n" + _("Please select the output directory to reside on the same volume as the sources files."));
            return;
        }
    }
    verzamelaar.sluitGroepen();

    schrijfSrcPaden(invoer, werk, uit);
    schrijfIncludeMappen(invoer, werk, uit);
    schrijfIncludeBestanden(invoer, werk, uit);
    schrijfGroepen(werk, uit);
    schrijfSubMappen(invoer, werk, uit);
}

} // namespace kern
