// Names no CMake text can name, and a long one, in the real window's list.
#include "programma.h"

#include <wx/choice.h>
#include <wx/filepicker.h>

#include <filesystem>
#include <fstream>
#include <set>

using Storing = ProgrammaTest;

TEST_F(Storing, AddLeavesOutNamesCMakeCannotNameAndTheLongestStaysReachable)
{
    const std::string d = thuis.ToStdString() + "/d/", lang = "d/" + std::string(150, 'm') + "/n.c";
    for (const std::string& pad : {d + "goed.c", d + "caf\xc3\xa9.c", d + "caf\xe9.c", d + "a;b.c", d + "a\\b.c",
                                   d + "m\xe9/x.c", d + "m;n/y.c", d + "oud\xe9.txt", thuis.ToStdString() + "/" + lang})
        std::filesystem::create_directories(std::filesystem::path(pad).parent_path()), std::ofstream(pad) << "\n";
    start();
    KlavermolVenster& v = venster();
    v.SetSize(800, 600);
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    v.vindBestandenInDirs->SetPath(thuis + "/d");
    v.voegToeModeKeuze->SetSelection(2);
    klik(wxID_ADD);
    std::set<wxString> lijst;
    for (unsigned int i = 0; i < v.bestandSelektieLijst->GetCount(); ++i)
        lijst.insert(v.bestandSelektieLijst->GetString(i));
    const int breedte = v.bestandSelektieLijst->GetTextExtent(thuis + "/" + lang).x;
    EXPECT_EQ(std::make_tuple(lijst, logMet(wxLOG_Warning, ""), v.bestandSelektieLijst->GetColumnWidth(0) >= breedte),
              std::make_tuple(std::set<wxString>{thuis + "/d/goed.c", thuis + wxString::FromUTF8("/d/caf\xc3\xa9.c"), thuis +
              "/" + lang}, std::vector<wxString>{"5 names were left out: a CMake file cannot name a path that is not valid "
              "UTF-8 or that contains \";\", \"\\\" or \"${\"."}, true));
    klik(wxID_CLEAR);
    EXPECT_LT(v.bestandSelektieLijst->GetColumnWidth(0), breedte / 2);
}
