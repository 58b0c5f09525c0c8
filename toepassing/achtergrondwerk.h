#pragma once
// Work off the GUI thread: a walk or a probe runs on a thread of its own
// and hands what it found back to the GUI thread. Starting a new job asks
// the running one to stop; only the latest job's result is applied, and a
// stopped job's never.
#include "kern/voortgang.h"

#include <wx/event.h>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

class AchtergrondWerk
{
public:
    // What the GUI thread does with a job's result.
    using Afronding = std::function<void()>;
    using Werk = std::function<Afronding(kern::Voortgang&)>;

    explicit AchtergrondWerk(wxEvtHandler& ontvanger) : ontvanger(ontvanger) {}
    ~AchtergrondWerk() { stopAlles(); }
    AchtergrondWerk(const AchtergrondWerk&) = delete;
    AchtergrondWerk& operator=(const AchtergrondWerk&) = delete;

    // Runs `werk` on a new thread; the function it returns runs on the GUI
    // thread afterwards, unless a later job was started or this one stopped.
    void start(Werk werk);
    // Stops the running job; its result is dropped.
    void stop();
    // Stops every job and waits for their threads (the window is going).
    void stopAlles();

    bool isBezig() const { return bezig; }
    // The running job's counts (only while busy).
    const kern::Voortgang& geefVoortgang() const { return *taken.back().voortgang; }

private:
    struct Taak {
        std::shared_ptr<kern::Voortgang> voortgang;
        std::shared_ptr<std::atomic<bool>> klaar;
        std::thread draad;
    };
    void ruimOp();

    wxEvtHandler& ontvanger;
    std::vector<Taak> taken;
    unsigned nummer = 0;
    bool bezig = false;
};
