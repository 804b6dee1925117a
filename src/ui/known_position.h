#pragma once

#include "ui/bindings.h"

#include <QWidget>

#include <functional>

class QPushButton;

namespace pinmora {

struct MatchingOutlets;

/// The two fields for a position that is known, a button that looks for the track point nearest to
/// it, and why what was typed is unfit.
class KnownPosition : public QWidget {
    Q_OBJECT

public:
    /// The outlets must outlive it. `find` is Matcher::guessFromLatLon.
    KnownPosition(MatchingOutlets &outlets, const QString &buttonTitle,
                  const std::function<void()> &find, QWidget *parent = nullptr);

    QPushButton *button() const { return button_; }

private:
    QPushButton *button_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
