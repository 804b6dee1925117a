#include "ui/lists_splitter.h"

#include <algorithm>

namespace pinmora {

ListsSplitter::ListsSplitter(QWidget *upper, int upperRoom, QWidget *lower, QWidget *parent)
    : QSplitter(Qt::Vertical, parent), upperRoom_(upperRoom) {
    setChildrenCollapsible(false);
    addWidget(upper);
    addWidget(lower);
    connect(this, &QSplitter::splitterMoved, this, &ListsSplitter::keepHeights);
}

void ListsSplitter::setLowerHeight(int height) {
    lowerHeight_ = height;
    share();
}

/// A person may want less of the upper one than it would get.
void ListsSplitter::keepHeights() {
    upperRoom_ = std::min(upperRoom_, sizes().front());
    lowerHeight_ = sizes().back();
}

void ListsSplitter::resizeEvent(QResizeEvent *event) {
    QSplitter::resizeEvent(event);
    share();
}

void ListsSplitter::share() {
    const int both = sizes().front() + sizes().back();
    const int least = widget(1)->minimumSizeHint().height();
    const int lower = std::max(least, std::min(lowerHeight_, both - upperRoom_));
    setSizes({both - lower, lower});
}

} // namespace pinmora
