#pragma once
// The application object of Klavermol.
#include "desktopApp.h"

#include <wx/splash.h>
#include <wx/weakref.h>

class wxStatusBar;
class KlavermolVenster;

class Klavermol : public DesktopApp
{
public:
    Klavermol();

    bool OnInit() override;
    bool OnExceptionInMainLoop() override;

    KlavermolVenster* geefVenster() const { return venster; }
    wxSplashScreen* geefSplash() const { return splash; }
    wxStatusBar* geefSplashStatus() const { return splashStatus; }

private:
    wxWeakRef<wxSplashScreen> splash;
    wxStatusBar* splashStatus;
    KlavermolVenster* venster;
};

wxDECLARE_APP(Klavermol);
