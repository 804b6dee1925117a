#include "ui/manual_window.h"

#include "ui/manual_page.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <QVBoxLayout>

namespace pinmora {
namespace {

/// A file is a page; their names give the order.
QString folder() {
    return QStringLiteral(":/manual/en");
}

QString titleOf(const QString &file) {
    QFile page(file);
    QTextDocument document;
    if (page.open(QIODevice::ReadOnly)) {
        document.setHtml(QString::fromUtf8(page.readAll()));
    }
    return document.metaInformation(QTextDocument::DocumentTitle);
}

QUrl urlOf(const QListWidgetItem *item) {
    return item->data(Qt::UserRole).toUrl();
}

} // namespace

ManualWindow::ManualWindow(Window &window, QWidget *parent)
    : SideWindow(window, parent), contents_(new QListWidget), page_(new ManualPage),
      words_(new QLineEdit), found_(new QLabel(tr("Not on this page"), this)) {
    setWindowTitle(tr("Pinmora - Manual"));
    resize(118 * spacing, 84 * spacing);
    auto *const reading = new QHBoxLayout;
    reading->setSpacing(2 * spacing);
    reading->addWidget(contents_);
    reading->addWidget(page_, 1);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    column->setSpacing(spacing + smallGap);
    column->addLayout(makeBar());
    column->addLayout(reading, 1);
    listPages();
    follow();
}

void ManualWindow::listPages() {
    contents_->setAccessibleName(tr("Contents of the manual"));
    contents_->setSpacing(1);
    setRole(contents_, Role::Pages);
    for (const QString &file : QDir(folder()).entryList({QStringLiteral("*.html")})) {
        const QString path = folder() + QLatin1Char('/') + file;
        auto *const item = new QListWidgetItem(titleOf(path), contents_);
        item->setData(Qt::UserRole, QUrl(QStringLiteral("qrc") + path));
    }
    contents_->setFixedWidth(contents_->sizeHintForColumn(0) + 3 * spacing);
    connect(contents_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item && urlOf(item) != page_->source().adjusted(QUrl::RemoveFragment)) {
            page_->setSource(urlOf(item));
        }
    });
    connect(page_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl &page) { markPage(page); });
    contents_->setCurrentRow(0);
    contents_->setFocus();
}

/// A link or a step back has led to another page.
void ManualWindow::markPage(const QUrl &source) {
    found_->hide();
    const QUrl page = source.adjusted(QUrl::RemoveFragment);
    for (int row = 0; row < contents_->count(); ++row) {
        if (urlOf(contents_->item(row)) == page) {
            contents_->setCurrentRow(row);
        }
    }
}

QLayout *ManualWindow::makeBar() {
    auto *const back = new QPushButton(tr("Back"));
    auto *const forward = new QPushButton(tr("Forward"));
    const auto tie = [this](QPushButton *button, QKeySequence::StandardKey key, auto available,
                            auto go) {
        button->setEnabled(false);
        button->setShortcut(key);
        button->setToolTip(button->shortcut().toString(QKeySequence::NativeText));
        connect(page_, available, button, &QPushButton::setEnabled);
        connect(button, &QPushButton::clicked, page_, go);
    };
    tie(back, QKeySequence::Back, &QTextBrowser::backwardAvailable, &QTextBrowser::backward);
    tie(forward, QKeySequence::Forward, &QTextBrowser::forwardAvailable, &QTextBrowser::forward);
    words_->setPlaceholderText(tr("Find on this page"));
    words_->setAccessibleName(words_->placeholderText());
    words_->setClearButtonEnabled(true);
    words_->setFixedWidth(28 * spacing);
    setRole(found_, Role::Quiet);
    found_->hide();
    connect(words_, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(words_, &QLineEdit::textEdited, found_, &QWidget::hide);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { find(false); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { find(true); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        words_->setFocus(Qt::ShortcutFocusReason);
        words_->selectAll();
    });
    auto *const bar = new QHBoxLayout;
    bar->setSpacing(spacing);
    bar->addWidget(back);
    bar->addWidget(forward);
    bar->addStretch();
    bar->addWidget(found_);
    bar->addWidget(words_);
    return bar;
}

void ManualWindow::find(bool backwards) {
    if (words_->text().isEmpty()) {
        return;
    }
    const auto how = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool isThere = page_->find(words_->text(), how);
    if (!isThere) {
        page_->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
        isThere = page_->find(words_->text(), how);
    }
    found_->setVisible(!isThere);
}

} // namespace pinmora
