#pragma once

#include "ratio.h"

#include "memory_library.h"

#include "store/track_part.h"

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace pinmora::bench {

/// A library in memory and what loads logs into it.
using Library = tag::MemoryLibrary;

/// Large logs in a folder of their own, which goes with the object.
class LogFiles {
public:
    LogFiles()
        : folder_(std::filesystem::temp_directory_path() /
                  ("pinmora-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(folder_);
    }
    LogFiles(const LogFiles &) = delete;
    LogFiles &operator=(const LogFiles &) = delete;
    ~LogFiles() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    /// 96 bytes a point, a point a second.
    std::filesystem::path gpx(std::size_t points) const {
        const auto path = folder_ / (std::to_string(points) + ".gpx");
        std::ofstream file(path);
        file << "<?xml version=\"1.0\"?>\n<gpx><trk><trkseg>\n";
        for (std::size_t i = 0; i < points; ++i) {
            file << "<trkpt lat=\"47." << sixDigits(i) << "\" lon=\"8." << sixDigits(3 * i)
                 << "\"><ele>412.5</ele><time>" << clockText(i, "%Y-%m-%dT%H:%M:%SZ")
                 << "</time></trkpt>\n";
        }
        file << "</trkseg></trk></gpx>\n";
        return path;
    }

    /// Three sentences a point (position and date, position and altitude, satellites), a point a
    /// second.
    std::filesystem::path nmea(std::size_t points) const {
        const auto path = folder_ / (std::to_string(points) + ".nmea");
        std::ofstream file(path);
        for (std::size_t i = 0; i < points; ++i) {
            const std::string time = clockText(i, "%H%M%S");
            const std::string position =
                "4723." + sixDigits(i).substr(2) + ",N,00823." + sixDigits(3 * i).substr(2) + ",E,";
            writeSentence(file, "GPRMC," + time + ",A," + position + "0.5,054.7,010608,,,A");
            writeSentence(file, "GPGGA," + time + "," + position + "1,08,0.9,412.5,M,46.9,M,,");
            writeSentence(file, "GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1");
        }
        return path;
    }

private:
    static std::string sixDigits(std::size_t number) {
        return std::to_string(1'000'000 + number % 1'000'000).substr(1);
    }

    static std::string clockText(std::size_t second, std::string_view format) {
        constexpr auto start = std::chrono::local_days(std::chrono::June / 1 / 2008);
        return textFromWallClock(start + std::chrono::seconds(second), format);
    }

    static void writeSentence(std::ofstream &file, const std::string &body) {
        constexpr std::string_view hex = "0123456789ABCDEF";
        unsigned sum = 0;
        for (const char c : body) {
            sum ^= static_cast<unsigned char>(c);
        }
        file << '$' << body << '*' << hex[sum >> 4U] << hex[sum & 15U] << '\n';
    }

    std::filesystem::path folder_;
};

/// Ends the program when an import did not make what it should have: then no figure is worth
/// printing.
inline void load(Library &library, const std::filesystem::path &log, std::size_t points) {
    library.gps.loadLog(log);
    if (library.context.count<track_part>() != points) {
        std::fprintf(stderr, "%s was not imported\n", log.c_str());
        std::exit(2);
    }
}

/// Seconds of an import that meets the heap of a program just started: all memory is new.
inline double secondsOfImport(const std::filesystem::path &log, std::size_t points,
                              LogReading reading = LogReading::Exact) {
    Library library;
    library.gps.setReading(reading);
    malloc_trim(0);
    return seconds([&] { load(library, log, points); });
}

/// Bytes a point that an import takes beyond what the program had before.
struct Memory {
    double peak;    ///< resident, at most
    double settled; ///< on the heap, at the end
};

inline Memory memoryOfImport(const std::filesystem::path &log, std::size_t points) {
    Library library;
    resetPeakResident();
    const std::size_t residentBefore = peakResident();
    const std::size_t heapBefore = heapInUse();
    load(library, log, points);
    const auto count = static_cast<double>(points);
    return {static_cast<double>(peakResident() - residentBefore) / count,
            static_cast<double>(heapInUse() - heapBefore) / count};
}

} // namespace pinmora::bench
