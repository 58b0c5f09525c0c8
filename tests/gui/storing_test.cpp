// Names no CMake text can name, in the real window: Add leaves them out and
// says once how many.
#include "programma.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>

#include <filesystem>
#include <fstream>
#include <set>

using Storing = ProgrammaTest;

TEST_F(Storing, AddLeavesOutNamesCMakeCannotNameAndSaysHowManyOnce)
{
    // made byte for byte: some of these names are not UTF-8
    const std::string d = thuis.ToStdString() + "/d/";
    for (const std::string& map : {d + "m\xe9", d + "m;n"})
        std::filesystem::create_directories(map);
    for (const std::string& pad : {d + "goed.c", d + "caf\xc3\xa9.c", d + "caf\xe9.c", d + "a;b.c", d + "a\\b.c",
                                   d + "m\xe9/x.c", d + "m;n/y.c", d + "oud\xe9.txt"})
        std::ofstream(pad) << "\n";
    start();
    KlavermolVenster& v = venster();
    opdracht(wxEVT_CHECKBOX, VoegCBestandenToeID);
    v.vindBestandenInDirs->SetPath(thuis + "/d");
    v.voegToeModeKeuze->SetSelection(2);
    klik(wxID_ADD);

    std::set<wxString> lijst;
    for (unsigned int i = 0; i < v.bestandSelektieLijst->GetCount(); ++i)
        lijst.insert(v.bestandSelektieLijst->GetString(i));
    EXPECT_EQ(lijst, (std::set<wxString>{thuis + "/d/goed.c", thuis + wxString::FromUTF8("/d/caf\xc3\xa9.c")}));
    const std::vector<LogRegel> waarschuwingen = logRegels(wxLOG_Warning);
    ASSERT_EQ(waarschuwingen.size(), 1u);
    EXPECT_EQ(waarschuwingen[0].tekst, "5 names were left out: a CMake file cannot name a path that is not valid "
                                       "UTF-8 or that contains \";\", \"\\\" or \"${\".");
}

TEST_F(Storing, TheLongestEntryStaysReachableInTheSourceList)
{
    start();
    KlavermolVenster& v = venster();
    const wxString lang = "/" + wxString('m', 150) + "/" + wxString('n', 150) + ".c";
    std::size_t overgeslagen = 0;
    v.voegBronnenToe(wxSplit("/a.c," + lang + ",/b/c.c", ','), overgeslagen);
    v.SetSize(800, 600);
    const int breedte = v.bestandSelektieLijst->GetTextExtent(lang).x;
    EXPECT_GE(v.bestandSelektieLijst->GetColumnWidth(0), breedte);

    klik(wxID_CLEAR); // nothing is left to scroll to
    EXPECT_LT(v.bestandSelektieLijst->GetColumnWidth(0), breedte / 2);
}
