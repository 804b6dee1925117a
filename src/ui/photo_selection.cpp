#include "ui/photo_selection.h"

#include "platform/notification_centre.h"
#include "platform/scoped_flag.h"
#include "shell/inspector.h"
#include "ui/photo_filter.h"
#include "ui/photo_table_model.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>

#include <algorithm>
#include <utility>

namespace pinmora {

PhotoSelection::PhotoSelection(QAbstractItemView &view, PhotoTableModel &model, PhotoFilter &filter,
                               ArrayController<image> &pictureArray,
                               NotificationCentre *notifications)
    : view_(view), model_(model), filter_(filter), pictureArray_(pictureArray),
      notifications_(notifications), endOfTurn_([this] { follow(); }) {
    QItemSelectionModel *const selection = view.selectionModel();
    viewConnections_ = {
        QObject::connect(selection, &QItemSelectionModel::selectionChanged, selection,
                         [this] { takeOverFromView(); }),
        QObject::connect(selection, &QItemSelectionModel::currentChanged, selection,
                         [this] { rememberCurrent(); }),
        QObject::connect(&filter, &QAbstractItemModel::modelReset, selection, [this] {
            showSelected();
            restoreCurrent();
        })};
    connections_.push_back(pictureArray.selectionChanged.connect([this] {
        if (!writing_) {
            untold_ = true;
            endOfTurn_.ask();
        }
    }));
    keepSeen();
    showSelected();
}

PhotoSelection::~PhotoSelection() {
    for (const QMetaObject::Connection &connection : viewConnections_) {
        QObject::disconnect(connection);
    }
}

void PhotoSelection::takeOverFromView() {
    if (writing_) {
        return;
    }
    if (filter_.isChanging()) { // no person has done that
        unshown_ = true;
        endOfTurn_.ask();
        return;
    }
    {
        const ScopedFlag writing(writing_);
        pictureArray_.setSelectedObjects(selectedInView());
    }
    endOfTurn_.ask(); // what was kept in sight may go, but not while the view is at work
    tell();
}

void PhotoSelection::follow() {
    keepSeen();
    if (!untold_) {
        if (std::exchange(unshown_, false)) {
            showSelected();
        }
        return;
    }
    model_.catchUp();
    showSelected();
    unshown_ = false;
    if (const image *const first = pictureArray_.firstSelectedObject()) {
        if (const QModelIndex index = filter_.indexOf(first); index.isValid()) {
            view_.scrollTo(index);
        }
    }
    tell();
}

/// The current row moves with the selection where it is not in it.
void PhotoSelection::showSelected() {
    const ScopedFlag writing(writing_);
    QItemSelection selection;
    for (const image *photo : pictureArray_.selectedObjects()) {
        const QModelIndex index = filter_.indexOf(photo);
        if (!index.isValid()) {
            continue;
        }
        if (!selection.isEmpty() && selection.last().bottom() + 1 == index.row()) {
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        } else {
            selection.append(QItemSelectionRange(index));
        }
    }
    QItemSelectionModel *const model = view_.selectionModel();
    if (!selection.isEmpty() && !selection.contains(model->currentIndex().siblingAtColumn(0))) {
        model->setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
    }
    model->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void PhotoSelection::rememberCurrent() {
    const QModelIndex current = view_.selectionModel()->currentIndex();
    if (current.isValid()) {
        current_ = filter_.photoAt(current);
        currentRow_ = current.row();
    }
}

/// After rows have come and gone the keyboard goes on where it was.
void PhotoSelection::restoreCurrent() {
    if (view_.selectionModel()->currentIndex().isValid() || filter_.rowCount() == 0) {
        return;
    }
    QModelIndex index = filter_.indexOf(current_);
    if (!index.isValid()) {
        index = filter_.index(std::min(currentRow_, filter_.rowCount() - 1), 0);
    }
    view_.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

std::vector<image *> PhotoSelection::selectedInView() const {
    std::vector<image *> photos;
    const QItemSelection selection = view_.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (image *const photo = filter_.photoAt(filter_.index(row, 0))) {
                photos.push_back(photo);
            }
        }
    }
    return photos;
}

void PhotoSelection::keepSeen() {
    const std::vector<image *> &selected = pictureArray_.selectedObjects();
    filter_.keep({selected.begin(), selected.end()});
}

void PhotoSelection::tell() {
    untold_ = false;
    if (notifications_) {
        notifications_->post(tableSelectionDidChange);
    }
}

} // namespace pinmora
