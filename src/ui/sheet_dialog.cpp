#include "ui/sheet_dialog.h"

#include "ui/sheet_redraw.h"
#include "ui/theme.h"
#include "ui/window_frame.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

/// How long a window system may take to show a dialog before work goes on without it.
constexpr qint64 exposureLimit = 150; // ms

constexpr Qt::WindowFlags sheetFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

} // namespace

SheetDialog::SheetDialog(Sheet &sheet, WidgetOf widgetOf, std::function<void()> cancel,
                         QWidget *owner)
    : QDialog(owner, sheetFlags), sheet_(sheet), widgetOf_(std::move(widgetOf)),
      cancel_(std::move(cancel)), owner_(owner), column_(new QVBoxLayout(this)) {
    setWindowTitle(QStringLiteral("Pinmora"));
    setWindowModality(Qt::WindowModal);
    column_->setContentsMargins(3 * spacing, 2 * spacing, 3 * spacing, 2 * spacing);
    column_->setSpacing(spacing + spacing / 2);
    bindings_.keep(sheet.host().onChange([this](Window *host) { follow(host); }));
    bindings_.keep(sheet.displayed.connect([this] { drawNow(); }));
    bindings_.keep(sheet.madeKey.connect([this] { activateWindow(); }));
}

void SheetDialog::showIfUp() {
    if (sheet_.isUp() && !isVisible()) {
        follow(sheet_.host().get());
    }
}

void SheetDialog::follow(Window *host) {
    hide();
    QWidget *const widget = host ? widgetOf_(*host) : nullptr;
    QWidget *const wanted = widget ? widget : owner_;
    if (host && parentWidget() != wanted) {
        setParent(wanted, sheetFlags);
        setWindowModality(Qt::WindowModal);
    }
    isNew_ = host != nullptr;
    if (host) {
        aboutToShow();
        fit();
        show();
    }
}

/// Just as high as its texts are at its width, as far as there is room. adjustSize() would cut
/// buttons off on small screens.
void SheetDialog::fit() {
    column_->activate();
    const int width = std::max(
        {minimumWidth(), column_->totalMinimumSize().width(), column_->totalSizeHint().width()});
    const int height = column_->hasHeightForWidth() ? column_->totalHeightForWidth(width)
                                                    : column_->totalSizeHint().height();
    const int room = screen()->availableGeometry().height() - usualFrame.height();
    resize(width, std::min(height, std::max(room, column_->totalMinimumSize().height())));
}

/// Asked for in the middle of long work. A dialog that has just come up is waited for: what a
/// person sees first must not be an empty frame.
void SheetDialog::drawNow() {
    redrawDuringWork(true);
    if (!std::exchange(isNew_, false)) {
        return;
    }
    QElapsedTimer waited;
    waited.start();
    while (isVisible() && windowHandle() && !windowHandle()->isExposed() &&
           waited.elapsed() < exposureLimit) {
        redrawDuringWork(true);
    }
}

void SheetDialog::reject() {
    if (cancel_) {
        cancel_();
    }
}

QLabel *SheetDialog::addText(std::optional<Role> role, const QString &text) {
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText); // names of files, above all
    label->setWordWrap(true);
    if (role) {
        setRole(label, *role);
    }
    column_->addWidget(label);
    return label;
}

void SheetDialog::addButtons(const QList<QPushButton *> &left, const QList<QPushButton *> &right) {
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->setContentsMargins(0, spacing, 0, 0);
    for (QPushButton *button : left + right) {
        button->setAutoDefault(false); // Return confirms, wherever the focus is
    }
    for (QPushButton *button : left) {
        row->addWidget(button);
    }
    row->addSpacing(3 * spacing);
    row->addStretch();
    for (QPushButton *button : right) {
        row->addWidget(button);
    }
    column_->addLayout(row);
}

} // namespace pinmora
