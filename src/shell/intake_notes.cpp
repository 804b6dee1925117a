#include "shell/intake_notes.h"

#include "gps/gps_intake.h"
#include "gps/log_file_types.h"
#include "gps/log_head.h"
#include "persistence/undo_group.h"
#include "photos/photo_intake.h"
#include "photos/photo_types.h"
#include "platform/defaults.h"
#include "platform/translation.h"
#include "shell/log_intake_adapter.h"
#include "store/image.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace pinmora {

namespace {

template <class T>
void append(std::vector<T> &to, const std::vector<T> &from) {
    to.insert(to.end(), from.begin(), from.end());
}

struct Doubles {
    std::vector<image *> photos; ///< their files are those of earlier photos
    std::size_t among = 0;       ///< photos that were asked about and are there
};

/// Looks for doubles among the photos with these serials (rising).
Doubles doublesAmong(const Context &context, const std::vector<std::uint32_t> &serials) {
    Doubles doubles;
    std::unordered_set<std::string_view> files;
    for (image *photo : context.records<image>()) {
        const bool isFirst = files.insert(photo->full_file_path().view()).second;
        if (std::binary_search(serials.begin(), serials.end(), photo->serial())) {
            ++doubles.among;
            if (!isFirst) {
                doubles.photos.push_back(photo);
            }
        }
    }
    return doubles;
}

} // namespace

IntakeNotes::IntakeNotes(Context &context, GpsIntake &gpsIntake, PhotoIntake &photoIntake,
                         const LogIntakeAdapter &logs, PhotoTypes &types, Defaults &defaults,
                         QuietBar &quietBar)
    : context_(context), photoIntake_(photoIntake), logs_(logs), types_(types), defaults_(defaults),
      quietBar_(quietBar) {
    connections_.push_back(gpsIntake.loaded.connect([this](const std::vector<LogReport> &reports) {
        notLoaded_.logs = failedLogsToTell(reports);
        tellOfNotLoaded();
    }));
    connections_.push_back(photoIntake.loaded.connect(
        [this](const IntakeReport &report, const std::vector<image *> &photos) {
            tell(report, photos);
        }));
}

void IntakeNotes::tell(const IntakeReport &report, const std::vector<image *> &photos) {
    if (!std::exchange(isChosen_, false)) {
        passedOver_ = {};
        notLoaded_ = {};
        emptyFolders_.clear();
        serials_.clear();
    }
    gather(report);
    std::transform(photos.begin(), photos.end(), std::back_inserter(serials_),
                   [](const image *photo) { return photo->serial(); });
    tellOfPassedOver();
    tellOfNotLoaded();
    tellOfEmptyFolders();
    tellOfDoubles();
}

void IntakeNotes::gather(const IntakeReport &report) {
    append(passedOver_.files, report.passedOver);
    append(passedOver_.files, report.logsPassedOver);
    append(passedOver_.folders, report.foldersInside);
    for (const std::string &path : report.logsNotAsked) {
        const bool isLog = looksLikeLog(path, LogReading::Tolerant);
        (isLog ? passedOver_.logs : passedOver_.files).push_back(path);
    }
    for (const LeftOutFile &file : report.leftOut) {
        if (file.why == WhyLeftOut::NoKnownType && types_.isMore(file.path)) {
            passedOver_.files.push_back(file.path);
        } else {
            notLoaded_.files.push_back(file);
        }
    }
    append(emptyFolders_, report.emptyFolders);
    append(notLoaded_.folders, report.unreadFolders);
    append(notLoaded_.logs, failedLogsToTell(logs_.reports()));
}

void IntakeNotes::tellOfPassedOver() {
    std::vector<std::string> files = passedOver_.files;
    append(files, passedOver_.logs);
    postOrWithdraw({.subject = "left out",
                    .head = translated("shell", "Left out:"),
                    .text = kindsText(
                        files, passedOver_.folders.size(),
                        [this](const std::string &path) { return types_.isMore(path); },
                        [this](std::string_view type) { return isLoadedExtension(type); }),
                    .choices = choicesForPassedOver(),
                    .dismissed = [this] { passedOver_ = {}; }});
}

std::vector<BarMessage::Choice> IntakeNotes::choicesForPassedOver() {
    constexpr std::size_t most = 2; // what is not offered is after one of these is taken
    std::vector<BarMessage::Choice> choices;
    if (std::any_of(passedOver_.files.begin(), passedOver_.files.end(),
                    [this](const std::string &path) { return types_.isMore(path); })) {
        choices.push_back({translated("shell", "Load Them Too"), [this] { loadMoreTypes(); }});
    }
    if (!passedOver_.folders.empty()) {
        choices.push_back(
            {translated("shell", "Open Folders", "Open Folder", passedOver_.folders.size()),
             [this] { loadToo(std::exchange(passedOver_.folders, {})); }});
    }
    if (!passedOver_.logs.empty() && choices.size() < most) {
        choices.push_back({translated("shell", "Load Logs"),
                           [this] { loadToo(std::exchange(passedOver_.logs, {})); }});
    }
    return choices;
}

void IntakeNotes::tellOfNotLoaded() {
    postOrWithdraw({.subject = "not loaded",
                    .head = translated("shell", "Not loaded:"),
                    .text = notLoadedText(notLoaded_),
                    .choices = {},
                    .dismissed = [this] { notLoaded_ = {}; }});
}

void IntakeNotes::tellOfEmptyFolders() {
    postOrWithdraw({.subject = "empty folders",
                    .head = {},
                    .text = emptyFoldersText(emptyFolders_),
                    .choices = {},
                    .dismissed = [this] { emptyFolders_.clear(); }});
}

void IntakeNotes::tellOfDoubles() {
    const Doubles doubles = doublesAmong(context_, serials_);
    const std::size_t count = doubles.photos.size();
    if (count == 0) {
        serials_.clear();
    }
    postOrWithdraw(
        {.subject = "doubles",
         .head = count > 0 ? doublesText(count, doubles.among) : "",
         .text = count > 0 ? translated("shell", "They are in the list more than once now.",
                                        "It is in the list more than once now.", count)
                           : "",
         .choices = {{translated("shell", "Remove Doubles"), [this] { removeDoubles(); }}},
         .dismissed = [this] { serials_.clear(); }});
}

void IntakeNotes::postOrWithdraw(BarMessage message) {
    if (message.text.empty()) {
        quietBar_.withdraw(message.subject);
    } else {
        quietBar_.post(std::move(message));
    }
}

/// Whether files with this extension, in this case, load without more types.
bool IntakeNotes::isLoadedExtension(std::string_view extension) const {
    return types_.imageSupportDict().contains(extension) || gpsLogTypeTable().contains(extension);
}

void IntakeNotes::loadMoreTypes() {
    std::vector<std::string> rest;
    std::vector<std::string> chosen;
    std::partition_copy(passedOver_.files.begin(), passedOver_.files.end(),
                        std::back_inserter(chosen), std::back_inserter(rest),
                        [this](const std::string &path) { return types_.isMore(path); });
    passedOver_.files = std::move(rest);
    types_.setMorePhotoTypes(true);
    defaults_.setText(morePhotoTypesKey, "1");
    defaults_.synchronize();
    loadToo(chosen);
}

void IntakeNotes::loadToo(const std::vector<std::string> &paths) {
    isChosen_ = true;
    photoIntake_.loadToo(paths);
    isChosen_ = false; // also when another load kept this one from beginning
}

/// What is a double is looked for anew: photos may have gone since, also the earlier ones.
void IntakeNotes::removeDoubles() {
    const UndoGroup group(context_, translated("shell", "Remove Doubles"));
    for (image *photo : doublesAmong(context_, std::exchange(serials_, {})).photos) {
        context_.deleteObject(*photo);
    }
}

} // namespace pinmora
