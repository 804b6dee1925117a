#include "ui/photo_table.h"

#include "shell/thumbnails.h"
#include "ui/photo_delegate.h"
#include "ui/photo_drag.h"
#include "ui/photo_filter.h"
#include "ui/photo_header.h"
#include "ui/photo_table_model.h"
#include "ui/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace pinmora {

PhotoTable::PhotoTable(PhotoFilter &filter, PhotoOrder &order, Thumbnails &thumbnails,
                       QMenu &sortMenu, std::function<void()> open, QWidget *parent)
    : QTableView(parent), open_(std::move(open)) {
    auto *const heading = new PhotoHeader(order, sortMenu, this);
    setHorizontalHeader(heading);
    sort_ = heading->sortButton();
    setModel(&filter);
    setItemDelegate(new PhotoDelegate(thumbnails, this));
    for (const int hidden : {PhotoTableModel::Taken, PhotoTableModel::Altitude,
                             PhotoTableModel::Place, PhotoTableModel::Camera}) {
        setColumnHidden(hidden, true);
    }
    heading->setSectionResizeMode(QHeaderView::Fixed);
    heading->setSectionResizeMode(PhotoTableModel::Name, QHeaderView::Stretch);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Photos"));
    connect(this, &QAbstractItemView::doubleClicked, this, [this] { open_(); });
    thumbnailReady_ =
        thumbnails.ready.connect([this](const std::string &) { viewport()->update(); });
    fitToFont();
}

void PhotoTable::fitToFont() {
    verticalHeader()->setDefaultSectionSize(PhotoDelegate::rowHeight(fontMetrics()));
    verticalScrollBar()->setSingleStep(verticalHeader()->defaultSectionSize() / 2);
    fitColumns();
}

/// Where there is little room, times stay readable before places and long names do.
void PhotoTable::fitColumns() {
    const QFontMetrics metrics = fontMetrics();
    QFont bold = font();
    bold.setBold(true);
    const int gap =
        QFontMetrics(bold).horizontalAdvance(QStringLiteral("00:00:00")) + 2 * spacing + 2;
    const int name = PhotoDelegate::textIndent + spacing +
                     metrics.horizontalAdvance(QStringLiteral("28 May 2024 10:03:47"));
    const int shortest =
        metrics.horizontalAdvance(QStringLiteral("47.38402, 8.54671")) + 3 * spacing;
    const int longest =
        metrics.horizontalAdvance(QStringLiteral("-47.38402, -108.54671")) + 3 * spacing;
    const int narrowest = PhotoDelegate::textIndent + spacing +
                          metrics.horizontalAdvance(QStringLiteral("28 May 10:03:47")) +
                          verticalScrollBar()->sizeHint().width();
    const bool isNarrow = mayBeNarrow_ && width() < narrowest + shortest + gap;
    setMinimumWidth(mayBeNarrow_ ? narrowest : narrowest + shortest + gap);
    setColumnHidden(PhotoTableModel::Position, isNarrow);
    setColumnHidden(PhotoTableModel::Gap, isNarrow);
    const int room = viewport()->width() - gap - name;
    const int position = room > longest ? longest + (room - longest) / 2 : std::max(room, shortest);
    horizontalHeader()->resizeSection(PhotoTableModel::Gap, gap);
    horizontalHeader()->resizeSection(PhotoTableModel::Position, position);
}

void PhotoTable::setMayBeNarrow(bool yes) {
    mayBeNarrow_ = yes;
    fitColumns();
}

void PhotoTable::resizeEvent(QResizeEvent *event) {
    fitColumns();
    QTableView::resizeEvent(event);
}

void PhotoTable::changeEvent(QEvent *event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitToFont();
    }
}

/// The mark of the current row comes and goes with the keyboard.
void PhotoTable::focusInEvent(QFocusEvent *event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void PhotoTable::focusOutEvent(QFocusEvent *event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

void PhotoTable::keyPressEvent(QKeyEvent *event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        event->modifiers() == Qt::NoModifier && currentIndex().isValid()) {
        open_();
        event->accept();
        return;
    }
    // The focus has come to a row that is not selected: it would be passed over, and a single photo
    // could not be selected at all.
    const bool steps = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (steps && event->modifiers() == Qt::NoModifier && currentIndex().isValid() &&
        !selectionModel()->hasSelection()) {
        selectRow(currentIndex().row());
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void PhotoTable::mousePressEvent(QMouseEvent *event) {
    QTableView::mousePressEvent(event);
    const QPoint place = event->position().toPoint();
    const bool picks = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                       selectionModel()->isSelected(indexAt(place));
    pressed_ = picks ? std::optional(place) : std::nullopt;
}

void PhotoTable::mouseMoveEvent(QMouseEvent *event) {
    if (pressed_ && event->buttons().testFlag(Qt::LeftButton)) {
        const QPoint way = event->position().toPoint() - *pressed_;
        if (way.manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        pressed_.reset();
        if (2 * std::abs(way.x()) >= std::abs(way.y())) {
            dragPhotos(this, selectionModel()->selectedRows().size());
            return;
        }
    }
    QTableView::mouseMoveEvent(event);
}

void PhotoTable::mouseReleaseEvent(QMouseEvent *event) {
    pressed_.reset();
    QTableView::mouseReleaseEvent(event);
}

} // namespace pinmora
