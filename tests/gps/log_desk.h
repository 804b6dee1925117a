#pragma once

#include "files.h"
#include "gps/gps.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "store/library_model.h"
#include "store/track.h"
#include "store/track_part.h"

#include <QTemporaryDir>
#include <QTest>

#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora::test {

/// Central European time: one hour ahead of universal time, two in summer.
inline void useCentralEuropeanTime() {
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
}

/// An empty library, a folder for logs, and what loads them.
struct LogDesk {
    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    ErrorSheet errors{[this]() -> Window & { return window; }};
    std::vector<std::string> messages; ///< what the error sheet has shown
    Connection heard = errors.opened.connect([this] {
        messages.push_back(errors.errorHeader.text.get() + " " + errors.errorText.text.get());
    });
    Gps gps{context, progress, errors};
    mutable std::optional<QTemporaryDir> folder; ///< made when it is first asked for

    std::filesystem::path pathOf(std::string_view name) const {
        if (!folder) {
            folder.emplace();
        }
        return std::filesystem::path(folder->path().toStdString()) / name;
    }
    std::filesystem::path write(std::string_view name, std::string_view bytes) const {
        return put(pathOf(name), bytes);
    }
    LogReport load(std::string_view bytes, LogReading reading = LogReading::Exact) {
        gps.setReading(reading);
        progress.showProgressWindow("Loading", "", 1);
        return gps.loadLog(write("log", bytes));
    }

    /// A word for each point: lat/lon/alt/time/point_id/track_id, "-" for what is absent. Times are
    /// universal time, in microseconds where they are not whole seconds.
    std::string points() const {
        std::string words;
        for (const track_part *point : context.fetch<track_part>()) {
            words += words.empty() ? "" : " ";
            words += shown(point->lat()) + '/' + shown(point->lon()) + '/' + shown(point->alt()) +
                     '/' + shown(point->time()) + '/' + std::to_string(point->point_id().value()) +
                     '/';
            words += point->track() ? std::to_string(point->track()->track_id().value()) : "-";
        }
        return words;
    }

private:
    static std::string shown(const Text &text) { return text.hasValue() ? text.string() : "-"; }
    static std::string shown(const std::optional<Date> &date) {
        if (!date) {
            return "-";
        }
        const auto second = std::chrono::floor<std::chrono::seconds>(*date);
        const auto fraction = (*date - second).count();
        return textFromWallClock(WallClock(second.time_since_epoch()), "%Y-%m-%dT%H:%M:%S") +
               (fraction == 0 ? "" : "+" + std::to_string(fraction) + "us");
    }
};

} // namespace pinmora::test
