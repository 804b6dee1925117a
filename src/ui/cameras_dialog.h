#pragma once

#include "ui/sheet_dialog.h"

#include <vector>

class QScrollArea;
class QVBoxLayout;

namespace pinmora {

class CameraRow;
class Cameras;
class Editing;
struct CameraInUse;

/// The list of the cameras, in which each can be given a clock of its own.
class CamerasDialog : public SheetDialog {
    Q_OBJECT

public:
    /// All must outlive the dialog.
    CamerasDialog(Cameras &cameras, Editing &editing, WidgetOf widgetOf, QWidget *owner);

private:
    void showCameras(const std::vector<CameraInUse> &cameras);

    Cameras &cameras_;
    Editing &editing_;
    QScrollArea *area_;
    QVBoxLayout *list_;
    std::vector<CameraRow *> rows_;
};

} // namespace pinmora
