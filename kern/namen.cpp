#include "kern/namen.h"

#include "kern/generator.h"

#include <wx/intl.h>

namespace kern {

namespace {

bool heeftStuurTeken(const wxString& naam)
{
    for (const wxUniChar teken : naam)
        if (teken < 0x20 || teken == 0x7f)
            return true;
    return false;
}

} // namespace

wxString geefNaamFout(int soort, const wxString& naam)
{
    if (soort == SoortInclude) {
        if (naam.empty() || naam.Contains("/") || heeftStuurTeken(naam))
            return wxString::Format(_("\"%s\" cannot be used as an include name: the name of a .cmake file must not "
                                      "be empty and must not contain \"/\" or a line break."),
                                    naam);
        return wxString();
    }
    if (naam.empty() || heeftStuurTeken(naam) || naam.find_first_of(" ()#\"\\;$") != wxString::npos)
        return wxString::Format(_("\"%s\" cannot be used as a CMake name: it must not be empty and must not contain "
                                  "blanks, line breaks or any of ( ) # \" \\ ; $"),
                                naam);
    return wxString();
}

} // namespace kern
