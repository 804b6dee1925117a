#include "update/update_test.h"

#include "platform/defaults.h"
#include "platform/property_list.h"
#include "platform/translation.h"
#include "update/check_date.h"
#include "update/proposed_name.h"

#include <algorithm>
#include <utility>

namespace pinmora {
namespace {

constexpr std::string_view dateKey = "versionCheckDate";
constexpr std::chrono::hours betweenChecks{24};

/// In the unit of dates: nanoseconds end in the year 2262.
Date now() {
    return std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
}

} // namespace

bool checksVersionAtStart(const Defaults &defaults) {
    return defaults.text(versionCheckKey).value_or("0") == "0";
}

updateTest::updateTest(Defaults &defaults, std::string bundleVersion,
                       std::chrono::milliseconds timeout)
    : doDownload(theWindow, timeout), defaults_(defaults), bundleVersion_(std::move(bundleVersion)),
      timeout_(timeout) {
    downloadButton.enabled.set(false);
    progIndic.maximum.set(0);
    progIndic.visible.set(false);
    awakeFromNib();
    connections_.push_back(noCheck.on.onChange([this](bool) { checkBoxChange(); }));
    connections_.push_back(downloadButton.pressed.connect([this] { downloadBut(); }));
    connections_.push_back(closeButton.pressed.connect([this] { closeBut(); }));
}

void updateTest::awakeFromNib() {
    if (!defaults_.text(versionCheckKey)) {
        defaults_.setText(versionCheckKey, "0");
        defaults_.synchronize();
    }
    const auto follow = [this] { noCheck.on.set(!checksVersionAtStart(defaults_)); };
    follow();
    settingChanged_ = defaults_.onChange(versionCheckKey, follow);
}

void updateTest::checkBoxChange() {
    defaults_.setText(versionCheckKey, noCheck.on.get() ? "1" : "0");
    defaults_.synchronize();
}

void updateTest::checkNewVersion(const ProgDict &theDict) {
    savePanel.answer({}); // what it was to save is found anew
    menuCheck_ = true;
    downloadButton.enabled.set(false);
    theProgDict_ = theDict;
    theWindow.title.set(filled(translated("update", "%1 - version check"), {progName()}));
    theMessage.text.set("");
    theMessageHeader.text.set("");
    progText.text.set(translated("update", "Checking..."));
    progIndic.visible.set(true);
    progIndic.animating.set(true);
    theWindow.makeKeyAndOrderFront();
    newVersion(ProgDict(theProgDict_));
}

void updateTest::newVersion(const ProgDict &description) {
    theProgDict_ = description;
    if (textIn(theProgDict_, "progPlist").empty()) {
        if (menuCheck_) {
            showFailure(translated("update", "No address for version information is set. The "
                                             "preferences take one."));
        }
        return;
    }
    if (isDue()) {
        defaults_.setText(dateKey, checkDateText(now() + betweenChecks));
        defaults_.synchronize();
        newVersionCheck();
    } else if (menuCheck_) {
        newVersionCheck();
    }
}

bool updateTest::isDue() const {
    const auto date = checkDateFrom(defaults_.text(dateKey).value_or(""));
    return !date || *date < now();
}

void updateTest::newVersionCheck() {
    theConnection_ = UrlConnection::start({.address = textIn(theProgDict_, "progPlist"),
                                           .ignoresCachedData = true,
                                           .timeout = timeout_},
                                          *this);
    if (theConnection_) {
        receivedData_.clear();
    } else {
        didFailWithError(
            translated("update", "The address of the version information is not one on the web."));
    }
}

/// What a server sends along with a bad status is no version information.
void updateTest::didReceiveResponse(const UrlResponse &response) {
    constexpr int ok = 200;
    if (response.statusCode == ok) {
        return;
    }
    theConnection_->cancel();
    if (std::exchange(menuCheck_, false)) {
        showFailure(filled(
            translated(
                "update",
                "The error reported was!  Sorry about that.  The error is a  \"%1\", whatever that "
                "means!  Please try again later or report the error to Velder."),
            {std::to_string(response.statusCode)}));
    }
}

void updateTest::didReceiveData(std::string_view bytes) {
    receivedData_ += bytes;
    if (receivedData_.size() > largestPropertyList) {
        theConnection_->cancel();
        didFailWithError(
            translated("update", "The version information is longer than a megabyte."));
    } else if (menuCheck_) {
        progText.text.set(translated("update", "Receiving data...."));
    }
}

void updateTest::didFailWithError(const std::string &localizedDescription) {
    receivedData_.clear();
    if (menuCheck_) {
        showFailure(filled(translated("update", "The error reported was: \"%1\"."),
                           {localizedDescription}));
    }
}

/// Any other version than the running one is an update: there is no order among versions.
void updateTest::connectionDidFinishLoading() {
    const auto list = PropertyList::fromBytes(std::exchange(receivedData_, {}));
    if (!list) {
        return;
    }
    const auto version = list->string("productVersion");
    if (version == bundleVersion_) {
        if (menuCheck_) {
            showUpToDate();
        }
        return;
    }
    const auto address = list->firstString("productDownloadURL");
    theProgDict_.erase("progDownload");
    const bool canBeFetched = address && webUrl(QByteArray::fromStdString(*address));
    if (canBeFetched) {
        theProgDict_["progDownload"] = *address;
    }
    downloadButton.enabled.set(canBeFetched);
    showUpdate(version.value_or(""));
}

void updateTest::showUpToDate() {
    menuCheck_ = false;
    downloadButton.enabled.set(false);
    theWindow.title.set(filled(translated("update", "%1 - version check complete"), {progName()}));
    theMessage.text.set(
        filled(translated("update",
                          "You are using version %1, which is the most up-to-date version of %2."),
               {bundleVersion_, progName()}));
    theMessageHeader.text.set(filled(translated("update", "%1 is up-to-date"), {progName()}));
    stopAndShow();
}

void updateTest::showUpdate(const std::string &version) {
    theWindow.title.set(
        filled(translated("update", "%1 - version %2 now available"), {progName(), version}));
    theMessage.text.set(
        filled(translated("update", "Version %1 is now available for download from Velder.  To "
                                    "download just click on the download button below."),
               {version}));
    theMessageHeader.text.set(filled(translated("update", "%1 update available"), {progName()}));
    stopAndShow();
}

void updateTest::showFailure(const std::string &message) {
    menuCheck_ = false;
    downloadButton.enabled.set(false);
    theWindow.title.set(filled(translated("update", "%1 - version check failed"), {progName()}));
    theMessage.text.set(message);
    theMessageHeader.text.set(
        filled(translated("update", "%1 version check failed"), {progName()}));
    stopAndShow();
}

void updateTest::stopAndShow() {
    progText.text.set("");
    progIndic.visible.set(false);
    progIndic.animating.set(false);
    theWindow.makeKeyAndOrderFront();
}

void updateTest::downloadBut() {
    menuCheck_ = false;
    savePanel.title = filled(translated("update", "Download %1"), {progName()});
    savePanel.nameFieldStringValue = proposedName(textIn(theProgDict_, "progDownload"));
    savePanel.beginSheet(theWindow, [this](SavePanel &panel, int returnCode) {
        savePanelDidEnd(panel, returnCode);
    });
}

void updateTest::savePanelDidEnd(SavePanel &panel, int returnCode) {
    panel.close();
    if (returnCode == SavePanel::okCode) {
        doDownload.getNewVersion(theProgDict_, panel.filename());
    }
}

void updateTest::closeBut() {
    menuCheck_ = false;
    if (theConnection_) {
        theConnection_->cancel();
    }
    theWindow.close();
}

} // namespace pinmora
