// The command-line front end, run as a separate program.
#include "kern/generator.h"

#include "bronboom_test.h"
#include "storing.h"

namespace {

struct Uitslag { int code; std::string uit, fout; };

struct Cli : ::testing::Test {
    // A home with stored templates, which are never expanded.
    void SetUp() override {
        for (const char* pad : {"p/main.c", "p/src/a.c", "p/src/b.cpp", "p/inc/a.h", "p/asm/start.S", "p/asm/laag.s", "p/.verborgen.c",
                                "lib/CMakeLists.txt", "lib2/CMakeLists.txt", "cmake/extra.cmake", "cmake/tweede.cmake", "n/goed.c",
                                "n/a;b.c", "n/a\\b.c", "n/m;n/y.c", "n/d${a}.c", "n/m${a}/z.c", "n/caf\xe9.c", "n/m\xe9/x.c"})
            boom.maakBestand(pad, "\n"); // the last two are not UTF-8
        boom.maakBestand(".Klavermol", "[Configuratie]\nKopieerrechtMededeling=## $HOME ${SRCS} %PATH%\n");
    }
    std::string lees(const std::string& pad) const { return leesBestand(boom.pad(pad)); }

    Uitslag voerUit(const std::string& argumenten, const std::string& omgeving = "") {
        const std::string map = boom.pad("."), opdracht = "cd " + map + " && HOME=" + map +
            " SOURCE_DATE_EPOCH=1599485122 " + omgeving + " " KLAVERMOL_BIN_DIR "/klavermol-cli >stdout.txt 2>stderr.txt ";
        const int status = std::system((opdracht + argumenten).c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, lees("stdout.txt"), lees("stderr.txt")};
    }

    // What the generators give for these sources and this state.
    std::string verwacht(std::initializer_list<const char*> bronnen, const std::function<void(kern::GeneratorInvoer&)>& zet = {}) {
        kern::GeneratorInvoer in;
        for (const char* b : bronnen) in.bronnen.Add(boom.map(b));
        in.uitvoerDir = boom.map("p"), in.naam = "MyFirstProject", in.datum = "2020-09-07 13:25:22";
        (in.sjablonen = kern::geefStandaardSjablonen()).kopieerrechtMededeling = "## $HOME ${SRCS} %PATH%";
        if (zet) zet(in);
        kern::Werklijsten werk; std::string tekst;
        return kern::maakUitvoerUtf8(in, werk, tekst), tekst;
    }
    TijdelijkeBoom boom;
};

} // namespace

// Entries in command-line order, as Add collects them; what is printed is what Execute would show.
TEST_F(Cli, PrintsWhatExecuteWouldShowForTheSameState)
{
    boom.maakBestand("andere.ini", "[Configuratie]\nProjektKommando=## from elsewhere\n");
    const std::string dubbel = boom.pad("p/src/a.c") + " won't be added since it is already in your selection list.\n";
    using I = kern::GeneratorInvoer;
    const struct { const char* argumenten; std::string uit, fout; } rijen[] = {
        {"-o p --c --h -m recursive p", verwacht({"p/src/a.c", "p/main.c", "p/inc/a.h"})},
        {"-o p --asm -m recursive p", verwacht({"p/asm/laag.s", "p/asm/start.S"})},
        {"-k include -n 'Mijn deel' -o p --h p/inc", verwacht({"p/inc/a.h"}, [](I& in) { in.soort = kern::SoortInclude, in.naam = "Mijn deel"; })},
        {"-k library -n rekenen -l object -t crosscompile -o p --cpp --asm p/src p/asm -f p/main.c "
         "--subdir lib=mylib --include cmake/extra.cmake -x p/asm/start.S -x p/asm/laag.s",
         verwacht({"p/src/b.cpp", "p/main.c"}, [&](I& in) {
             in.soort = kern::SoortBieb, in.biebType = 2, in.projektType = 1, in.naam = "rekenen";
             in.biebs = {{boom.map("lib"), "mylib", true}}, in.includes = {{boom.map("cmake/extra.cmake"), true}}; })},
        {"-o p -f p/src/a.c --c p", verwacht({"p/src/a.c", "p/main.c"})},
        {"-o p --c p --subdir lib=een --subdir lib2=twee --include cmake/extra.cmake --include cmake/tweede.cmake "
         "-x lib/ -x ./cmake/tweede.cmake -x p/../p/main.c",
         verwacht({}, [&](I& in) { in.biebs = {{boom.map("lib"), "een", false}, {boom.map("lib2"), "twee", true}};
             in.includes = {{boom.map("cmake/extra.cmake"), true}, {boom.map("cmake/tweede.cmake"), false}}; })},
        {"-o p --c p/src p/src -f p/src/a.c --subdir lib=x --subdir lib=y",
         verwacht({"p/src/a.c"}, [&](I& in) { in.biebs = {{boom.map("lib"), "x", true}}; }),
         dubbel + dubbel + "CMakeLists.txt won't be added since it is already in your selection list.\n"},
        {"-m recursive -o p --c n -f 'n/a;b.c'", verwacht({"n/goed.c"}),
         "klavermol-cli: 8 names were left out: a CMake file cannot name a path that is not valid UTF-8 "
         "or that contains \";\", \"\\\" or \"${\".\n"},
        {"-o p --settings andere.ini",
         verwacht({}, [](I& in) { (in.sjablonen = kern::geefStandaardSjablonen()).projektKommando = "## from elsewhere"; })},
    };
    for (const auto& rij : rijen) {
        const Uitslag u = voerUit(rij.argumenten);
        EXPECT_EQ(std::to_string(u.code) + " " + u.fout + u.uit, "0 " + rij.fout + rij.uit) << rij.argumenten;
    }
}

// -w writes what would be printed; a failed write says why and leaves the old file.
TEST_F(Cli, WriteReplacesTheFileWholeOrOnAFullDiskNotAtAll)
{
    Uitslag u = voerUit("-w -o p --c p");
    EXPECT_EQ(std::to_string(u.code) + u.uit + lees("p/CMakeLists.txt"), "0" + verwacht({"p/main.c"})) << u.fout;
    u = voerUit("-w -k include -n Common -o p --h p/inc");
    EXPECT_EQ(lees("p/Common.cmake").rfind("## Klavermol generated Common include file\n", 0), 0u) << u.fout;
    u = voerUit("-w -o p --c --h p", "sh -c 'trap \"\" XFSZ; ulimit -f 1; exec \"$0\" \"$@\"'"); // as a full disk
    EXPECT_EQ(std::to_string(u.code) + u.fout + lees("p/CMakeLists.txt"), "1klavermol-cli: Failed to open output file " +
                  boom.pad("p/CMakeLists.txt") + " for writing to.\nFile too large\n" + verwacht({"p/main.c"}));
}

TEST_F(Cli, ErrorsGiveAMessageAndANonZeroExitAndNoFile)
{
    const struct { const char* argumenten; int code; const char* melding; } gevallen[] = {
        {"-o p --bogus", 2, "Unknown long option 'bogus'"},
        {"--c p", 2, "output-dir"},
        {"-o p --c nergens", 1, "no such directory: nergens"},
        {"-o p p", 1, "at least one of --c, --cpp, --h and --asm"},
        {"-o p --subdir nergens=x", 1, "The selected dir does not contain a CMakeLists.txt file. (nergens)"},
        {"-o p --subdir lib", 1, "--subdir takes DIR=LIBNAME"},
        {"-o p -k boek", 1, "--kind must be one of project|library|include, not \"boek\""},
        {"-o p --settings ontbreekt.ini", 1, "cannot read the settings file ontbreekt.ini"},
        {"-w -o p/bestaat/niet --c p", 1, "no such output directory"},
        {"-o p -f p/weg.c", 1, "no such file: p/weg.c"},
        {"-o p --include cmake/weg.cmake", 1, "no such file: cmake/weg.cmake"},
        {"-o p --include cmake/extra.CMAKE", 1, "not a CMake include file (*.cmake): cmake/extra.CMAKE"},
        {"-o p -f fifo", 1, "not a regular file: fifo"},
        {"-o p --settings fifo", 1, "not a regular file: fifo"},
        {"-o p >/dev/full", 1, "cannot write to standard output: No space left on device"},
        {"-o p -n 'My Project'", 2, "\"My Project\" cannot be used as a CMake name"},
        {"-o p -n \"$(printf 'a\\177')\"", 2, "cannot be used as a CMake name"},
        {"-w -o p -k include -n a/b", 2, "\"a/b\" cannot be used as an include name"},
        {"-w -o p -k include -n ''", 2, "\"\" cannot be used as an include name"},
        {"-w -o p -k include -n \"$(printf 'a\\tb')\"", 2, "cannot be used as an include name"},
    };
    ::mkfifo(boom.pad("fifo").c_str(), 0666);
    for (const auto& geval : gevallen) {
        const Uitslag u = voerUit(geval.argumenten);
        EXPECT_TRUE(u.code == geval.code && u.uit.empty() && u.fout.find(geval.melding) != std::string::npos)
            << geval.argumenten << ": " << u.code << " " << u.uit << u.fout;
    }
    EXPECT_FALSE(wxFileName::Exists(boom.map("p/CMakeLists.txt")));
    const Uitslag hulp = voerUit("-h"); // the help stands alone on stdout
    EXPECT_EQ(std::to_string(hulp.code) + hulp.fout + hulp.uit.substr(0, 20), "0klavermol-cli writes") << hulp.uit;

    wxRemoveFile(boom.map("stdout.txt")), wxRemoveFile(boom.map("stderr.txt")); // "nobody" writes them anew
    ::mkdir(boom.pad("dicht").c_str(), 0), ::chmod(boom.pad(".").c_str(), 0777);
    EXPECT_EQ(alsNiemand([&] { const Uitslag u = voerUit("-o p --c dicht"); return std::to_string(u.code) + "|" + u.uit + "|" + u.fout; }),
              "1||klavermol-cli: cannot read the directory dicht\n");
}

// --check runs cmake on the written file; its verdict ends the messages.
TEST_F(Cli, CheckEndsWithTheVerdictAndItsExitCode)
{
    const struct { const char *omgeving, *argumenten; int code; const char* laatste; } gevallen[] = {
        {"", "-o p --c -m recursive p -w --check", 0, "CMake configured the project: no errors, 2 warnings"},
        {"", "-o p --c p --subdir lib=lib -w --check=build", 1, "CMake stopped with 1 error"},
        {"", "-o p --c p -w --check=bouw", 2, "klavermol-cli: --check takes no value or \"build\", and needs -w"},
        {"PATH=/nergens", "-o p --c p -w --check", 1,
         "klavermol-cli: There is no cmake program on the PATH. Install it with \"apt-get install cmake\"."},
    };
    for (const auto& g : gevallen) {
        const Uitslag u = voerUit(g.argumenten, g.omgeving);
        EXPECT_EQ(std::to_string(u.code) + " " + wxSplit(wxString(u.fout).Trim(), '\n', 0).Last(), std::to_string(g.code) + " " + g.laatste)
            << u.fout;
    }
}
