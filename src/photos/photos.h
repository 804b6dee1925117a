#pragma once

#include "outlets/controls.h"
#include "photos/intake_report.h"
#include "photos/photo_types.h"
#include "photos/photo_values.h"
#include "platform/image_source.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace pinmora {

class Context;
class LogIntake;

/// The way photos enter the library: files and folders in, one `image` record per photo out.
///
/// Paths are bytes, whatever their encoding; relative ones are taken from the current folder.
/// Photos are only opened for reading. What cannot be loaded is left out and listed, never an
/// error. Nothing looks for duplicates: a photo loaded twice has two records. One thread only.
class Photos {
public:
    /// All must outlive this object.
    Photos(Context &context, LogIntake &logs, const PhotoTypes &types);

    const PhotoTypes &types() const { return types_; }
    bool isPict(std::string_view path) const { return types_.isPict(path); }

    /// Loads what was dropped or opened from the desktop: a photo, a GPS log, or the photos and
    /// logs that stand directly in a folder.
    void processThisPath(std::string_view given);

    /// Loads what was chosen in the open panel: a photo, or the photos directly in a folder.
    void loadPict(std::string_view given);

    /// Makes the record of one photo file. Nothing is told of it, and no place name looked up,
    /// while it is filled. Names of other files are passed over.
    void makePictEntry(const std::string &name, const std::string &folder);

    /// The dictionaries of image 0 of a file; nothing when the file is no readable image.
    std::optional<ImageProperties> getPictDicts(const std::string &path) const {
        return readImageProperties(path);
    }
    std::optional<std::string> getLatFromGPS(const PropertyDictionary &gps) const {
        return pinmora::getLatFromGPS(gps);
    }
    std::optional<std::string> getLonFromGPS(const PropertyDictionary &gps) const {
        return pinmora::getLonFromGPS(gps);
    }
    std::string nullTest(const std::optional<std::string> &value) const {
        return pinmora::nullTest(value);
    }

    /// How the picture lies (Exif 1 to 8), 0 when the file does not say. This and the next four
    /// look into the top dictionary.
    int orientation(const PropertyDictionary &properties) const;
    /// Pixels, 0 when unknown.
    float sizeHeight(const PropertyDictionary &properties) const;
    float sizeWidth(const PropertyDictionary &properties) const;
    /// Pixels per inch, 72 when unknown.
    float dpiHeight(const PropertyDictionary &properties) const;
    float dpiWidth(const PropertyDictionary &properties) const;

    /// The folder that was scanned last.
    const std::string &getTheFilePath() const { return theFilePath_; }
    void setTheFilePath(std::string path) { theFilePath_ = std::move(path); }

    /// What became of everything that was loaded since the last clearReport().
    const IntakeReport &report() const { return report_; }
    void clearReport() { report_ = {}; }

    /// Sent after each photo, with the number of those loaded since the last clearReport().
    Signal<std::size_t> photoLoaded;

    /// Where a photo's new name is typed, in the main window's two tabs.
    TextField newFileName;
    TextField newFileName2;

private:
    template <class TakeEntry>
    void scanFolder(const std::string &folder, TakeEntry takeEntry);
    void takeNamedPhoto(const std::string &path);
    void takeLogFoundByScan(const std::string &path);
    void passOver(const std::string &folder, const std::string &name);
    void leaveOutUnknown(const std::string &path);

    Context &context_;
    LogIntake &logs_;
    const PhotoTypes &types_;
    std::string theFilePath_;
    IntakeReport report_;
};

} // namespace pinmora
