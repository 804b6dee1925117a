#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <fstream>
#include <limits>
#include <malloc.h>
#include <sstream>
#include <string>

namespace pinmora::bench {

/// Wall-clock seconds that one call of `work` takes.
template <typename Work>
double seconds(Work &&work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Wall-clock seconds of the fastest of five calls: what is least disturbed by the machine.
template <typename Work>
double bestSeconds(Work &&work) {
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < 5; ++run) {
        best = std::min(best, seconds(work));
    }
    return best;
}

/// The fastest of five calls of each, in seconds.
struct Pair {
    double work;
    double yardstick;
    double ratio() const { return work / yardstick; }
};

/// Measures `work` and `yardstick` in turn, so that both see the same machine in the same minute.
template <typename Work, typename Yardstick>
Pair bestPair(Work &&work, Yardstick &&yardstick) {
    Pair best{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    for (int run = 0; run < 5; ++run) {
        best.work = std::min(best.work, seconds(work));
        best.yardstick = std::min(best.yardstick, seconds(yardstick));
    }
    return best;
}

/// Bytes that the program has in use on the heap now.
inline std::size_t heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// The most bytes that were resident at once since the start or the last resetPeakResident().
inline std::size_t peakResident() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        std::istringstream fields(line);
        std::string key;
        std::size_t kibibytes = 0;
        if (fields >> key >> kibibytes && key == "VmHWM:") {
            return kibibytes * 1024;
        }
    }
    return 0;
}

/// Gives free heap back to the system and lets peakResident() count from what is resident now.
inline void resetPeakResident() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

/// Prints a line for each target and remembers whether one fell short.
class Report {
public:
    /// `measured` must not be above `limit`.
    void atMost(const std::string &target, double measured, double limit) {
        line(target, measured, "<=", limit, measured <= limit);
    }

    /// `measured` must not be below `limit`.
    void atLeast(const std::string &target, double measured, double limit) {
        line(target, measured, ">=", limit, measured >= limit);
    }

    /// For main(): 0 when every target was reached, else 1.
    int exitStatus() const { return short_ ? 1 : 0; }

private:
    void line(const std::string &target, double measured, const char *relation, double limit,
              bool reached) {
        std::printf("%-34s %12.3f    %s %8.3f  %s\n", target.c_str(), measured, relation, limit,
                    reached ? "ok" : "short");
        std::fflush(stdout);
        short_ = short_ || !reached;
    }

    bool short_ = false;
};

/// What main() of a benchmark returns: measures, and says it where that fails.
inline int run(void (*measure)(Report &)) {
    try {
        Report report;
        measure(report);
        return report.exitStatus();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

} // namespace pinmora::bench
