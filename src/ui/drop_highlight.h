#pragma once

#include "outlets/drag_drop_area.h"
#include "outlets/signal.h"

#include <QFrame>

namespace pinmora {

/// Lies over its parent while files that may be dropped are over the window.
class DropHighlight : public QFrame {
public:
    /// The area must outlive it.
    DropHighlight(dragDropArea &area, const QString &words, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cover();

    Connection shadow_;
};

} // namespace pinmora
