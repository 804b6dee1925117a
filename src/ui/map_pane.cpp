#include "ui/map_pane.h"

#include "ui/roles.h"
#include "ui/theme.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {

MapPane::MapPane(MapView &view, MakePage makePage, QWidget *parent)
    : QWidget(parent), view_(view), makePage_(std::move(makePage)),
      stack_(new QStackedLayout(this)), ground_(new QWidget), words_(new QLabel),
      again_(new QPushButton(tr("Try Again"))) {
    setAccessibleName(tr("Map"));
    setMinimumSize(20 * spacing, 24 * spacing);
    ground_->setAutoFillBackground(true);
    ground_->setBackgroundRole(QPalette::Window);
    auto *column = new QVBoxLayout(ground_);
    column->addStretch();
    setRole(words_, Role::Quiet);
    words_->setAlignment(Qt::AlignCenter);
    words_->setWordWrap(true);
    column->addWidget(words_);
    column->addWidget(again_, 0, Qt::AlignHCenter);
    column->addStretch();
    stack_->addWidget(ground_);
    connect(again_, &QPushButton::clicked, this, [this] { page_->loadAgain(); });
    say(tr("The map appears here."));
    if (makePage_) {
        ground_->installEventFilter(this);
    }
}

/// The ground is painted: the window stands, and what is slow may begin.
bool MapPane::eventFilter(QObject *watched, QEvent *event) {
    if (watched == ground_ && event->type() == QEvent::Paint) {
        ground_->removeEventFilter(this);
        QTimer::singleShot(0, this, &MapPane::addPage);
    }
    return QWidget::eventFilter(watched, event);
}

void MapPane::addPage() {
    page_ = makePage_(view_, this);
    stack_->addWidget(page_);
    connect(page_, &MapPage::loadStarted, this, [this] { say(tr("The map is loading…")); });
    connect(page_, &MapPage::loadFinished, this, [this](bool ok) {
        if (ok) {
            stack_->setCurrentWidget(page_);
            takeItsTurn();
        } else {
            say(tr("The map could not be loaded. Photos can still be placed by coordinates and by "
                   "logs."),
                true);
        }
    });
    page_->begin();
}

/// The page was made long after what stands below it: Tab would come to it last.
void MapPane::takeItsTurn() {
    QWidget *before = again_;
    for (auto *const one : page_->findChildren<QWidget *>()) {
        if ((one->focusPolicy() & Qt::TabFocus) != 0) {
            setTabOrder(before, one);
            before = one;
        }
    }
}

void MapPane::say(const QString &text, bool offersAgain) {
    words_->setText(text);
    again_->setVisible(offersAgain);
    stack_->setCurrentWidget(ground_);
}

} // namespace pinmora
