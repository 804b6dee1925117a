#pragma once

#include <QIcon>
#include <QLabel>

namespace pinmora {

/// A picture that is always in the colours in force.
class IconLabel : public QLabel {
public:
    /// `side` is in device-independent pixels.
    IconLabel(const QIcon &picture, int side, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon icon_;
    int side_;
};

} // namespace pinmora
