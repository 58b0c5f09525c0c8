#include "toepassing/klavermol.h"

// The toolkit's application factory: check the build options, then make the
// one application object.
static wxAppConsole* maakApplikatie()
{
    wxAppConsole::CheckBuildOptions(WX_BUILD_OPTIONS_SIGNATURE, "your program");
    return new Klavermol;
}

static wxAppInitializer applikatieInitialiseerder(maakApplikatie);

wxIMPLEMENT_WXWIN_MAIN
