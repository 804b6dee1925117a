#pragma once

#include "files.h"
#include "gps/gps.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"
#include "persistence/undo_group.h"
#include "recovery/unsaved_work_keeper.h"
#include "store/image.h"
#include "store/library.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"

#include <QString>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora::test {

/// A run of the program on the library in XDG_DATA_HOME, as far as its records go. Its end is that
/// of a program that quits without saving and without a word.
struct ProgramRun {
    explicit ProgramRun(FileSystem &files = realFileSystem())
        : library(notifications, errors, files), gps(context(), progress, errors),
          keeper(library, gps, files) {
        gps.setImportJournal(&keeper.recorder());
        const UnregisteredChanges startsUp(context());
        if (context().count<offset>() == 0) {
            context().insert<offset>();
        }
    }

    Context &context() { return library.managedObjectContext(); }
    UndoManager &undoManager() { return library.windowWillReturnUndoManager(window); }
    RecoveredWork &recovered() { return keeper.recovered(); }
    std::vector<RecoveryOffer> offers() { return recovered().offers(); }

    /// What a person's action does, and the turn of the event loop that it ends.
    template <class Action>
    void step(Action action) {
        action();
        undoManager().closeStep();
    }
    image &addPhoto(std::string_view name) {
        image *added = nullptr;
        step([&] {
            added = &context().insert<image>();
            added->setImage_name(name);
        });
        return *added;
    }
    void comment(image &photo, std::string_view comment) {
        step([&] { photo.setComments(comment); });
    }
    LogReport import(const std::filesystem::path &log, LogReading reading = LogReading::Exact) {
        const UndoGroup group(context(), "Import");
        gps.setReading(reading);
        return gps.loadLog(log);
    }

    NotificationCentre notifications;
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    ErrorSheet errors{[this]() -> Window & { return window; }};
    std::vector<std::string> messages; ///< what the error sheet has shown
    Connection heard =
        errors.opened.connect([this] { messages.push_back(errors.errorText.text.get()); });
    Library library;
    Gps gps;
    UnsavedWorkKeeper keeper;
};

/// The folder of the library in XDG_DATA_HOME.
inline std::filesystem::path libraryFolder() {
    return std::filesystem::path(qgetenv("XDG_DATA_HOME").toStdString()) / "Pinmora";
}
inline std::filesystem::path currentJournal() {
    return libraryFolder() / "recovery" / "current" / "journal";
}

inline std::string described(const Record &record);

/// A key's value as it would be written by hand.
inline std::string described(const Record &record, const Property &property) {
    const Value value = property.primitive(record);
    if (const Record *other = value.toRecord()) {
        return "(" + described(*other) + ")";
    }
    if (const std::optional<Date> date = value.toDate()) {
        return std::to_string(date->time_since_epoch().count());
    }
    return value.hasValue() ? "\"" + value.toText().string() + "\"" : "-";
}

/// A record with all its values.
inline std::string described(const Record &record) {
    std::string text(record.entity().name());
    for (const Property &property : record.entity().properties()) {
        const bool isHeld =
            property.kind == Property::Kind::Attribute || property.kind == Property::Kind::ToOne;
        text += isHeld ? " " + described(record, property) : "";
    }
    return text;
}

/// All stored records in their order; how they are numbered does not matter.
inline std::vector<std::string> described(const Context &context) {
    std::vector<std::string> lines;
    for (const EntityDescription *entity : context.model().entities()) {
        if (entity->isStored()) {
            for (const Record *record : context.fetch(entity->name())) {
                lines.push_back(described(*record));
            }
        }
    }
    return lines;
}

/// Where two descriptions differ first; "" where they do not.
inline QString difference(const std::vector<std::string> &is,
                          const std::vector<std::string> &should) {
    const auto [a, b] = std::mismatch(is.begin(), is.end(), should.begin(), should.end());
    if (a == is.end() && b == should.end()) {
        return {};
    }
    return QString::fromStdString("is:     " + (a == is.end() ? "" : *a) +
                                  "\nshould: " + (b == should.end() ? "" : *b));
}

/// A log of some points; `salt` makes it another one. Every fourth is NMEA.
inline std::string logText(unsigned salt, int points) {
    const std::string number = std::to_string(10 + salt % 90);
    if (salt % 4 == 0) {
        std::string text;
        for (int i = 0; i < points; ++i) {
            text += "$GPRMC,1205" + std::to_string(10 + i) + ",A,47" + number + ".123,N,008" +
                    number + ".456,E,0.5,054.7,010608,,,A\r\n";
        }
        return text + "\r\n";
    }
    std::string text = "<?xml version=\"1.0\"?><gpx><trk><trkseg>";
    for (int i = 0; i < points; ++i) {
        text += "<trkpt lat=\"47." + number + "\" lon=\"8." + std::to_string(i) +
                "\"><time>2008-06-01T12:" + std::to_string(10 + i) + ":00Z</time></trkpt>";
    }
    return text + "</trkseg></trk></gpx>";
}

/// The names of the photos, with their comments.
inline std::string photos(ProgramRun &program) {
    std::string names;
    for (const image *photo : program.context().records<image>()) {
        names += (names.empty() ? "" : " ") + photo->image_name().string();
        names += photo->comments().hasValue() ? "=" + photo->comments().string() : "";
    }
    return names;
}

inline image &photo(ProgramRun &program, std::string_view name) {
    for (image *one : program.context().records<image>()) {
        if (one->image_name() == name) {
            return *one;
        }
    }
    throw std::runtime_error("no photo " + std::string(name));
}

inline std::string bringBackAll(ProgramRun &program) {
    std::string errors;
    for (const RecoveryOffer &offer : program.offers()) {
        errors += program.recovered().bringBack(offer).value_or("");
    }
    return errors;
}

} // namespace pinmora::test
