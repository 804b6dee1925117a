#pragma once

#include <QScrollArea>

class QBoxLayout;

namespace pinmora {

/// Holds widgets beside each other as long as there is room, one below the other where there is
/// not, and scrolls what is then too high.
class FittingScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit FittingScrollArea(const QList<QWidget *> &widgets, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    /// Wide enough for each of the widgets: nobody looks for a button beyond an edge.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Whether they now stand below each other, before they do.
    void stackingChanged(bool stacked);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();

    QBoxLayout *row_;
    QList<QWidget *> lines_; ///< between the widgets, while they are beside each other
    int widthOfRow_ = 0;
};

} // namespace pinmora
