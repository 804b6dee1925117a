#pragma once

#include "outlets/array_controller.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;
class QTableView;

namespace pinmora {

class Context;
class TrackTableModel;
class track;

/// The list of GPS tracks with its heading, and while there is none, what that means.
class TrackPanel : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive it; `removeAll` removes all GPS data.
    TrackPanel(Context &context, ArrayController<track> &tracks, std::function<void()> removeAll,
               QWidget *parent = nullptr);

    /// Not as its focus proxy: Tab would pass over the button above the table.
    void focusTable();

private:
    void showCounts();

    TrackTableModel *model_;
    QLabel *count_;
    QPushButton *remove_;
    QTableView *table_;
    QLabel *none_;
};

} // namespace pinmora
