#pragma once

#include "outlets/controls.h"
#include "outlets/save_panel.h"
#include "outlets/window.h"
#include "platform/notification_centre.h"
#include "platform/url_connection.h"
#include "update/prog_dict.h"
#include "update/version_download.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class Defaults;

/// The setting that says whether a start looks for a newer version: "0" does, "1" does not.
inline constexpr std::string_view versionCheckKey = "versionCheck";
/// By that setting; it does where nothing is set.
bool checksVersionAtStart(const Defaults &defaults);

/// How long a request may go without a byte before it has failed.
inline constexpr std::chrono::milliseconds updateTimeout{60'000};

/// Asks the program's makers which version is the present one, once a day by itself or when a
/// person wants to know, and offers to fetch it. By itself it shows a newer version and nothing
/// else: neither that there is none nor what went wrong.
class updateTest : private UrlConnectionDelegate {
public:
    /// The settings must outlive it. `bundleVersion` is that of the running program.
    updateTest(Defaults &defaults, std::string bundleVersion,
               std::chrono::milliseconds timeout = updateTimeout);
    ~updateTest() override = default;
    updateTest(const updateTest &) = delete;
    updateTest &operator=(const updateTest &) = delete;

    /// A person has asked: shows the window at once, and then whatever comes of it.
    void checkNewVersion(const ProgDict &theDict);
    /// Asks if the daily check is due, or if a person has asked. Without an address nothing happens
    /// that a person has not asked for, and the day is not used up.
    void newVersion(const ProgDict &description);
    /// The save panel has been answered.
    void savePanelDidEnd(SavePanel &panel, int returnCode);
    void closeBut();
    /// Whether a request is under way, also one that nobody sees.
    bool isChecking() const { return theConnection_ && theConnection_->isUnderWay(); }

    Window theWindow;
    TextField theMessage;
    TextField theMessageHeader;
    TextField progText;
    CheckBox noCheck; ///< no check at start
    Button downloadButton;
    Button closeButton;
    ProgressBar progIndic; ///< busy for an unknown time
    SavePanel savePanel;
    versionDownload doDownload;

private:
    void didReceiveResponse(const UrlResponse &response) override;
    void didReceiveData(std::string_view bytes) override;
    void didFailWithError(const std::string &localizedDescription) override;
    void connectionDidFinishLoading() override;

    void awakeFromNib();
    void checkBoxChange();
    void newVersionCheck();
    void downloadBut();
    bool isDue() const;
    std::string progName() const { return textIn(theProgDict_, "progName"); }
    void showUpToDate();
    void showUpdate(const std::string &version);
    void showFailure(const std::string &message);
    void stopAndShow();

    Defaults &defaults_;
    const std::string bundleVersion_;
    const std::chrono::milliseconds timeout_;
    std::string receivedData_;
    ProgDict theProgDict_;
    NotificationCentre::Observation settingChanged_;
    bool menuCheck_ = false; ///< a check that a person asked for is under way
    std::unique_ptr<UrlConnection> theConnection_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
