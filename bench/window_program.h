#pragma once

#include "log_import.h"

#include "program.h"

#include "persistence/xml_store.h"
#include "platform/defaults.h"
#include "shell/subsystems.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace pinmora::bench {

/// Settings, library and display of a run, which are no person's.
class WindowHome {
public:
    WindowHome() {
        if (!qEnvironmentVariableIsSet("DISPLAY")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
            qputenv(name, folder_.path().toUtf8());
        }
        Defaults settings;
        settings.setText("useWizard", "0"); // measured is the main window
        settings.synchronize();
    }

    std::filesystem::path path() const { return folder_.path().toStdString(); }
    std::filesystem::path storeFile() const { return path() / "Pinmora" / "Pinmora.xml"; }

    /// Copies of a photo, in a folder of their own.
    std::filesystem::path photos(std::size_t count) const {
        const std::filesystem::path folder = path() / "photos";
        std::filesystem::create_directories(folder);
        for (std::size_t i = 0; i < count; ++i) {
            std::filesystem::copy_file(PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG",
                                       folder / (std::to_string(100'000 + i) + ".jpg"),
                                       std::filesystem::copy_options::skip_existing);
        }
        return folder;
    }

    /// A library file with points and photos; the photos' files are there when `folder` has them.
    void writeLibrary(std::size_t photoCount, std::size_t points,
                      const std::filesystem::path &folder) const {
        Library library;
        const LogFiles files;
        library.gps.beginLoad();
        library.gps.loadLog(files.gpx(points));
        for (std::size_t i = 0; i < photoCount; ++i) {
            auto &photo = library.context.insert<image>();
            const std::string name = std::to_string(100'000 + i);
            photo.setImage_name(name);
            photo.setOriginal_name(name);
            photo.setFull_file_path((folder / (name + ".jpg")).string());
            photo.setExtension("jpg");
            photo.setDate("2008:06:01 12:00:00");
            photo.updateLatAndLon({"47.38" + std::to_string(i), "8.54" + std::to_string(i)});
            photo.setCity("Z\u00fcrich");
        }
        std::filesystem::create_directories(storeFile().parent_path());
        if (XmlStore(storeFile()).write(library.context, makeStoreState())) {
            throw std::runtime_error("the library could not be written");
        }
    }

private:
    const QTemporaryDir folder_;
};

/// Seconds of processor time that the calling thread has used.
inline double threadSeconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

/// The middle one of some measurements.
inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace pinmora::bench
