#include "ui/quiet_bar_widget.h"

#include "outlets/quiet_bar.h"
#include "ui/elided_label.h"
#include "ui/icons.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace pinmora {
namespace {

/// Screen readers speak what comes up in this role.
QAccessibleInterface *accessibleBar(const QString &, QObject *object) {
    auto *const bar = qobject_cast<QuietBarWidget *>(object);
    return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

void makeBarsAccessible() {
    static const bool isDone = (QAccessible::installFactory(accessibleBar), true);
    static_cast<void>(isDone);
}

} // namespace

QuietBarWidget::QuietBarWidget(QuietBar &bar, QWidget *parent)
    : QFrame(parent), head_(new QLabel(this)), text_(new ElidedLabel(this)),
      more_(new QLabel(this)) {
    makeBarsAccessible();
    setRole(this, Role::QuietBar);
    setRole(head_, Role::Strong);
    head_->setTextFormat(Qt::PlainText);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(12, 5, spacing, 5);
    row->setSpacing(spacing);
    row->addWidget(head_);
    row->addWidget(text_);
    row->addStretch();
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        choices_[i] = new QPushButton(this);
        choices_[i]->setAutoDefault(false);
        choices_[i]->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where it is
        setRole(choices_[i], Role::Link);
        connect(choices_[i], &QPushButton::clicked, this, [&bar, i] { bar.choose(i); });
        row->addWidget(choices_[i]);
    }
    setRole(more_, Role::Quiet);
    row->addWidget(more_);
    close_ = new QToolButton(this); // after the choices, for the keyboard, too
    close_->setIcon(icon("close"));
    close_->setIconSize(QSize(14, 14));
    close_->setToolTip(tr("Close this message"));
    close_->setAccessibleName(tr("Close this message"));
    close_->setFocusPolicy(Qt::TabFocus);
    setRole(close_, Role::Flat);
    connect(close_, &QToolButton::clicked, this, [&bar] { bar.dismiss(); });
    row->addWidget(close_);
    bindings_.watch(bar.shown(),
                    [this](const std::optional<BarMessage> &message) { show(message); });
    bindings_.watch(bar.waiting(), [this](std::size_t count) {
        more_->setText(tr("%n more", nullptr, static_cast<int>(count)));
        more_->setVisible(count > 0);
    });
}

void QuietBarWidget::show(const std::optional<BarMessage> &message) {
    if (message) {
        head_->setText(QString::fromStdString(message->head));
        head_->setVisible(!message->head.empty());
        text_->setWholeText(QString::fromStdString(message->text));
        for (std::size_t i = 0; i < choices_.size(); ++i) {
            const bool offered = i < message->choices.size();
            if (offered) {
                choices_[i]->setText(QString::fromStdString(message->choices[i].title));
            }
            choices_[i]->setVisible(offered);
        }
        setAccessibleName(tr("Message: %1 %2").arg(head_->text(), text_->accessibleName()));
    }
    setVisible(message.has_value());
    if (message) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace pinmora
