#pragma once

#include "outlets/signal.h"

#include <QMenu>

class QActionGroup;

namespace pinmora {

class PhotoOrder;

/// Offers the keys by which photos can be sorted, and the direction; shows those in force.
class SortMenu : public QMenu {
    Q_OBJECT

public:
    /// The order must outlive it.
    explicit SortMenu(PhotoOrder &order, QWidget *parent = nullptr);

private:
    void addKey(const QString &title, const QString &key);
    void show();

    PhotoOrder &order_;
    QActionGroup *keys_;
    QAction *ascending_;
    QAction *descending_;
    Connection ordered_;
};

} // namespace pinmora
