#pragma once

#include "outlets/observable.h"

#include <functional>

namespace pinmora {

/// Which one object some controls show; null: none. Whoever sets it keeps it alive or takes it out.
template <class T>
class ObjectController {
public:
    T *content() const { return content_.get(); }
    void setContent(T *object) { content_.set(object); }
    [[nodiscard]] Connection onChange(std::function<void(T *)> handler) {
        return content_.onChange([handler = std::move(handler)](T *object) { handler(object); });
    }

private:
    Observable<T *> content_;
};

} // namespace pinmora
