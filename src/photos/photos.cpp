#include "photos/photos.h"

#include "persistence/undo_group.h"
#include "photos/file_names.h"
#include "photos/folder_listing.h"
#include "photos/log_intake.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "store/image.h"

#include <algorithm>
#include <filesystem>

namespace pinmora {
namespace {

bool isFolder(const std::string &path) {
    std::error_code notReached;
    return std::filesystem::is_directory(path, notReached);
}

/// Whether something is there that is no file: a pipe or a device, which has no end to be read to.
bool isSpecial(const std::string &path) {
    std::error_code notReached;
    const auto status = std::filesystem::status(path, notReached);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

bool isHidden(const std::string &name) {
    return name.starts_with('.');
}

/// Bytes; nothing for what is gone by now.
std::optional<double> sizeOfFile(const std::string &path) {
    std::error_code gone;
    const std::uintmax_t bytes = std::filesystem::file_size(path, gone);
    return gone ? std::nullopt : std::optional(static_cast<double>(bytes));
}

std::string pathIn(const std::string &folder, const std::string &name) {
    return folder + "/" + name;
}

float numberIn(const PropertyDictionary &properties, std::string_view key) {
    return static_cast<float>(properties.number(key).value_or(0));
}

float resolutionIn(const PropertyDictionary &properties, std::string_view key) {
    constexpr float screenResolution = 72;
    const float resolution = numberIn(properties, key);
    return resolution != 0 ? resolution : screenResolution;
}

} // namespace

Photos::Photos(Context &context, LogIntake &logs, const PhotoTypes &types)
    : context_(context), logs_(logs), types_(types) {}

template <class TakeEntry>
void Photos::scanFolder(const std::string &folder, TakeEntry takeEntry) {
    setTheFilePath(folder);
    const FolderListing listing = listFolder(folder);
    for (const std::string &name : listing.names) {
        takeEntry(name);
    }
    for (const std::string &name : listing.folders) {
        if (!isHidden(name)) {
            report_.foldersInside.push_back(pathIn(folder, name));
        }
    }
    if (listing.error) {
        report_.unreadFolders.push_back({folder, listing.error});
    } else if (std::all_of(listing.names.begin(), listing.names.end(), isHidden) &&
               std::all_of(listing.folders.begin(), listing.folders.end(), isHidden)) {
        report_.emptyFolders.push_back(folder);
    }
}

void Photos::processThisPath(std::string_view given) {
    const UndoGroup group(context_, translated("photos", "Add Photos"));
    const std::string path = absolutePath(given);
    if (isFolder(path)) {
        scanFolder(path, [this, &path](const std::string &name) {
            if (isPict(name)) {
                makePictEntry(name, path);
            } else if (logs_.isGPS(name)) {
                takeLogFoundByScan(pathIn(path, name));
            } else {
                passOver(path, name);
            }
        });
    } else if (isPict(path)) {
        takeNamedPhoto(path);
    } else if (logs_.isGPS(path)) {
        logs_.readLog(path);
    } else {
        leaveOutUnknown(path);
    }
}

void Photos::loadPict(std::string_view given) {
    const UndoGroup group(context_, translated("photos", "Add Photos"));
    const std::string path = absolutePath(given);
    if (isFolder(path)) {
        scanFolder(path, [this, &path](const std::string &name) {
            makePictEntry(name, path);
            if (!isPict(name)) {
                passOver(path, name);
            }
        });
    } else {
        takeNamedPhoto(path);
    }
}

void Photos::takeNamedPhoto(const std::string &path) {
    const auto [folder, name] = splitPath(path);
    if (isPict(name)) {
        makePictEntry(name, folder);
    } else if (logs_.isGPS(name) && whyNoImage(path) == WhyLeftOut::NotAnImage) {
        report_.logsNotAsked.push_back(path);
    } else { // perhaps a hidden file, which the whole path does not show
        leaveOutUnknown(path);
    }
}

void Photos::takeLogFoundByScan(const std::string &path) {
    if (isSpecial(path) || !logs_.readLogFoundByScan(path)) {
        report_.logsPassedOver.push_back(path);
    }
}

void Photos::passOver(const std::string &folder, const std::string &name) {
    if (!isHidden(name)) {
        auto &list = logs_.isGPS(name) ? report_.logsNotAsked : report_.passedOver;
        list.push_back(pathIn(folder, name));
    }
}

void Photos::leaveOutUnknown(const std::string &path) {
    const WhyLeftOut why = whyNoImage(path);
    report_.leftOut.push_back(
        {path, why == WhyLeftOut::NotAnImage ? WhyLeftOut::NoKnownType : why});
}

void Photos::makePictEntry(const std::string &name, const std::string &folder) {
    if (!isPict(name)) {
        return;
    }
    const std::string path = pathIn(folder, name);
    const std::optional<ImageProperties> properties = getPictDicts(path);
    if (!properties) {
        report_.leftOut.push_back({path, whyNoImage(path)});
        return;
    }
    newFileName.enabled.set(true);
    newFileName2.enabled.set(true);
    const PhotoValues values = photoValues(name, folder, *properties);
    image &photo = context_.insert<image>();
    photo.setLoading(true);
    for (const auto &[key, value] : values) {
        photo.setValue(value, key);
    }
    photo.setFile_size(sizeOfFile(path));
    photo.setLoading(false);
    photo.setHasChangesFalse();
    context_.commitEditing();
    report_.loaded.push_back(path);
    photoLoaded.emit(report_.loaded.size());
}

int Photos::orientation(const PropertyDictionary &properties) const {
    return leadingInt(nullTest(properties.text("Orientation")));
}

float Photos::sizeHeight(const PropertyDictionary &properties) const {
    return numberIn(properties, "PixelHeight");
}

float Photos::sizeWidth(const PropertyDictionary &properties) const {
    return numberIn(properties, "PixelWidth");
}

float Photos::dpiHeight(const PropertyDictionary &properties) const {
    return resolutionIn(properties, "DPIHeight");
}

float Photos::dpiWidth(const PropertyDictionary &properties) const {
    return resolutionIn(properties, "DPIWidth");
}

} // namespace pinmora
