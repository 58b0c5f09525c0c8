#include "support/standschakelaar.h"

StandSchakelaar::StandSchakelaar(bool aan, bool omgekeerd)
    : toestand((aan != omgekeerd) ? 1 : 0), vergrendeld(false)
{
}

StandSchakelaar& StandSchakelaar::operator=(bool aan)
{
    if (!vergrendeld)
        toestand = aan ? 1 : 0;
    return *this;
}

int StandSchakelaar::om()
{
    if (!vergrendeld)
        toestand = (toestand == 1) ? 0 : 1;
    return toestand;
}
