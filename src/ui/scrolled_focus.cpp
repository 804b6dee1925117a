#include "ui/scrolled_focus.h"

#include <QScrollArea>
#include <QScrollBar>

namespace pinmora {

void focusWhileScrollable(QScrollArea &area) {
    area.setFocusPolicy(Qt::NoFocus);
    QObject::connect(area.verticalScrollBar(), &QScrollBar::rangeChanged, &area,
                     [&area](int first, int last) {
                         area.setFocusPolicy(last > first ? Qt::StrongFocus : Qt::NoFocus);
                     });
}

} // namespace pinmora
