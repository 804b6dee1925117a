#include "shell/old_position_notice.h"

#include "outlets/quiet_bar.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "platform/defaults.h"
#include "platform/image_source.h"
#include "platform/translation.h"
#include "store/image.h"

namespace pinmora {

namespace {

constexpr const char *noticeSubject = "old position";
constexpr std::string_view removesPositionKey = "removeOldPosition";

bool isCoordinate(std::string_view key) {
    return key == "lat" || key == "lon";
}

/// The photo that has lost its position by a change; null when none has.
const image *loserOf(const ValueChange &change) {
    const bool isLoss = &change.record->entity() == &image::description() &&
                        !change.record->isDeleted() && isCoordinate(change.property->name) &&
                        !change.other.toText().view().empty();
    const auto *photo = isLoss ? static_cast<const image *>(change.record) : nullptr;
    return photo && !photo->lat_and_lon() ? photo : nullptr;
}

bool hasPosition(const std::string &file) {
    const auto properties = readImageProperties(file);
    return properties && properties->gps.contains("Latitude") &&
           properties->gps.contains("Longitude");
}

std::string textOf(const std::vector<const image *> &photos) {
    if (photos.size() == 1) {
        return filled(translated("shell", "The saved copy of %1 would still carry the position "
                                          "that is in its file."),
                      {photos.front()->image_name().view()});
    }
    return translated("shell",
                      "The saved copies of %n photos would still carry the positions that are in "
                      "their files.",
                      "The saved copy of %n photo would still carry the position that is in its "
                      "file.",
                      photos.size());
}

} // namespace

OldPositionNotice::OldPositionNotice(Context &context, Defaults &defaults, QuietBar &quietBar)
    : context_(context), defaults_(defaults), quietBar_(quietBar),
      positionsChanged_([this] { tell(); }) {
    context_.addObserver(*this, {.entity = &image::description()});
    context_.undoManager()->addObserver(*this);
}

OldPositionNotice::~OldPositionNotice() {
    context_.undoManager()->removeObserver(*this);
    context_.removeObserver(*this);
}

bool OldPositionNotice::isRemovedAnyway() const {
    return defaults_.text(removesPositionKey) == "1";
}

/// What is taken back does not come here, and neither does what a load fills in.
void OldPositionNotice::didRecord(const UndoStep &part, bool registered) {
    if (!registered || isRemovedAnyway()) {
        return;
    }
    Serials losers;
    for (const UndoStep::Run &run : part.runs()) {
        const auto *changes = std::get_if<UndoStep::Changes>(&run);
        if (!changes) {
            continue;
        }
        for (const ValueChange &change : *changes) {
            const image *const photo = loserOf(change);
            if (photo && losers.insert(photo->serial()).second) {
                waiting_.push_back({photo->serial(), photo->full_file_path().string()});
            }
        }
    }
    lookIntoFiles();
}

void OldPositionNotice::didChange(Record &, std::string_view key) {
    if (!concerned_.empty() && isCoordinate(key)) {
        positionsChanged_.ask();
    }
}

OldPositionNotice::Serials OldPositionNotice::photosWithPosition(const std::vector<File> &files) {
    Serials photos;
    for (const File &file : files) {
        if (hasPosition(file.path)) {
            photos.insert(file.photo);
        }
    }
    return photos;
}

void OldPositionNotice::lookIntoFiles() {
    if (waiting_.empty() || job_.isRunning()) {
        return;
    }
    job_.start([this, files = std::exchange(waiting_, {})]() -> BackgroundJob::Outcome {
        return [this, found = photosWithPosition(files)] {
            concerned_.insert(found.begin(), found.end());
            tell();
            lookIntoFiles();
        };
    });
}

/// Photos that have a position again, or are gone, are not spoken of any more.
void OldPositionNotice::tell() {
    if (concerned_.empty()) {
        return;
    }
    std::vector<const image *> photos;
    Serials still;
    for (const image *photo : context_.records<image>()) {
        if (concerned_.contains(photo->serial()) && !photo->lat_and_lon()) {
            photos.push_back(photo);
            still.insert(photo->serial());
        }
    }
    concerned_ = std::move(still);
    const std::string text = photos.empty() || isRemovedAnyway() ? "" : textOf(photos);
    if (std::exchange(text_, text) == text) {
        return;
    }
    if (text.empty()) {
        concerned_.clear();
        quietBar_.withdraw(noticeSubject);
        return;
    }
    const auto answered = [this] {
        concerned_.clear();
        text_.clear();
    };
    quietBar_.post(
        {.subject = noticeSubject,
         .head = {},
         .text = text,
         .choices = {{translated("shell", "Remove Them There", "Remove It There", photos.size()),
                      [this, answered] {
                          answered();
                          defaults_.setText(removesPositionKey, "1");
                      }}},
         .dismissed = answered});
}

} // namespace pinmora
