#pragma once

#include "ui/bindings.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace pinmora {

class NotificationCentre;
class Pinmora_AppDelegate;
struct Subsystems;

/// The tools of the last page: the log for all photos, and names for the copies.
class EndTool : public QWidget {
    Q_OBJECT

public:
    /// The controller must have been set up, and must outlive it.
    explicit EndTool(Pinmora_AppDelegate &delegate, QWidget *parent = nullptr);

private:
    void addApply(QVBoxLayout &column);
    void addNames(QVBoxLayout &column);
    void showNames();

    Subsystems &parts_;
    NotificationCentre &notifications_;
    QLabel *names_ = nullptr;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
