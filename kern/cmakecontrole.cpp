#include "kern/cmakecontrole.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/regex.h>
#include <wx/thread.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace kern {

namespace {

// A text as a quoted CMake argument.
wxString alsCMakeArgument(const wxString& tekst)
{
    wxString uit = tekst;
    for (const char* teken : {"\\", "\"", "$", ";"})
        uit.Replace(teken, wxString("\\") + teken);
    return "\"" + uit + "\"";
}

// The throw-away project around a library or an include file.
wxString geefOuderProjekt(const ControleOpdracht& opdracht)
{
    const wxString dir = alsCMakeArgument(opdracht.uitvoerDir);
    // Generated files name their sources below ${PROJECT_SOURCE_DIR}: the
    // output directory, as in a project whose top they are.
    wxString tekst = "cmake_minimum_required(VERSION 3.10)\n"
                     "project(KlavermolControle C CXX)\n"
                     "set(PROJECT_SOURCE_DIR " + dir + ")\n";
    if (opdracht.soort == 1)
        return tekst + "add_subdirectory(" + dir + " \"${CMAKE_BINARY_DIR}/bieb\")\n"
               "get_property(doelen DIRECTORY " + dir + " PROPERTY BUILDSYSTEM_TARGETS)\n"
               "file(WRITE \"${CMAKE_BINARY_DIR}/klavermol_controle.c\" \"int main(void) { return 0; }\\n\")\n"
               "add_executable(klavermol_controle \"${CMAKE_BINARY_DIR}/klavermol_controle.c\")\n"
               "foreach(doel IN LISTS doelen)\n"
               "  get_target_property(doelSoort ${doel} TYPE)\n"
               "  if(doelSoort MATCHES \"LIBRARY$\")\n"
               "    target_link_libraries(klavermol_controle ${doel})\n"
               "  endif()\n"
               "endforeach()\n";
    return tekst + "include(" + alsCMakeArgument(opdracht.bestand) + ")\n"
           "if(SRCS)\n"
           "  add_library(klavermol_controle OBJECT ${SRCS})\n"
           "endif()\n";
}

// A private directory under TMPDIR, removed with all it holds at the end.
class TijdelijkeMap
{
public:
    TijdelijkeMap()
    {
        std::string sjabloon = (wxFileName::GetTempDir() + "/klavermol-controle-XXXXXX").utf8_string();
        if (mkdtemp(sjabloon.data()) != nullptr)
            pad = wxString::FromUTF8(sjabloon);
        else
            fout = errno;
    }
    ~TijdelijkeMap()
    {
        std::error_code genegeerd;
        if (!pad.empty())
            std::filesystem::remove_all(pad.utf8_string(), genegeerd);
    }
    wxString pad;
    int fout = 0;
};

// Makes a file name from CMake's output absolute against `bronMap`.
wxString maakAbsoluut(const wxString& bestand, const wxString& bronMap)
{
    wxFileName naam(bestand);
    naam.Normalize(wxPATH_NORM_DOTS | wxPATH_NORM_ABSOLUTE, bronMap);
    return naam.GetFullPath();
}

// Whether a warning is one CMake gives for every file of the generated form.
bool isVastePatroon(const CMakeMelding& m)
{
    return m.ernst == Ernst::Waarschuwing
           && (m.tekst.StartsWith("No project() command is present")
               || m.tekst.StartsWith("Compatibility with CMake < "));
}

// The first sentence of a message.
wxString eersteZin(const wxString& tekst)
{
    const int punt = tekst.Find(". ");
    return punt == wxNOT_FOUND ? tekst : tekst.Left(static_cast<size_t>(punt) + 1);
}

void vouwVastePatronen(std::vector<CMakeMelding>& meldingen)
{
    std::vector<CMakeMelding> blijft;
    CMakeMelding samen{Ernst::Opmerking, wxString(), 0, wxString()};
    wxArrayString zinnen;
    for (CMakeMelding& m : meldingen) {
        if (!isVastePatroon(m)) {
            blijft.push_back(std::move(m));
            continue;
        }
        if (samen.regel == 0) { // where the first of them with a line points
            samen.bestand = m.bestand;
            samen.regel = m.regel;
        }
        if (zinnen.Index(eersteZin(m.tekst)) == wxNOT_FOUND)
            zinnen.Add(eersteZin(m.tekst));
    }
    if (!zinnen.empty()) {
        samen.tekst = _("Warnings CMake gives for every file of this form: ") + wxJoin(zinnen, ' ', 0);
        blijft.insert(blijft.begin(), samen);
    }
    meldingen = std::move(blijft);
}

} // namespace

wxString zoekCMake()
{
    const char* pad = std::getenv("PATH");
    wxArrayString mappen = wxSplit(pad != nullptr ? wxString(pad) : wxString(), ':', 0);
    for (const wxString& map : mappen) {
        const wxString kandidaat = (map.empty() ? wxString(".") : map) + "/cmake";
        if (access(kandidaat.fn_str(), X_OK) == 0 && !wxFileName::DirExists(kandidaat))
            return kandidaat;
    }
    return wxString();
}

wxString geefGeenCMakeMelding()
{
    return _("There is no cmake program on the PATH. Install it with \"apt-get install cmake\".");
}

std::vector<CMakeMelding> leesMeldingen(const wxArrayString& regels, const wxString& bronMap)
{
    wxRegEx kop("^CMake (Error|Warning|Deprecation Warning|Deprecation Error)( \\(dev\\))?(.*)$", wxRE_ADVANCED);
    wxRegEx plaats("^ at (.+):([0-9]+) \\([^)]*\\):$", wxRE_ADVANCED);
    wxRegEx in("^ in (.+):$", wxRE_ADVANCED);
    wxRegEx compiler("^([^:]+):([0-9]+):([0-9]+:)? (fatal error|error|warning): (.*)$", wxRE_ADVANCED);

    std::vector<CMakeMelding> meldingen;
    bool inMelding = false;
    for (const wxString& regel : regels) {
        if (inMelding && (regel.empty() || regel[0] == ' ')) {
            const wxString stuk = regel.Strip(wxString::both);
            wxString& tekst = meldingen.back().tekst;
            if (stuk.StartsWith("Tried extensions"))
                inMelding = false; // the rest of the message is CMake's search list
            else if (!stuk.empty())
                tekst += (tekst.empty() ? "" : " ") + stuk;
            continue;
        }
        inMelding = false;
        CMakeMelding m;
        if (kop.Matches(regel)) {
            m.ernst = kop.GetMatch(regel, 1).EndsWith("Error") ? Ernst::Fout : Ernst::Waarschuwing;
            const wxString rest = kop.GetMatch(regel, 3);
            if (plaats.Matches(rest)) {
                m.bestand = maakAbsoluut(plaats.GetMatch(rest, 1), bronMap);
                m.regel = wxAtoi(plaats.GetMatch(rest, 2));
            } else if (in.Matches(rest)) {
                m.bestand = maakAbsoluut(in.GetMatch(rest, 1), bronMap);
            } else if (rest.StartsWith(":")) {
                m.tekst = rest.Mid(1).Strip(wxString::both);
            }
            inMelding = true;
        } else if (compiler.Matches(regel)) {
            m.ernst = compiler.GetMatch(regel, 4).EndsWith("error") ? Ernst::Fout : Ernst::Waarschuwing;
            m.bestand = maakAbsoluut(compiler.GetMatch(regel, 1), bronMap);
            m.regel = wxAtoi(compiler.GetMatch(regel, 2));
            m.tekst = compiler.GetMatch(regel, 5);
        } else {
            continue;
        }
        meldingen.push_back(m);
    }
    vouwVastePatronen(meldingen);
    return meldingen;
}

wxString geefOordeel(int soort, bool bouw, bool gelukt, int fouten, int waarschuwingen)
{
    if (!gelukt)
        return wxString::Format(bouw ? wxPLURAL("The build stopped with %d error",
                                                "The build stopped with %d errors", fouten)
                                     : wxPLURAL("CMake stopped with %d error", "CMake stopped with %d errors", fouten),
                                fouten);
    // One text per stage and kind, so that each translates whole.
    const unsigned n = static_cast<unsigned>(waarschuwingen);
    const wxString teksten[] = {
        wxPLURAL("CMake configured the project: no errors, %d warning",
                 "CMake configured the project: no errors, %d warnings", n),
        wxPLURAL("CMake configured the library: no errors, %d warning",
                 "CMake configured the library: no errors, %d warnings", n),
        wxPLURAL("CMake configured the include file: no errors, %d warning",
                 "CMake configured the include file: no errors, %d warnings", n),
        wxPLURAL("CMake configured and built the project: no errors, %d warning",
                 "CMake configured and built the project: no errors, %d warnings", n),
        wxPLURAL("CMake configured and built the library: no errors, %d warning",
                 "CMake configured and built the library: no errors, %d warnings", n),
        wxPLURAL("CMake configured and built the include file: no errors, %d warning",
                 "CMake configured and built the include file: no errors, %d warnings", n)};
    const int keuze = (bouw ? 3 : 0) + (soort >= 0 && soort <= 2 ? soort : 0);
    return wxString::Format(teksten[keuze], waarschuwingen);
}

ControleUitslag CMakeControle::voerUit(const ControleOpdracht& opdracht, const RegelOntvanger& ontvanger)
{
    afbreken = false;
    ControleUitslag uitslag;
    auto stopMet = [&uitslag](const wxString& tekst) {
        uitslag.meldingen.push_back({Ernst::Fout, wxString(), 0, tekst});
        uitslag.fouten = 1;
        uitslag.oordeel = tekst;
        return uitslag;
    };
    const wxString cmake = zoekCMake();
    if (cmake.empty())
        return stopMet(geefGeenCMakeMelding());
    TijdelijkeMap tijdelijk;
    if (tijdelijk.pad.empty())
        return stopMet(wxString::Format(_("Cannot make a temporary directory in %s: %s"), wxFileName::GetTempDir(),
                                        wxString(std::strerror(tijdelijk.fout))));

    const wxString bouwMap = tijdelijk.pad + "/bouw";
    wxString bronMap = opdracht.uitvoerDir;
    if (opdracht.soort != 0) {
        bronMap = tijdelijk.pad + "/bron";
        wxFileName::Mkdir(bronMap);
        std::ofstream(wxString(bronMap + "/CMakeLists.txt").utf8_string()) << geefOuderProjekt(opdracht).utf8_string();
    }
    wxArrayString regels;
    int status = draai({cmake, "-S", bronMap, "-B", bouwMap}, ontvanger, regels);
    bool bouwde = false;
    if (status == 0 && opdracht.bouw && !afbreken) {
        bouwde = true;
        const int kernen = std::max(1, wxThread::GetCPUCount());
        status = draai({cmake, "--build", bouwMap, "-j", wxString::Format("%d", kernen)}, ontvanger, regels);
    }

    uitslag.afgebroken = afbreken;
    uitslag.meldingen = leesMeldingen(regels, bronMap);
    for (CMakeMelding& m : uitslag.meldingen) {
        if (m.bestand.StartsWith(tijdelijk.pad + "/"))
            m.bestand = _("(the check's own project)");
        if (m.ernst == Ernst::Fout)
            ++uitslag.fouten;
    }
    // Every warning CMake gave counts, also those folded into one line.
    for (const wxString& regel : regels)
        if (regel.StartsWith("CMake Warning") || regel.StartsWith("CMake Deprecation Warning")
            || regel.Contains(": warning: "))
            ++uitslag.waarschuwingen;
    if (status != 0 && uitslag.fouten == 0 && !uitslag.afgebroken) {
        const wxString tekst = status < 0 ? wxString::Format(_("cmake could not be started: %s"), cmake)
                                          : wxString::Format(_("cmake ended with exit status %d"), status);
        uitslag.meldingen.push_back({Ernst::Fout, wxString(), 0, tekst});
        uitslag.fouten = 1;
    }
    uitslag.gelukt = status == 0 && !uitslag.afgebroken;
    uitslag.oordeel = uitslag.afgebroken ? wxString(_("The check was cancelled."))
                                         : geefOordeel(opdracht.soort, bouwde, uitslag.gelukt, uitslag.fouten,
                                                       uitslag.waarschuwingen);
    return uitslag;
}

void CMakeControle::breekAf()
{
    afbreken = true;
    const pid_t p = kind.load();
    if (p > 0)
        kill(-p, SIGKILL);
}

int CMakeControle::draai(const std::vector<wxString>& argumenten, const RegelOntvanger& ontvanger,
                         wxArrayString& regels)
{
    if (afbreken)
        return -1;
    // Everything the child needs is made before the fork.
    std::vector<std::string> opslag;
    for (const wxString& a : argumenten)
        opslag.push_back(a.utf8_string());
    std::vector<char*> argv;
    for (std::string& a : opslag)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    // The messages in English and without local quotes, so that they can be read.
    std::vector<char*> omgeving;
    static char taal[] = "LC_ALL=C";
    for (char** e = environ; *e != nullptr; ++e)
        if (std::strncmp(*e, "LC_ALL=", 7) != 0 && std::strncmp(*e, "LANGUAGE=", 9) != 0)
            omgeving.push_back(*e);
    omgeving.push_back(taal);
    omgeving.push_back(nullptr);

    int pijp[2];
    if (pipe2(pijp, O_CLOEXEC) != 0)
        return -1;
    const pid_t pid = fork();
    if (pid == 0) {
        setpgid(0, 0); // its own group: cancelling stops cmake and all it started
        const int nul = open("/dev/null", O_RDONLY);
        dup2(nul, 0);
        dup2(pijp[1], 1);
        dup2(pijp[1], 2);
        execve(argv[0], argv.data(), omgeving.data());
        _exit(127);
    }
    close(pijp[1]);
    if (pid < 0) {
        close(pijp[0]);
        return -1;
    }
    setpgid(pid, pid);
    kind = pid;
    if (afbreken)
        kill(-pid, SIGKILL);

    std::string rest;
    char buffer[4096];
    for (;;) {
        const ssize_t n = read(pijp[0], buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        rest.append(buffer, static_cast<size_t>(n));
        size_t begin = 0;
        for (size_t eind; (eind = rest.find('\n', begin)) != std::string::npos; begin = eind + 1) {
            regels.Add(wxString::FromUTF8(rest.data() + begin, eind - begin));
            if (ontvanger)
                ontvanger(regels.Last());
        }
        rest.erase(0, begin);
    }
    if (!rest.empty()) {
        regels.Add(wxString::FromUTF8(rest));
        if (ontvanger)
            ontvanger(regels.Last());
    }
    close(pijp[0]);
    kind = 0;
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 127 ? -1 : WEXITSTATUS(status);
    return 128 + WTERMSIG(status);
}

} // namespace kern
