#pragma once

#include "outlets/image_well.h"
#include "platform/background_job.h"

#include <QTimer>

#include <string>

namespace pinmora {

/// The picture of the file that a person looks at, decoded in the background; of several in quick
/// succession only the last counts.
class BrowsedPicture {
public:
    /// Both must outlive it.
    BrowsedPicture(Observable<Picture> &view, Observable<bool> &loading);
    ~BrowsedPicture() = default;
    BrowsedPicture(const BrowsedPicture &) = delete;
    BrowsedPicture &operator=(const BrowsedPicture &) = delete;

    /// Empty for "", and for what is no picture.
    void show(const std::string &path);

private:
    void decodeNext();
    void take(const std::string &path, const Picture &picture);

    Observable<Picture> &view_;
    Observable<bool> &loading_;
    std::string path_;      ///< what the view shows, or will
    bool isWanted_ = false; ///< asked for, and not being decoded yet
    QTimer patience_;
    BackgroundJob job_;
};

} // namespace pinmora
