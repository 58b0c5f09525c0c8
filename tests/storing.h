#pragma once
// Staging file-system faults in tests.
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

// The bytes of a file; empty when it cannot be read.
inline std::string leesBestand(const std::string& pad)
{
    std::ifstream in(pad, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// While it lives, a write past 4 KiB fails as on a full disk (SIGXFSZ ignored).
class VolleSchijf
{
public:
    VolleSchijf() : oudeAfhandeling(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &oud);
        const rlimit klein{4096, oud.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &klein);
    }
    ~VolleSchijf() { ::setrlimit(RLIMIT_FSIZE, &oud), std::signal(SIGXFSZ, oudeAfhandeling); }
    VolleSchijf(const VolleSchijf&) = delete;

private:
    rlimit oud{};
    void (*oudeAfhandeling)(int);
};

// Root reads and writes everything, so as root the work runs in a child as
// "nobody", and its result (a short text) comes back through a pipe.
inline std::string alsNiemand(const std::function<std::string()>& werk)
{
    int buis[2];
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
    ::close(buis[1]);
    std::string uit;
    char blok[4096];
    for (ssize_t n; (n = ::read(buis[0], blok, sizeof blok)) > 0;)
        uit.append(blok, static_cast<size_t>(n));
    ::close(buis[0]);
    int status = 0;
    ::waitpid(kind, &status, 0);
    return status == 0 ? uit : "child failed: " + std::to_string(status);
}
