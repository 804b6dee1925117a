#pragma once

#include <QLabel>

namespace pinmora {

/// One line of text that is shortened to the room there is; whole in the tooltip.
class ElidedLabel : public QLabel {
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setWholeText(const QString &text);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void shorten();

    QString whole_;
};

} // namespace pinmora
