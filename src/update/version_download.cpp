#include "update/version_download.h"

#include "platform/atomic_file.h"
#include "platform/translation.h"

#include <algorithm>
#include <cstdint>

namespace pinmora {
namespace {

constexpr std::int64_t kilobyte = 1024;
/// A server may say anything; what comes beyond this finds its room as it comes.
constexpr std::int64_t mostReserved = std::int64_t{256} << 20U;

} // namespace

versionDownload::versionDownload(Window &window, std::chrono::milliseconds timeout)
    : theWindow(window), timeout_(timeout),
      stopping_(stopButton.pressed.connect([this] { downloadCancel(); })) {}

void versionDownload::getNewVersion(const ProgDict &description, const std::string &path) {
    doDownLoad_ = true;
    fileLocation_ = path;
    theProgDict_ = description;
    theMessageHeader.text.set(
        filled(translated("update", "Downloading %1"), {textIn(theProgDict_, "progName")}));
    clearLines();
    downloadIndic.value.set(0);
    downloadIndic.visible.set(true);
    downloadIndic.animating.set(true);
    theDownloadWindow.begin(theWindow);
    startDownLoad();
}

void versionDownload::startDownLoad() {
    downloadOK_ = false;
    theConnection_ = UrlConnection::start(
        {.address = textIn(theProgDict_, "progDownload"), .timeout = timeout_}, *this);
    if (theConnection_) {
        receivedData_.clear();
    } else {
        didFailWithError(
            translated("update", "The address of the download is not one on the web."));
    }
}

/// What a server sends along with a bad status is not the file.
void versionDownload::didReceiveResponse(const UrlResponse &response) {
    constexpr int ok = 200;
    downloadOK_ = response.statusCode == ok;
    if (!downloadOK_) {
        theConnection_->cancel();
        showError(filled(translated("update", "The error reported was: \"%1\"."),
                         {std::to_string(response.statusCode)}));
        return;
    }
    const std::int64_t kilobytes = response.contentLength / kilobyte + 1;
    contentLength_ = std::to_string(kilobytes);
    downloadIndic.maximum.set(static_cast<double>(kilobytes));
    receivedData_.reserve(static_cast<std::size_t>(
        std::clamp<std::int64_t>(response.contentLength, 0, mostReserved)));
}

void versionDownload::didReceiveData(std::string_view bytes) {
    receivedData_ += bytes;
    const auto kilobytes = static_cast<std::int64_t>(receivedData_.size()) / kilobyte;
    theStateMessage.text.set(filled(translated("update", "Receiving data.... (%1 kb of %2 kb)"),
                                    {std::to_string(kilobytes), contentLength_}));
    downloadIndic.value.set(static_cast<double>(kilobytes));
    if (!doDownLoad_) {
        theConnection_->cancel();
    }
}

void versionDownload::didFailWithError(const std::string &localizedDescription) {
    showError(
        filled(translated("update", "The error reported was: \"%1\"."), {localizedDescription}));
}

void versionDownload::connectionDidFinishLoading() {
    theStateMessage.text.set("");
    contentLength_.clear();
    if (!receivedData_.empty() && downloadOK_) {
        writeToDisk();
    }
}

/// The disk may keep the main thread for a while, so the line is drawn before.
void versionDownload::writeToDisk() {
    theStateMessage.text.set(translated("update", "Writing to disk!"));
    theDownloadWindow.display();
    const std::error_code error = writeAtomically(fileLocation_, receivedData_);
    std::string().swap(receivedData_);
    clearLines();
    downloadIndic.animating.set(false);
    if (error) {
        theErrorMessage.text.set(translated("update", "Error writing to disk!"));
    } else {
        closeSheet();
    }
}

void versionDownload::downloadCancel() {
    doDownLoad_ = false;
    if (theConnection_) {
        theConnection_->cancel();
    }
    std::string().swap(receivedData_);
    clearLines();
    downloadIndic.animating.set(false);
    closeSheet();
}

void versionDownload::showError(const std::string &message) {
    std::string().swap(receivedData_);
    contentLength_.clear();
    theStateMessage.text.set("");
    theErrorMessage.text.set(message);
    theMessageHeader.text.set(filled(translated("update", "%1 version check failed"),
                                     {textIn(theProgDict_, "progName")}));
    downloadIndic.visible.set(true);
    downloadIndic.animating.set(false);
}

void versionDownload::closeSheet() {
    theDownloadWindow.end();
    theWindow.makeKeyAndOrderFront();
}

void versionDownload::clearLines() {
    theStateMessage.text.set("");
    theErrorMessage.text.set("");
}

} // namespace pinmora
