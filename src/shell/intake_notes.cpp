#include "shell/intake_notes.h"

#include "outlets/quiet_bar.h"
#include "persistence/undo_group.h"
#include "photos/photo_intake.h"
#include "photos/photo_types.h"
#include "platform/defaults.h"
#include "shell/intake_words.h"
#include "store/image.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace pinmora {

namespace {

void append(std::vector<std::string> &to, const std::vector<std::string> &from) {
    to.insert(to.end(), from.begin(), from.end());
}

/// Those of the photos with these serials (rising) whose file an earlier photo has already.
std::vector<image *> doublesAmong(const Context &context,
                                  const std::vector<std::uint32_t> &serials) {
    std::vector<image *> doubles;
    std::unordered_set<std::string_view> files;
    for (image *photo : context.records<image>()) {
        const bool isFirst = files.insert(photo->full_file_path().view()).second;
        if (!isFirst && std::binary_search(serials.begin(), serials.end(), photo->serial())) {
            doubles.push_back(photo);
        }
    }
    return doubles;
}

} // namespace

IntakeNotes::IntakeNotes(Context &context, PhotoIntake &photoIntake, PhotoTypes &types,
                         Defaults &defaults, QuietBar &quietBar)
    : context_(context), photoIntake_(photoIntake), types_(types), defaults_(defaults),
      quietBar_(quietBar),
      loaded_(photoIntake.loaded.connect(
          [this](const IntakeReport &report, const std::vector<image *> &photos) {
              tell(report, photos);
          })) {}

void IntakeNotes::tell(const IntakeReport &report, const std::vector<image *> &photos) {
    PassedOver passedOver = std::exchange(left_, {});
    append(passedOver.files, report.passedOver);
    append(passedOver.files, report.logsNotAsked);
    append(passedOver.files, report.logsPassedOver);
    append(passedOver.folders, report.foldersInside);
    for (const LeftOutFile &file : report.leftOut) {
        if (file.why == WhyLeftOut::NoKnownType && types_.isMore(file.path)) {
            passedOver.files.push_back(file.path);
        }
    }
    tellOfPassedOver(std::move(passedOver));
    tellOfUnread(report);
    tellOfDoubles(photos);
}

void IntakeNotes::tellOfPassedOver(PassedOver passedOver) {
    const auto isMore = [this](const std::string &path) { return types_.isMore(path); };
    BarMessage message{.subject = "left out",
                       .head = "Left out:",
                       .text = kindsText(passedOver.files, passedOver.folders.size(), isMore),
                       .choices = {}};
    if (std::any_of(passedOver.files.begin(), passedOver.files.end(), isMore)) {
        message.choices.push_back(
            {"Load Them Too", [this, passedOver] { loadMoreTypes(passedOver); }});
    }
    if (!passedOver.folders.empty()) {
        message.choices.push_back({passedOver.folders.size() == 1 ? "Open Folder" : "Open Folders",
                                   [this, passedOver] { openFolders(passedOver); }});
    }
    postOrWithdraw(std::move(message));
}

void IntakeNotes::tellOfUnread(const IntakeReport &report) {
    const auto isTold = [this](const LeftOutFile &file) {
        return file.why != WhyLeftOut::NoKnownType || !types_.isMore(file.path);
    };
    postOrWithdraw({.subject = "not loaded",
                    .head = "Not loaded:",
                    .text = unreadText(report, isTold),
                    .choices = {}});
}

void IntakeNotes::tellOfDoubles(const std::vector<image *> &photos) {
    std::vector<std::uint32_t> serials;
    std::transform(photos.begin(), photos.end(), std::back_inserter(serials),
                   [](const image *photo) { return photo->serial(); });
    const std::size_t doubles = doublesAmong(context_, serials).size();
    postOrWithdraw({.subject = "doubles",
                    .head = doubles > 0 ? doublesText(doubles, photos.size()) : "",
                    .text = doubles == 1  ? "It is in the list twice now."
                            : doubles > 1 ? "They are in the list twice now."
                                          : "",
                    .choices = {{"Remove Doubles", [this, serials] { removeDoubles(serials); }}}});
}

void IntakeNotes::postOrWithdraw(BarMessage message) {
    if (message.text.empty()) {
        quietBar_.withdraw(message.subject);
    } else {
        quietBar_.post(std::move(message));
    }
}

void IntakeNotes::loadMoreTypes(const PassedOver &passedOver) {
    PassedOver rest{.files = {}, .folders = passedOver.folders};
    std::vector<std::string> chosen;
    std::partition_copy(passedOver.files.begin(), passedOver.files.end(),
                        std::back_inserter(chosen), std::back_inserter(rest.files),
                        [this](const std::string &path) { return types_.isMore(path); });
    types_.setMorePhotoTypes(true);
    defaults_.setText("morePhotoTypes", "1");
    defaults_.synchronize();
    left_ = std::move(rest);
    photoIntake_.loadToo(chosen);
}

void IntakeNotes::openFolders(const PassedOver &passedOver) {
    left_ = {.files = passedOver.files, .folders = {}};
    photoIntake_.loadToo(passedOver.folders);
}

/// What is a double is looked for anew: photos may have gone since, also the earlier ones.
void IntakeNotes::removeDoubles(const std::vector<std::uint32_t> &serials) {
    const UndoGroup group(context_, "Remove Doubles");
    for (image *photo : doublesAmong(context_, serials)) {
        context_.deleteObject(*photo);
    }
}

} // namespace pinmora
