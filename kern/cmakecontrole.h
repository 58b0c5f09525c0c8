#pragma once
// Checking a saved CMake file with the machine's own cmake: configure (and
// optionally build) it in a private temporary build directory, stream
// CMake's output, and read its messages back into a list with a verdict.
// Runs the child processes itself (fork/exec), so it may run on any thread.
#include <wx/arrstr.h>
#include <wx/string.h>

#include <atomic>
#include <functional>
#include <sys/types.h>
#include <vector>

namespace kern {

enum class Ernst { Fout, Waarschuwing, Opmerking };

// One message of CMake or of the compiler; regel 0 when it names no line.
struct CMakeMelding
{
    Ernst ernst = Ernst::Fout;
    wxString bestand; // absolute where it could be made so; empty without location
    int regel = 0;
    wxString tekst;
};

struct ControleOpdracht
{
    int soort = 0;       // output kind: project, library, include
    wxString bestand;    // the saved file
    wxString uitvoerDir; // the output directory the file was made for
    bool bouw = false;   // build as well
};

struct ControleUitslag
{
    bool gelukt = false;
    bool afgebroken = false;
    int fouten = 0;
    int waarschuwingen = 0; // all CMake gave, the folded ones included
    std::vector<CMakeMelding> meldingen;
    wxString oordeel; // the one-line verdict
};

// The cmake program on the PATH; empty when there is none.
wxString zoekCMake();
// What to tell the user when zoekCMake() found nothing.
wxString geefGeenCMakeMelding();

// Reads CMake's (and, when building, the compiler's) output. Relative file
// names are taken against `bronMap`. The warnings CMake gives for every file
// of the generated form are folded into one note.
std::vector<CMakeMelding> leesMeldingen(const wxArrayString& regels, const wxString& bronMap);

// The verdict for a finished run.
wxString geefOordeel(int soort, bool bouw, bool gelukt, int fouten, int waarschuwingen);

class CMakeControle
{
public:
    using RegelOntvanger = std::function<void(const wxString&)>;

    // Runs the check; blocks until cmake is done or the check is cancelled.
    // Every output line goes to `ontvanger` (when given) on the calling thread. The
    // temporary directories are gone when this returns.
    ControleUitslag voerUit(const ControleOpdracht& opdracht, const RegelOntvanger& ontvanger);

    // From any thread: stops the running child and all it started.
    void breekAf();

private:
    // Runs one command; its exit status, or -1 when it could not run.
    int draai(const std::vector<wxString>& argumenten, const RegelOntvanger& ontvanger, wxArrayString& regels);

    std::atomic<bool> afbreken{false};
    std::atomic<pid_t> kind{0};
};

} // namespace kern
