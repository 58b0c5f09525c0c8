#include "desktopVersie.h"

wxString DesktopVersieNummer::geefVersieString() const
{
    return wxString::Format("%d.%d.%d.%c", versie.hoofd, versie.neven, versie.herstel, versie.bouwLetter);
}
