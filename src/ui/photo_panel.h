#pragma once

#include "outlets/array_controller.h"
#include "ui/bindings.h"

#include <QWidget>

#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QMenu;

namespace pinmora {

class Context;
class NotificationCentre;
class PhotoFilter;
class PhotoGaps;
class PhotoOrder;
class PhotoSelection;
class PhotoTable;
class PhotoTableModel;
class SaveMarks;
class SortMenu;
class Thumbnails;
class image;
struct dragDropArea;

/// What the list of photos stands on, and what its buttons do. All must outlive the panel.
struct PhotoPanelParts {
    Context &context;
    ArrayController<image> &pictureArray;
    PhotoGaps &gaps;
    PhotoOrder &order;
    SaveMarks *marks = nullptr; ///< null: photos are not marked
    Thumbnails &thumbnails;
    /// Told of each change of the selection; null where another panel of the same list tells it.
    NotificationCentre *notifications;
    dragDropArea *dropArea = nullptr; ///< null: its window shows that files may be dropped
    Button &removePicture;
    std::function<void()> addPhotos;
    std::function<void()> loadLogs{};  ///< null: not offered
    std::function<void()> trySample{}; ///< null: not offered
    std::function<void()> fullSize;    ///< of the first selected photo
    bool mayBeNarrow = false;          ///< where there is little room only names and times are seen
};

/// The list of photos with its heading and buttons, and while there is none, what to do. It takes
/// no drops itself: they are its window's.
class PhotoPanel : public QWidget {
    Q_OBJECT

public:
    explicit PhotoPanel(PhotoPanelParts parts, QWidget *parent = nullptr);
    ~PhotoPanel() override;
    PhotoPanel(const PhotoPanel &) = delete;
    PhotoPanel &operator=(const PhotoPanel &) = delete;

    /// For a menu bar; it follows the order in force and belongs to the panel.
    QMenu *sortMenu() const;
    /// "Only Without Position", checkable; belongs to the panel.
    QAction *onlyWithoutPosition() const { return onlyWithout_; }
    /// Selects the photos that are seen.
    void selectAll();
    /// Takes the keyboard to the list.
    void focusList();

private:
    QWidget *makeHeading();
    QWidget *makeTablePage();
    QWidget *makeNoneSeen();
    QWidget *makeFooter();
    void showCounts();

    PhotoPanelParts parts_;
    PhotoTableModel *model_;
    PhotoFilter *filter_;
    QAction *onlyWithout_;
    SortMenu *sortMenu_;
    QLabel *count_ = nullptr;
    QCheckBox *onlyWithoutBox_ = nullptr;
    PhotoTable *table_ = nullptr;
    QWidget *noneSeen_ = nullptr;
    QWidget *tablePage_ = nullptr;
    QWidget *empty_ = nullptr;
    std::unique_ptr<PhotoSelection> selection_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
