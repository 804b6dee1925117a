#pragma once

#include <QSplitter>

namespace pinmora {

/// Two lists one below the other. Where there is little height the lower one gives way first, down
/// to its least; with more of it the lower one has the height back that it was given.
class ListsSplitter : public QSplitter {
    Q_OBJECT

public:
    /// The upper one is to have this height before the lower one has more than its least.
    ListsSplitter(QWidget *upper, int upperRoom, QWidget *lower, QWidget *parent = nullptr);

    void setLowerHeight(int height);
    /// Takes the heights as they are now for what is wanted.
    void keepHeights();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void share();

    int upperRoom_;
    int lowerHeight_ = 0;
};

} // namespace pinmora
