#include "ui/photo_panel.h"

#include "ui/drop_highlight.h"
#include "ui/empty_photos.h"
#include "ui/icons.h"
#include "ui/photo_filter.h"
#include "ui/photo_selection.h"
#include "ui/photo_table.h"
#include "ui/photo_table_model.h"
#include "ui/roles.h"
#include "ui/sort_menu.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {
namespace {

QVBoxLayout *seamless(QWidget *widget) {
    auto *const layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

QFrame *makeStrip(Role role, QWidget *parent, QHBoxLayout *&row) {
    auto *const strip = new QFrame(parent);
    setRole(strip, role);
    row = new QHBoxLayout(strip);
    row->setContentsMargins(12, 0, 12, 0);
    row->setSpacing(spacing);
    return strip;
}

QPushButton *flatButton(const QString &title, std::string_view iconName, QWidget *parent) {
    auto *const button = new QPushButton(icon(iconName), title, parent);
    button->setIconSize(QSize(16, 16));
    button->setAutoDefault(false);
    setRole(button, Role::Flat);
    return button;
}

} // namespace

PhotoPanel::PhotoPanel(PhotoPanelParts parts, QWidget *parent)
    : QWidget(parent), parts_(std::move(parts)),
      model_(new PhotoTableModel(parts_.context, parts_.pictureArray, parts_.gaps, parts_.order,
                                 parts_.marks, this)),
      filter_(new PhotoFilter(*model_, this)),
      onlyWithout_(new QAction(tr("Only Without Position"), this)),
      sortMenu_(new SortMenu(parts_.order, this)) {
    onlyWithout_->setCheckable(true);
    connect(onlyWithout_, &QAction::toggled, filter_, &PhotoFilter::setOnlyWithoutPosition);

    // In the order in which the keyboard comes by.
    QWidget *const heading = makeHeading();
    auto *const place = new QWidget(this);
    empty_ = new EmptyPhotos(parts_.addPhotos, parts_.loadLogs, parts_.trySample, place);
    tablePage_ = makeTablePage();
    auto *const inPlace = seamless(place);
    inPlace->addWidget(empty_);
    inPlace->addWidget(tablePage_);
    if (parts_.dropArea) {
        new DropHighlight(*parts_.dropArea, tr("Drop to add photos and logs"), place);
    }

    auto *const layout = seamless(this);
    layout->addWidget(heading);
    layout->addWidget(place, 1);

    setTabOrder(table_->sortButton(), table_);
    selection_ = std::make_unique<PhotoSelection>(*table_, *model_, *filter_, parts_.pictureArray,
                                                  parts_.notifications);
    for (const auto change :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(filter_, change, this, [this] { showCounts(); });
    }
    connect(filter_, &QAbstractItemModel::modelReset, this, [this] { showCounts(); });
    connect(onlyWithout_, &QAction::toggled, this, [this] { showCounts(); });
    showCounts();
}

PhotoPanel::~PhotoPanel() = default;

QMenu *PhotoPanel::sortMenu() const {
    return sortMenu_;
}

void PhotoPanel::selectAll() {
    table_->selectAll();
}

void PhotoPanel::focusList() {
    table_->setFocus(Qt::ShortcutFocusReason);
}

QWidget *PhotoPanel::makeHeading() {
    QHBoxLayout *row = nullptr;
    QFrame *const strip = makeStrip(Role::Strip, this, row);
    strip->setMinimumHeight(35);
    auto *const title = new QLabel(tr("Photos"), strip);
    setRole(title, Role::Heading);
    count_ = new QLabel(strip);
    setRole(count_, Role::Quiet);
    onlyWithoutBox_ = new QCheckBox(tr("Only without position"), strip);
    setRole(onlyWithoutBox_, Role::Quiet);
    onlyWithoutBox_->setToolTip(tr("Hides the photos that have a position; Apply to All still "
                                   "works on them"));
    connect(onlyWithoutBox_, &QCheckBox::toggled, onlyWithout_, &QAction::setChecked);
    connect(onlyWithout_, &QAction::toggled, onlyWithoutBox_, &QCheckBox::setChecked);
    row->addWidget(title);
    row->addWidget(count_);
    row->addStretch();
    row->addWidget(onlyWithoutBox_);
    return strip;
}

QWidget *PhotoPanel::makeTablePage() {
    auto *const page = new QWidget(this);
    table_ = new PhotoTable(*filter_, parts_.order, parts_.thumbnails, *sortMenu_, parts_.fullSize,
                            page);
    table_->setMayBeNarrow(parts_.mayBeNarrow);
    noneSeen_ = makeNoneSeen();
    auto *const layout = seamless(page);
    layout->addWidget(table_, 1);
    layout->addWidget(noneSeen_, 1);
    layout->addWidget(makeFooter());
    return page;
}

QWidget *PhotoPanel::makeNoneSeen() {
    auto *const ground = new QFrame(this);
    setRole(ground, Role::Content);
    auto *const words = new QLabel(tr("Every photo has a position."), ground);
    setRole(words, Role::Quiet);
    auto *const all = new QPushButton(tr("Show All Photos"), ground);
    setRole(all, Role::Link);
    connect(all, &QPushButton::clicked, onlyWithout_, [this] { onlyWithout_->setChecked(false); });
    auto *const layout = new QVBoxLayout(ground);
    layout->addStretch();
    layout->addWidget(words, 0, Qt::AlignHCenter);
    layout->addWidget(all, 0, Qt::AlignHCenter);
    layout->addStretch();
    return ground;
}

QWidget *PhotoPanel::makeFooter() {
    QHBoxLayout *row = nullptr;
    QFrame *const strip = makeStrip(Role::Footer, this, row);
    row->setContentsMargins(5, 3, 5, 3);
    auto *const remove = flatButton(tr("Remove Picture"), "remove", strip);
    remove->setToolTip(tr("Takes the selected photos out of the list; their files stay"));
    auto *const fullSize = flatButton(tr("Full Size"), "full-size", strip);
    fullSize->setToolTip(tr("Shows the first selected photo as large as it is"));
    bindings_.tie(parts_.removePicture, remove);
    connect(fullSize, &QPushButton::clicked, this, parts_.fullSize);
    auto *const removeAction = new QAction(remove->text(), table_);
    bindings_.tie(parts_.removePicture, removeAction);
    auto *const fullSizeAction = new QAction(fullSize->text(), table_);
    connect(fullSizeAction, &QAction::triggered, this, parts_.fullSize);
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);
    table_->addActions({fullSizeAction, removeAction, sortMenu_->menuAction()});

    const auto offer = [this, fullSize, fullSizeAction] {
        const bool hasSelection = table_->selectionModel()->hasSelection();
        fullSize->setEnabled(hasSelection);
        fullSizeAction->setEnabled(hasSelection);
    };
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, fullSize, offer);
    connect(filter_, &QAbstractItemModel::modelReset, fullSize, offer, Qt::QueuedConnection);
    offer();
    row->addWidget(remove);
    row->addWidget(fullSize);
    row->addStretch();
    return strip;
}

void PhotoPanel::showCounts() {
    const int all = model_->rowCount();
    const int seen = filter_->rowCount();
    const QLocale locale;
    //: photos that are seen, of all
    count_->setText(onlyWithout_->isChecked()
                        ? tr("%1 of %2").arg(locale.toString(seen), locale.toString(all))
                        : locale.toString(all));
    count_->setVisible(all > 0);
    onlyWithoutBox_->setVisible(all > 0 && !parts_.mayBeNarrow);
    const bool isFirst = all > 0 && empty_->isVisible();
    empty_->setVisible(all == 0);
    tablePage_->setVisible(all > 0);
    table_->setVisible(seen > 0);
    if (isFirst) {
        focusList(); // or the focus would go on to whatever comes next
    }
    noneSeen_->setVisible(seen == 0);
}

} // namespace pinmora
