#include "ui/column_browser.h"

#include "photos/file_browser.h"
#include "ui/browser_column.h"
#include "ui/browser_model.h"
#include "ui/fs_browser_cell.h"
#include "ui/theme.h"

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace pinmora {
namespace {

constexpr int visibleColumns = 4;

} // namespace

ColumnBrowser::ColumnBrowser(FileBrowserOutlets &outlets, FileBrowser &browser, QWidget *parent)
    : QWidget(parent), view_(outlets.fsBrowser), browser_(browser),
      model_(new BrowserModel(browser.home(), this)), cell_(new FSBrowserCell(this)),
      area_(new QScrollArea(this)), strip_(new QWidget) {
    setAccessibleName(tr("Folders and files in your home folder"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2); // the border, and its round corners
    layout->addWidget(area_);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setWidget(strip_);
    area_->viewport()->installEventFilter(this);
    strip_->installEventFilter(this);
    for (QWidget *ground : {static_cast<QWidget *>(area_->viewport()), strip_}) {
        ground->setBackgroundRole(QPalette::Base);
        ground->setAutoFillBackground(true);
    }
    connect(model_, &BrowserModel::listed, this, &ColumnBrowser::folderListed);
    reloads_ = view_.columnZeroLoaded.connect([this] { reload(); });
}

ColumnBrowser::~ColumnBrowser() = default;

QSize ColumnBrowser::sizeHint() const {
    return {visibleColumns * fontMetrics().averageCharWidth() * 24, fontMetrics().height() * 11};
}

void ColumnBrowser::reload() {
    closeColumnsFrom(0);
    model_->clear();
    mustReload_ = !isVisible();
    if (!mustReload_) {
        openColumn({});
    }
}

void ColumnBrowser::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (mustReload_) {
        reload();
    }
}

void ColumnBrowser::openColumn(const QModelIndex &folder) {
    model_->open(folder);
    auto *const column = new BrowserColumn(*model_, *cell_, folder, strip_);
    column->setAccessibleName(folder.isValid() ? folder.data().toString() : accessibleName());
    column->setFocusPolicy(columns_.empty() ? Qt::StrongFocus : Qt::ClickFocus);
    connectColumn(*column);
    columns_.push_back(column);
    if (columns_.size() == 1) {
        giveKeyboardTo(*column);
    }
    placeColumns();
    column->show();
    revealLastColumn();
}

void ColumnBrowser::connectColumn(BrowserColumn &column) {
    connect(&column, &BrowserColumn::selectionMade, this,
            [this, &column] { takeSelection(column); });
    connect(&column, &BrowserColumn::leftWanted, this, [this, &column] { goLeft(column); });
    connect(&column, &BrowserColumn::rightWanted, this, [this, &column] { goRight(column); });
    connect(&column, &BrowserColumn::openWanted, this, [this, &column] {
        tellSelection(column);
        if (!view_.path().empty()) {
            view_.doubleClicked.emit();
        }
    });
}

void ColumnBrowser::closeColumnsFrom(std::size_t first) {
    while (columns_.size() > first) {
        BrowserColumn *const column = columns_.back();
        columns_.pop_back();
        const QModelIndex folder = column->rootIndex();
        column->disconnect(this);
        column->hide();
        column->setModel(nullptr);
        column->deleteLater(); // it may be the one that is heard now
        model_->close(folder);
        if (entered_ == column) {
            entered_ = nullptr;
        }
    }
    placeColumns();
}

std::size_t ColumnBrowser::positionOf(const BrowserColumn &column) const {
    const auto found = std::find(columns_.begin(), columns_.end(), &column);
    return static_cast<std::size_t>(found - columns_.begin());
}

void ColumnBrowser::takeSelection(BrowserColumn &column) {
    closeColumnsFrom(positionOf(column) + 1);
    giveKeyboardTo(column);
    tellSelection(column);
    const QModelIndexList selected = column.selectionModel()->selectedIndexes();
    if (selected.size() == 1 && selected.front().data(BrowserModel::IsFolder).toBool()) {
        openColumn(selected.front());
    }
}

void ColumnBrowser::tellSelection(const BrowserColumn &column) {
    std::vector<std::string> paths;
    for (const QModelIndex &index : column.selectionModel()->selectedIndexes()) {
        paths.push_back(model_->path(index));
    }
    view_.selection.set(std::move(paths));
}

void ColumnBrowser::giveKeyboardTo(BrowserColumn &column) {
    for (BrowserColumn *one : columns_) {
        one->setFocusPolicy(one == &column ? Qt::StrongFocus : Qt::ClickFocus);
    }
    setFocusProxy(&column);
}

/// What was opened from the folder on the left stays open, with nothing selected in it.
void ColumnBrowser::goLeft(const BrowserColumn &column) {
    const std::size_t position = positionOf(column);
    if (position == 0) {
        return;
    }
    closeColumnsFrom(position + 1);
    BrowserColumn &current = *columns_[position];
    {
        const QSignalBlocker blocker(current);
        current.clearSelection();
        current.setCurrentIndex({});
    }
    BrowserColumn &left = *columns_[position - 1];
    giveKeyboardTo(left);
    left.setFocus(Qt::OtherFocusReason);
    tellSelection(left);
}

void ColumnBrowser::goRight(const BrowserColumn &column) {
    const std::size_t next = positionOf(column) + 1;
    if (next >= columns_.size()) {
        return;
    }
    BrowserColumn &right = *columns_[next];
    if (model_->isListed(right.rootIndex())) {
        right.enter();
    } else {
        entered_ = &right;
    }
}

void ColumnBrowser::folderListed(const QModelIndex &folder) {
    for (BrowserColumn *column : columns_) {
        if (column->rootIndex() == folder) {
            column->viewport()->update();
            browser_.willDisplayCells();
            if (entered_ == column) {
                entered_ = nullptr;
                column->enter();
            }
            return;
        }
    }
}

/// A quarter of the width each, to the pixel.
void ColumnBrowser::placeColumns() {
    const QSize room = area_->viewport()->size();
    const auto edge = [&room](std::size_t column) {
        return static_cast<int>(column) * room.width() / visibleColumns;
    };
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        columns_[i]->setGeometry(edge(i), 0, edge(i + 1) - edge(i) - 1, room.height());
    }
    strip_->resize(std::max(room.width(), edge(columns_.size())), room.height());
    strip_->update();
}

void ColumnBrowser::revealLastColumn() {
    area_->horizontalScrollBar()->setValue(area_->horizontalScrollBar()->maximum());
}

bool ColumnBrowser::eventFilter(QObject *watched, QEvent *event) {
    if (watched == area_->viewport() && event->type() == QEvent::Resize) {
        placeColumns();
    } else if (watched == strip_ && event->type() == QEvent::Paint) {
        QPainter painter(strip_);
        painter.fillRect(strip_->rect(), colours().content);
        for (const BrowserColumn *column : columns_) {
            const QRect place = column->geometry();
            painter.fillRect(QRect(place.right() + 1, 0, 1, place.height()), colours().line);
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ColumnBrowser::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange) {
        cell_->forgetIcons();
    }
}

void ColumnBrowser::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours().line);
    painter.setBrush(colours().content);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

} // namespace pinmora
