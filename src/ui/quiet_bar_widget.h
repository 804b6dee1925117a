#pragma once

#include "ui/bindings.h"

#include <QFrame>

#include <array>
#include <optional>

class QLabel;
class QPushButton;
class QToolButton;

namespace pinmora {

class ElidedLabel;
class QuietBar;
struct BarMessage;

/// The line under the tool bar; hidden while there is no message.
class QuietBarWidget : public QFrame {
    Q_OBJECT

public:
    /// The bar must outlive it.
    explicit QuietBarWidget(QuietBar &bar, QWidget *parent = nullptr);

private:
    void show(const std::optional<BarMessage> &message);

    QLabel *head_;
    ElidedLabel *text_;
    std::array<QPushButton *, 2> choices_{};
    QLabel *more_; ///< how many messages come after this one
    QToolButton *close_ = nullptr;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
