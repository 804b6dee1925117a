#pragma once

#include "outlets/controls.h"
#include "outlets/window.h"
#include "platform/url_connection.h"
#include "update/prog_dict.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace pinmora {

/// Fetches a new version and writes it to a file, while a sheet shows how far it is. One at a time.
class versionDownload : private UrlConnectionDelegate {
public:
    /// The sheet hangs from the window, which must outlive the download.
    versionDownload(Window &window, std::chrono::milliseconds timeout);
    ~versionDownload() override = default;
    versionDownload(const versionDownload &) = delete;
    versionDownload &operator=(const versionDownload &) = delete;

    /// Fetches what "progDownload" names and writes it under the path, which is bytes. A file there
    /// is replaced, and stays as it is if anything fails.
    void getNewVersion(const ProgDict &description, const std::string &path);

    bool isUnderWay() const { return theConnection_ && theConnection_->isUnderWay(); }

    Window &theWindow;
    Sheet theDownloadWindow;
    TextField theStateMessage;
    TextField theMessageHeader;
    TextField theErrorMessage;
    Button stopButton;
    ProgressBar downloadIndic; ///< in kilobytes

private:
    void didReceiveResponse(const UrlResponse &response) override;
    void didReceiveData(std::string_view bytes) override;
    void didFailWithError(const std::string &localizedDescription) override;
    void connectionDidFinishLoading() override;

    void startDownLoad();
    void downloadCancel();
    void writeToDisk();
    void showError(const std::string &message);
    void closeSheet();
    void clearLines();

    const std::chrono::milliseconds timeout_;
    std::string receivedData_;
    std::string contentLength_; ///< kilobytes
    ProgDict theProgDict_;
    std::string fileLocation_;
    bool doDownLoad_ = true; ///< until a person stops it
    bool downloadOK_ = false;
    std::unique_ptr<UrlConnection> theConnection_;
    Connection stopping_;
};

} // namespace pinmora
