#pragma once
// Staging file-system faults in tests.
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <string>

// The bytes of a file; empty when it cannot be read.
inline std::string leesBestand(const std::string& pad)
{ std::ifstream in(pad, std::ios::binary); return {std::istreambuf_iterator<char>(in), {}}; }

// While it lives, a write past 4 KiB fails as on a full disk (SIGXFSZ ignored).
struct VolleSchijf {
    VolleSchijf() { ::setrlimit(RLIMIT_FSIZE, &klein); }
    ~VolleSchijf() { ::setrlimit(RLIMIT_FSIZE, &oud), std::signal(SIGXFSZ, oudeAfhandeling); }
    void (*oudeAfhandeling)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit oud = [] { rlimit r{}; ::getrlimit(RLIMIT_FSIZE, &r); return r; }();
    rlimit klein{4096, oud.rlim_max};
};

// Runs the work as "nobody" (in a child when root), giving back its short text result.
inline std::string alsNiemand(const std::function<std::string()>& werk)
{
    int buis[2], status = 0;
    if (::geteuid() != 0 || ::pipe(buis) != 0)
        return ::geteuid() != 0 ? werk() : "pipe failed";
    const pid_t kind = ::fork();
    if (kind == 0) {
        if (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)
            ::_exit(2);
        ::setenv("TMPDIR", "/tmp", 1); // the caller's own is closed to "nobody"
        const std::string uit = werk();
        ::_exit(::write(buis[1], uit.data(), uit.size()) == static_cast<ssize_t>(uit.size()) ? 0 : 3);
    }
    const std::string uit = (::close(buis[1]), leesBestand("/proc/self/fd/" + std::to_string(buis[0]))); // up to the exit
    ::close(buis[0]), ::waitpid(kind, &status, 0);
    return status == 0 ? uit : "child failed: " + std::to_string(status);
}
