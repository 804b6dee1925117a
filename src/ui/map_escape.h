#pragma once

#include "outlets/observable.h"

#include <QObject>

#include <functional>

namespace pinmora {

/// While a click on the map is waited for, Escape gives that up, wherever the keyboard is in the
/// window worked in. A sheet or a menu that is up has the key first.
class MapEscape : public QObject {
    Q_OBJECT

public:
    /// `waits` must outlive it.
    MapEscape(Observable<bool> &waits, std::function<void()> giveUp, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const std::function<void()> giveUp_;
    Connection following_;
};

} // namespace pinmora
