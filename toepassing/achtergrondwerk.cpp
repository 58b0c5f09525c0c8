#include "toepassing/achtergrondwerk.h"

void AchtergrondWerk::start(Werk werk)
{
    stop();
    ruimOp();
    const unsigned dit = ++nummer;
    bezig = true;
    Taak taak{std::make_shared<kern::Voortgang>(), std::make_shared<std::atomic<bool>>(false), {}};
    taak.draad = std::thread([this, dit, werk = std::move(werk), voortgang = taak.voortgang, klaar = taak.klaar] {
        Afronding afronding = werk(*voortgang);
        // Queued, not called: the GUI thread applies it when it gets there.
        ontvanger.CallAfter([this, dit, afronding = std::move(afronding)] {
            if (dit != nummer || !bezig)
                return;
            bezig = false;
            if (afronding)
                afronding();
        });
        *klaar = true;
    });
    taken.push_back(std::move(taak));
}

void AchtergrondWerk::stop()
{
    if (!taken.empty())
        taken.back().voortgang->afbreken = true;
    bezig = false;
}

void AchtergrondWerk::ruimOp()
{
    // Threads that have ended are joined; stopped ones still running stay.
    for (auto t = taken.begin(); t != taken.end();) {
        if (*t->klaar) {
            t->draad.join();
            t = taken.erase(t);
        } else {
            ++t;
        }
    }
}

void AchtergrondWerk::stopAlles()
{
    stop();
    for (Taak& t : taken) {
        t.voortgang->afbreken = true;
        t.draad.join();
    }
    taken.clear();
}
