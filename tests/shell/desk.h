#pragma once

#include "persistence/context.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"

#include <QCoreApplication>

#include <filesystem>
#include <string>
#include <vector>

/// The program without its windows, on an empty library of its own.
struct Desk {
    /// Forgets what earlier tests have left: library and settings.
    static void clear() {
        for (const char *folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
            std::filesystem::remove_all(qEnvironmentVariable(folder).toStdString() + "/Pinmora");
        }
    }

    /// It starts in the main window, unless a test says otherwise, and asks nobody for a newer
    /// version.
    explicit Desk(const std::filesystem::path &resources = PINMORA_SOURCE_DIR "/samples")
        : delegate(resources) {
        if (!delegate.defaults.text("useWizard")) {
            delegate.defaults.setText("useWizard", "0");
        }
        delegate.defaults.setText("versionInfoURL", "");
    }

    pinmora::Pinmora_AppDelegate delegate;
    std::vector<std::string> scripts; ///< what the main window's map was told
    pinmora::Connection listening = delegate.interface.webView1.scripts.connect(
        [this](const std::string &script) { scripts.push_back(script); });

    void start() { delegate.awakeFromNib(); }
    pinmora::Subsystems &parts() { return delegate.subsystems(); }
    pinmora::Context &context() { return delegate.library.managedObjectContext(); }
    pinmora::Interface &interface() { return delegate.interface; }

    /// As a load would leave it: with nothing changed by a person.
    pinmora::image &addPhoto(const char *name, const char *time, const char *lat = "",
                             const char *lon = "") {
        auto &photo = context().insert<pinmora::image>();
        photo.setLoading(true);
        photo.setImage_name(name);
        photo.setOriginal_name(name);
        photo.setFull_file_path(std::string("/nowhere/") + name + ".jpg");
        photo.setDate(time);
        photo.setLat(lat);
        photo.setLon(lon);
        photo.setLoading(false);
        photo.setHasChangesFalse();
        return photo;
    }
    void addPoint(const char *time, const char *lat, const char *lon) {
        auto &way = context().insert<pinmora::track>();
        auto &point = context().insert<pinmora::track_part>();
        point.setLat(lat);
        point.setLon(lon);
        point.setTime(time);
        way.addTrack_partObject(point);
    }
    void select(const std::vector<pinmora::image *> &photos) {
        parts().arrays.pictureArray.setSelectedObjects(photos);
        delegate.notifications.post(pinmora::tableSelectionDidChange);
    }
    void endTurn() { QCoreApplication::processEvents(); }
};
