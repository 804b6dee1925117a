#pragma once

#include "outlets/array_controller.h"
#include "platform/end_of_turn.h"

#include <QModelIndex>

#include <vector>

class QAbstractItemView;

namespace pinmora {

class NotificationCentre;
class PhotoFilter;
class PhotoTableModel;
class image;

/// Keeps what is selected in a view and in the array of photos the same, in both directions, also
/// over sorting and loading.
class PhotoSelection {
public:
    /// All must outlive it; the view shows the filter already. The centre, which may be null, is
    /// told of each new selection: at once of a person's, else in the next turn of the event loop.
    PhotoSelection(QAbstractItemView &view, PhotoTableModel &model, PhotoFilter &filter,
                   ArrayController<image> &pictureArray, NotificationCentre *notifications);
    ~PhotoSelection();
    PhotoSelection(const PhotoSelection &) = delete;
    PhotoSelection &operator=(const PhotoSelection &) = delete;

private:
    void takeOverFromView();
    void follow();
    void showSelected();
    void rememberCurrent();
    void restoreCurrent();
    std::vector<image *> selectedInView() const;
    void keepSeen();
    void tell();

    QAbstractItemView &view_;
    PhotoTableModel &model_;
    PhotoFilter &filter_;
    ArrayController<image> &pictureArray_;
    NotificationCentre *const notifications_;
    bool writing_ = false;           ///< one side is being written by the other
    bool unshown_ = false;           ///< the view may have lost some of it while rows came and went
    bool untold_ = false;            ///< the array has another selection, and nobody has been told
    const image *current_ = nullptr; ///< where the keyboard is; may have gone
    int currentRow_ = 0;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
    std::vector<QMetaObject::Connection> viewConnections_;
};

} // namespace pinmora
