#include "ui/sort_menu.h"

#include "shell/photo_order.h"
#include "ui/photo_table_model.h"

#include <QActionGroup>

namespace pinmora {

SortMenu::SortMenu(PhotoOrder &order, QWidget *parent)
    : QMenu(tr("Sort By"), parent), order_(order), keys_(new QActionGroup(this)) {
    addKey(tr("Order of Loading"), QString());
    for (int column = 0; column < PhotoTableModel::ColumnCount; ++column) {
        const auto one = static_cast<PhotoTableModel::Column>(column);
        addKey(PhotoTableModel::titleOf(one), QString::fromLatin1(PhotoTableModel::keyOf(one)));
    }
    addSeparator();
    auto *const directions = new QActionGroup(this);
    ascending_ = addAction(tr("Ascending"));
    descending_ = addAction(tr("Descending"));
    for (QAction *direction : {ascending_, descending_}) {
        direction->setCheckable(true);
        directions->addAction(direction);
        connect(direction, &QAction::triggered, this, [this] {
            order_.order.set({.key = order_.order.get().key, .ascending = ascending_->isChecked()});
        });
    }
    ordered_ = order.order.onChange([this](const SortOrder &) { show(); });
    show();
}

void SortMenu::addKey(const QString &title, const QString &key) {
    QAction *const action = addAction(title);
    action->setCheckable(true);
    action->setData(key);
    keys_->addAction(action);
    connect(action, &QAction::triggered, this, [this, key] {
        order_.order.set(
            {.key = key.toStdString(), .ascending = order_.order.get().ascending || key.isEmpty()});
    });
}

void SortMenu::show() {
    const SortOrder &order = order_.order.get();
    const auto actions = keys_->actions();
    for (QAction *action : actions) {
        action->setChecked(action->data().toString().toStdString() == order.key);
    }
    (order.ascending ? ascending_ : descending_)->setChecked(true);
    ascending_->setEnabled(!order.key.empty());
    descending_->setEnabled(!order.key.empty());
}

} // namespace pinmora
