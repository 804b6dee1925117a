#include "ui/missing_list.h"

#include "platform/scoped_flag.h"
#include "ui/missing_table_model.h"
#include "ui/theme.h"

#include <QHeaderView>

#include <unordered_set>
#include <utility>
#include <vector>

namespace pinmora {

MissingList::MissingList(ArrayController<image> &photos, std::string home, QWidget *parent)
    : QTableView(parent), photos_(photos),
      model_(new MissingTableModel(photos, std::move(home), this)) {
    {
        const ScopedFlag taking(isTaking_); // else nothing would be selected among the photos
        setModel(model_);
    }
    setAccessibleName(tr("Photos that are no longer where they were"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + spacing);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->resizeSection(MissingTableModel::Photo, 26 * spacing);
    connect(model_, &MissingTableModel::followed, this, &MissingList::takeSelection);
    takeSelection();
}

void MissingList::catchUp() {
    model_->catchUp();
}

void MissingList::selectionChanged(const QItemSelection &selected,
                                   const QItemSelection &deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (isTaking_) {
        return;
    }
    std::vector<image *> chosen;
    for (const QModelIndex &index : selectionModel()->selectedRows()) {
        chosen.push_back(model_->photoAt(index.row()));
    }
    photos_.setSelectedObjects(chosen);
}

void MissingList::takeSelection() {
    const ScopedFlag taking(isTaking_);
    const auto &photos = photos_.selectedObjects();
    const std::unordered_set<const image *> chosen(photos.begin(), photos.end());
    QItemSelection selection;
    int first = -1;
    const int count = model_->rowCount();
    for (int row = 0; row < count; ++row) {
        const int from = row;
        while (row < count && chosen.contains(model_->photoAt(row))) {
            ++row;
        }
        if (row > from) { // one range for all, else tens of thousands would be compared in pairs
            selection.append({model_->index(from, MissingTableModel::Photo),
                              model_->index(row - 1, MissingTableModel::Photo)});
            first = first < 0 ? from : first;
        }
    }
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (first >= 0 && !selectionModel()->isRowSelected(currentIndex().row())) {
        selectionModel()->setCurrentIndex(model_->index(first, MissingTableModel::Photo),
                                          QItemSelectionModel::NoUpdate);
        scrollTo(currentIndex());
    }
}

} // namespace pinmora
