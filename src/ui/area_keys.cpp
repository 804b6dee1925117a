#include "ui/area_keys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QShortcut>
#include <QWidget>

#include <utility>

namespace pinmora {
namespace {

bool takesFocus(const QWidget &widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible();
}

/// Where one arrives in the area; null where there is nothing now.
QWidget *entranceOf(QWidget &area) {
    if (takesFocus(area)) {
        return &area;
    }
    for (auto *const list : area.findChildren<QAbstractItemView *>()) {
        if (takesFocus(*list)) {
            return list;
        }
    }
    for (QWidget *one = area.nextInFocusChain(); one != &area; one = one->nextInFocusChain()) {
        if (area.isAncestorOf(one) && takesFocus(*one)) {
            return one;
        }
    }
    return nullptr;
}

/// What is scrolled follows Tab by itself, and no other way to the focus.
void bringIntoSight(QWidget &control) {
    for (QWidget *around = control.parentWidget(); around; around = around->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(around)) {
            area->ensureWidgetVisible(&control);
        }
    }
}

} // namespace

AreaKeys::AreaKeys(QWidget &window, std::vector<QWidget *> areas)
    : QObject(&window), areas_(std::move(areas)) {
    for (const auto &[keys, step] : {std::pair(QKeySequence(Qt::Key_F6), 1),
                                     std::pair(QKeySequence(Qt::SHIFT | Qt::Key_F6), -1)}) {
        auto *const shortcut = new QShortcut(keys, &window);
        connect(shortcut, &QShortcut::activated, this, [this, way = step] { go(way); });
    }
}

void AreaKeys::go(int step) {
    const int count = static_cast<int>(areas_.size());
    QWidget *const focus = QApplication::focusWidget();
    int at = step > 0 ? -1 : count;
    for (int i = 0; i < count; ++i) {
        const QWidget *const area = areas_.at(static_cast<std::size_t>(i));
        if (focus && (area == focus || area->isAncestorOf(focus))) {
            at = i;
        }
    }
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (QWidget *const entrance = entranceOf(*areas_.at(static_cast<std::size_t>(at)))) {
            entrance->setFocus(Qt::TabFocusReason);
            bringIntoSight(*entrance);
            return;
        }
    }
}

} // namespace pinmora
