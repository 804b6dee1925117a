#pragma once

#include "ui/bindings.h"

#include <QWidget>

class QVBoxLayout;

namespace pinmora {

struct Subsystems;

/// What the wizard is about to do, in three lines; with an empty library, an outing to try it with.
class WelcomePage : public QWidget {
    Q_OBJECT

public:
    /// Must outlive it.
    explicit WelcomePage(Subsystems &parts, QWidget *parent = nullptr);

private:
    void addLines(QVBoxLayout &column);
    void addSample(QVBoxLayout &column, Subsystems &parts);

    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
