#pragma once

#include <QScrollArea>

namespace pinmora {

/// Holds a widget at its own size as long as there is room, and scrolls it where there is not.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget *content, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace pinmora
