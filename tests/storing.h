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

// While it lives, a file may not grow past a few kilobytes: a write beyond
// fails as it does on a full disk (the signal the kernel would send is
// ignored meanwhile).
class VolleSchijf
{
public:
    VolleSchijf() : oudeAfhandeling(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &oud);
        const rlimit klein{4096, oud.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &klein);
    }
    ~VolleSchijf()
    {
        ::setrlimit(RLIMIT_FSIZE, &oud);
        std::signal(SIGXFSZ, oudeAfhandeling);
    }
    VolleSchijf(const VolleSchijf&) = delete;
    VolleSchijf& operator=(const VolleSchijf&) = delete;

private:
    rlimit oud{};
    void (*oudeAfhandeling)(int);
};

// Permission faults cannot be staged for root, who reads and writes
// everything: as root, `alsNiemand` runs the work in a child process under
// the unprivileged user "nobody" and hands back what it returned (a short
// text). Anything the work touches must be reachable for that user.
inline std::string alsNiemand(const std::function<std::string()>& werk)
{
    if (::geteuid() != 0)
        return werk();
    int buis[2];
    if (::pipe(buis) != 0)
        return "pipe failed";
    const pid_t kind = ::fork();
    if (kind == 0) {
        const uid_t niemand = 65534;
        if (::setgroups(0, nullptr) != 0 || ::setgid(niemand) != 0 || ::setuid(niemand) != 0)
            ::_exit(2);
        ::setenv("TMPDIR", "/tmp", 1); // the caller's own temporary directory is closed to "nobody"
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
