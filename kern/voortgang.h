#pragma once
// What a long walk tells the thread that waits for it, and how that thread
// stops it: the counts so far (read at any time from another thread) and a
// flag that ends the walk at the next entry.
#include <atomic>
#include <cstddef>

namespace kern {

struct Voortgang {
    std::atomic<bool> afbreken{false};     // set by another thread: stop as soon as possible
    std::atomic<std::size_t> mappen{0};    // directories read so far
    std::atomic<std::size_t> bestanden{0}; // matching files so far

    bool isAfgebroken() const { return afbreken.load(std::memory_order_relaxed); }
};

} // namespace kern
