#pragma once

#include <QIcon>
#include <QWidget>

namespace pinmora {

/// A picture that is always in the colours in force. It says nothing that the words beside it do
/// not: assistive technology hears no label.
class IconLabel : public QWidget {
public:
    /// `side` is in device-independent pixels; it gives way where there is little height.
    IconLabel(const QIcon &picture, int side, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon icon_;
    int side_;
};

} // namespace pinmora
