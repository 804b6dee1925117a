#pragma once

#include <QObject>

#include <vector>

class QWidget;

namespace pinmora {

/// F6 leads from one area of a window to the next that is seen, Shift+F6 back: also out of a map,
/// in which Tab has a way of its own to go.
class AreaKeys : public QObject {
    Q_OBJECT

public:
    /// In the order of reading; the areas must outlive it. One arrives at an area's list, else at
    /// its first control.
    AreaKeys(QWidget &window, std::vector<QWidget *> areas);

private:
    void go(int step);

    std::vector<QWidget *> areas_;
};

} // namespace pinmora
