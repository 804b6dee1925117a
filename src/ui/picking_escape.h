#pragma once

#include "outlets/signal.h"

#include <QObject>

namespace pinmora {

class PointPicking;

/// While a point of the track is to be clicked on the map, Escape gives it up, wherever the
/// keyboard is.
class PickingEscape : public QObject {
    Q_OBJECT

public:
    /// The picking must outlive it.
    PickingEscape(PointPicking &picking, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PointPicking &picking_;
    Connection following_;
};

} // namespace pinmora
