#pragma once
// Records of the platform the program runs on (the processor and the
// operating system), kept by the application frame.
#include <wx/string.h>

struct ProcessorBeschrijving
{
    wxString architectuur;
    int bitBreedte = 0;
    void neemWaar();
};

struct BesturingsSysteemBeschrijving
{
    int id = 0;
    wxString naam;
    wxString omschrijving;
    void neemWaar();
};
