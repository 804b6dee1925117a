#include "saving/name_wait.h"

#include <QTimer>

#include <utility>

namespace pinmora {

NameWait::NameWait(Observable<std::size_t> &awaited, std::chrono::milliseconds patience,
                   std::function<void(std::size_t)> arrived, std::function<void()> over)
    : over_(std::move(over)), allThere_([this] { end(); }), patience_(std::make_unique<QTimer>()),
      arriving_(awaited.onChange([this, tell = std::move(arrived)](std::size_t names) {
          tell(names);
          if (names == 0) {
              allThere_.ask();
          }
      })) {
    patience_->setSingleShot(true);
    QObject::connect(patience_.get(), &QTimer::timeout, patience_.get(), [this] { end(); });
    patience_->start(patience);
}

NameWait::~NameWait() = default;

void NameWait::end() {
    if (!std::exchange(isOver_, true)) {
        arriving_ = {};
        over_();
    }
}

} // namespace pinmora
