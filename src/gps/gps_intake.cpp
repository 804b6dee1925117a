#include "gps/gps_intake.h"

#include "gps/gps.h"
#include "outlets/progress_sheet.h"
#include "persistence/undo_group.h"
#include "platform/defaults.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"

namespace pinmora {

namespace {

constexpr std::string_view folderKey = "gpsDir"; ///< the first log of the last load

} // namespace

GpsIntake::GpsIntake(Context &context, Gps &gps, ProgressSheet &progress, Defaults &defaults,
                     WorkingWindow workingWindow, bool &loadRunning)
    : context_(context), gps_(gps), progress_(progress), defaults_(defaults),
      workingWindow_(std::move(workingWindow)), loadRunning_(loadRunning) {}

void GpsIntake::getGPSFile() {
    if (loadRunning_ || panel.sheet().isUp()) {
        return;
    }
    gps_.beginLoad();
    panel.title = translated("gps", "Load GPS Data");
    panel.typesName = translated("gps", "GPS logs");
    panel.canChooseDirectories = false;
    panel.allowsMultipleSelection = true;
    panel.directory = defaults_.text(folderKey).value_or("");
    panel.allowedTypes.assign(gps_.gpsTypes().begin(), gps_.gpsTypes().end());
    panel.beginSheet(workingWindow_(), [this](OpenPanel &answered, int returnCode) {
        processGPS(answered, returnCode);
    });
}

void GpsIntake::processGPS(OpenPanel &chosen, int returnCode) {
    chosen.close();
    const std::vector<std::string> names = chosen.filenames();
    if (returnCode != OpenPanel::okCode || names.empty() || loadRunning_) {
        return;
    }
    defaults_.setText(folderKey, names.front());
    defaults_.synchronize();
    loaded.emit(load(names));
}

/// Each reader closes the sheet at the end of its log; what comes later is not seen.
std::vector<LogReport> GpsIntake::load(const std::vector<std::string> &names) {
    const ScopedFlag running(loadRunning_);
    context_.commitEditing(); // what is half typed is no part of this step
    const UndoGroup group(context_, translated("gps", "Load GPS Data"));
    const std::string count = std::to_string(names.size());
    std::vector<LogReport> reports;
    progress_.showProgressWindow(translated("gps", "Loading GPS data"), "",
                                 static_cast<double>(names.size()));
    for (const std::string &name : names) {
        progress_.setSubText(filled(translated("gps", "Loading %1 of %2"),
                                    {std::to_string(reports.size() + 1), count}));
        progress_.progressWindowIncrement();
        reports.push_back(gps_.loadLog(name));
        progress_.progressWindowIncrement();
    }
    progress_.closeProgress();
    return reports;
}

} // namespace pinmora
