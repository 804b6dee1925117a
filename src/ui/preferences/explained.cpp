#include "ui/preferences/explained.h"

#include "ui/roles.h"
#include "ui/theme.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {

QLabel *sentence(const QString &text) {
    auto *const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    setRole(label, Role::Quiet);
    return label;
}

QVBoxLayout *explained(QAbstractButton *button, const QString &text) {
    button->setAccessibleDescription(text);
    QLabel *const below = sentence(text);
    below->setContentsMargins(besideMark, 0, 0, 0);
    auto *const column = new QVBoxLayout;
    column->setSpacing(smallGap / 2);
    column->addWidget(button, 0, Qt::AlignLeft);
    column->addWidget(below);
    return column;
}

} // namespace pinmora
