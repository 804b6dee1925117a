#include "ui/track_panel.h"

#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/track_table_model.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {
namespace {

QTableView *makeTable(TrackTableModel &model, QWidget *parent) {
    auto *const table = new QTableView(parent);
    table->setModel(&model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setAccessibleName(TrackPanel::tr("GPS tracks"));
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + spacing);
    QHeaderView *const heading = table->horizontalHeader();
    heading->setHighlightSections(false);
    heading->setSectionResizeMode(QHeaderView::Stretch);
    for (const int narrow : {TrackTableModel::Number, TrackTableModel::Points}) {
        heading->setSectionResizeMode(narrow, QHeaderView::Interactive);
    }
    // As high as two rows, and no higher: where there is little room the photos need it.
    table->setMinimumHeight(heading->sizeHint().height() +
                            2 * table->verticalHeader()->defaultSectionSize());
    heading->resizeSection(TrackTableModel::Number, 7 * spacing);
    heading->resizeSection(TrackTableModel::Points, 10 * spacing);
    return table;
}

} // namespace

TrackPanel::TrackPanel(Context &context, ArrayController<track> &tracks,
                       std::function<void()> removeAll, QWidget *parent)
    : QWidget(parent), model_(new TrackTableModel(context, tracks, this)), count_(new QLabel(this)),
      remove_(new QPushButton(tr("Remove All GPS Data"), this)), table_(makeTable(*model_, this)),
      none_(new QLabel(tr("No log yet. Without one, photos can be placed on the map by hand."),
                       this)) {
    auto *const strip = new QFrame(this);
    setRole(strip, Role::Strip);
    strip->setMinimumHeight(35);
    auto *const title = new QLabel(tr("GPS Tracks"), strip);
    setRole(title, Role::Heading);
    setRole(count_, Role::Quiet);
    setRole(remove_, Role::Removal);
    remove_->setAutoDefault(false);
    remove_->setToolTip(tr("Takes all tracks out of the list; the log files stay"));
    connect(remove_, &QPushButton::clicked, this, std::move(removeAll));
    auto *const row = new QHBoxLayout(strip);
    row->setContentsMargins(12, 0, 10, 0);
    row->setSpacing(spacing);
    row->addWidget(title);
    row->addWidget(count_);
    row->addStretch();
    row->addWidget(remove_);

    auto *const ground = new QFrame(this);
    setRole(ground, Role::Content);
    setRole(none_, Role::Quiet);
    none_->setWordWrap(true);
    none_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto *const inside = new QVBoxLayout(ground);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(0);
    none_->setMargin(12);
    inside->addWidget(none_);
    inside->addWidget(table_);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(strip);
    layout->addWidget(ground, 1);
    connect(model_, &QAbstractItemModel::modelReset, this, [this] { showCounts(); });
    showCounts();
}

void TrackPanel::focusTable() {
    table_->setFocus(Qt::OtherFocusReason);
}

void TrackPanel::showCounts() {
    const int tracks = model_->rowCount();
    count_->setText(QLocale().toString(tracks));
    count_->setVisible(tracks > 0);
    remove_->setVisible(tracks > 0);
    table_->setVisible(tracks > 0);
    none_->setVisible(tracks == 0);
}

} // namespace pinmora
