#include "ui/browser_column.h"

#include "ui/browser_model.h"
#include "ui/theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace pinmora {

BrowserColumn::BrowserColumn(BrowserModel &model, QAbstractItemDelegate &cell,
                             const QModelIndex &folder, QWidget *parent)
    : QListView(parent), model_(model) {
    setModel(&model);
    setRootIndex(folder);
    setItemDelegate(&cell);
    setUniformItemSizes(true); // else each of the rows is measured when they come in
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setViewportMargins(smallGap, smallGap, smallGap, smallGap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    connect(this, &QAbstractItemView::doubleClicked, this, &BrowserColumn::openWanted);
}

void BrowserColumn::enter() {
    setFocus(Qt::OtherFocusReason);
    if (!selectionModel()->hasSelection() && model_.rowCount(rootIndex()) > 0) {
        setCurrentIndex(model_.index(0, 0, rootIndex()));
    }
}

void BrowserColumn::selectionChanged(const QItemSelection &selected,
                                     const QItemSelection &deselected) {
    QListView::selectionChanged(selected, deselected);
    Q_EMIT selectionMade();
}

/// The mark of the current entry comes and goes with the keyboard.
void BrowserColumn::focusInEvent(QFocusEvent *event) {
    QListView::focusInEvent(event);
    viewport()->update();
}

void BrowserColumn::focusOutEvent(QFocusEvent *event) {
    QListView::focusOutEvent(event);
    viewport()->update();
}

void BrowserColumn::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Left:
        Q_EMIT leftWanted();
        break;
    case Qt::Key_Right:
        Q_EMIT rightWanted();
        break;
    case Qt::Key_Down:
    case Qt::Key_Up:
        if (!selectionModel()->hasSelection()) {
            enter(); // the first is current already when the keyboard comes, yet not selected
            break;
        }
        QListView::keyPressEvent(event);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT openWanted();
        break;
    default:
        QListView::keyPressEvent(event);
        return;
    }
    event->accept(); // a sheet around it has a default button
}

QString BrowserColumn::note() const {
    const QModelIndex folder = rootIndex();
    if (!model_.isListed(folder) || model_.rowCount(folder) > 0) {
        return {};
    }
    const std::error_code error = model_.error(folder);
    if (!error) {
        //: in the place of a folder's files
        return tr("Empty");
    }
    if (error == std::errc::permission_denied) {
        return tr("You may not look into this folder");
    }
    return error == std::errc::no_such_file_or_directory ? tr("This folder is no longer there")
                                                         : tr("This folder cannot be read");
}

void BrowserColumn::paintEvent(QPaintEvent *event) {
    QListView::paintEvent(event);
    const QString text = note();
    if (!text.isEmpty()) {
        QPainter painter(viewport());
        painter.setPen(colours().quietText);
        painter.drawText(viewport()->rect().adjusted(smallGap, smallGap, -smallGap, 0),
                         Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, text);
    }
}

} // namespace pinmora
