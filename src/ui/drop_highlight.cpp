#include "ui/drop_highlight.h"

#include "ui/roles.h"
#include "ui/theme.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {

DropHighlight::DropHighlight(dragDropArea &area, const QString &words, QWidget *parent)
    : QFrame(parent) {
    setRole(this, Role::DropOver);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *const label = new QLabel(words, this);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    setRole(label, Role::Title);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    parent->installEventFilter(this);
    hide();
    shadow_ = area.hasShadow.onChange([this](bool on) {
        cover();
        raise();
        setVisible(on);
    });
}

bool DropHighlight::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        cover();
    }
    return QFrame::eventFilter(watched, event);
}

void DropHighlight::cover() {
    setGeometry(parentWidget()->rect().adjusted(spacing, spacing, -spacing, -spacing));
}

} // namespace pinmora
