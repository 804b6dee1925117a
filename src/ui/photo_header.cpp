#include "ui/photo_header.h"

#include "shell/photo_order.h"
#include "ui/icons.h"
#include "ui/photo_delegate.h"
#include "ui/photo_table_model.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QMenu>
#include <QPainter>
#include <QStringList>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace pinmora {
namespace {

using Column = PhotoTableModel::Column;

/// The columns that a section shows always, and those that it names while they decide the order.
struct Section {
    Column section;
    std::vector<Column> shown;
    std::vector<Column> more;
};

const std::vector<Section> &sections() {
    static const std::vector<Section> all{
        {Column::Name, {Column::Name, Column::Taken}, {Column::Camera}},
        {Column::Position, {Column::Position}, {Column::Altitude, Column::Place}},
        {Column::Gap, {Column::Gap}, {}}};
    return all;
}

const Section *sectionAt(int logicalIndex) {
    const auto found =
        std::find_if(sections().begin(), sections().end(),
                     [logicalIndex](const Section &one) { return one.section == logicalIndex; });
    return found == sections().end() ? nullptr : &*found;
}

} // namespace

PhotoHeader::PhotoHeader(PhotoOrder &order, QMenu &menu, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), order_(order), sort_(new QToolButton(this)) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(40);
    sort_->setIcon(quietIcon("sort"));
    sort_->setIconSize(QSize(16, 16));
    sort_->setMenu(&menu);
    sort_->setPopupMode(QToolButton::InstantPopup);
    sort_->setToolTip(tr("Sort the photos"));
    sort_->setAccessibleName(tr("Sort the photos"));
    setRole(sort_, Role::Flat);
    connect(this, &QHeaderView::sectionClicked, this,
            [this](int section) { sortBySection(section); });
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
            [this, &menu](const QPoint &place) { menu.popup(mapToGlobal(place)); });
    ordered_ = order.order.onChange([this](const SortOrder &) { viewport()->update(); });
}

QWidget *PhotoHeader::sortButton() const {
    return sort_;
}

void PhotoHeader::sortBySection(int logicalIndex) {
    const Section *const section = sectionAt(logicalIndex);
    if (!section) {
        return;
    }
    const SortOrder &now = order_.order.get();
    const auto decides = [&now](Column column) {
        return now.key == PhotoTableModel::keyOf(column);
    };
    const bool isInForce = std::any_of(section->shown.begin(), section->shown.end(), decides) ||
                           std::any_of(section->more.begin(), section->more.end(), decides);
    order_.order.set(isInForce ? SortOrder{.key = now.key, .ascending = !now.ascending}
                               : SortOrder{.key = PhotoTableModel::keyOf(section->shown.front())});
}

QString PhotoHeader::titleOf(int logicalIndex) const {
    const Section *const section = sectionAt(logicalIndex);
    if (!section) {
        return {};
    }
    const SortOrder &now = order_.order.get();
    QStringList titles;
    const auto add = [&titles, &now](Column column, bool always) {
        const bool decides = now.key == PhotoTableModel::keyOf(column);
        if (always || decides) {
            const QString arrow = now.ascending ? QStringLiteral(" ↑") : QStringLiteral(" ↓");
            titles << PhotoTableModel::titleOf(column) + (decides ? arrow : QString());
        }
    };
    for (const Column column : section->shown) {
        add(column, true);
    }
    for (const Column column : section->more) {
        add(column, false);
    }
    return titles.join(QStringLiteral(" · "));
}

void PhotoHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int section) const {
    QHeaderView::initStyleOptionForIndex(option, section);
    option->text = titleOf(section);
}

/// The first section's title stands above the names, not above the thumbnails.
void PhotoHeader::paintSection(QPainter *painter, const QRect &rect, int section) const {
    if (section != Column::Name) {
        QHeaderView::paintSection(painter, rect, section);
        return;
    }
    const int indent = PhotoDelegate::textIndent - spacing;
    painter->fillRect(rect, colours().content);
    painter->fillRect(QRect(rect.left(), rect.bottom(), indent, 1), colours().line);
    QHeaderView::paintSection(painter, rect.adjusted(indent, 0, 0, 0), section);
}

void PhotoHeader::resizeEvent(QResizeEvent *event) {
    QHeaderView::resizeEvent(event);
    sort_->setGeometry(PhotoDelegate::margin - 3, 0, 26, height() - 1);
}

} // namespace pinmora
