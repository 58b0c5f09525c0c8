// Writes the toolkit's language numbers that the installation test pins.
#include <wx/filename.h>
#include <wx/intl.h>

#include <fstream>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    wxFileName::Mkdir(argv[1], wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    const std::string map = argv[1];
    std::ofstream(map + "/duits") << wxLANGUAGE_GERMAN << "\n";
    std::ofstream(map + "/nederlands") << wxLANGUAGE_DUTCH << "\n";
    return 0;
}
