#include "ui/elided_label.h"

#include <QResizeEvent>

namespace pinmora {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void ElidedLabel::setWholeText(const QString &text) {
    whole_ = text;
    setAccessibleName(text);
    updateGeometry();
    shorten();
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("mmmmmmmm")),
            QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(whole_) + 2, QLabel::sizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event) {
    QLabel::resizeEvent(event);
    shorten();
}

void ElidedLabel::shorten() {
    const QString shown = fontMetrics().elidedText(whole_, Qt::ElideRight, width());
    setText(shown);
    setToolTip(shown == whole_ ? QString() : whole_);
}

} // namespace pinmora
