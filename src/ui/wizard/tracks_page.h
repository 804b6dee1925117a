#pragma once

#include "ui/bindings.h"

#include <QWidget>

namespace pinmora {

class Pinmora_AppDelegate;

/// The tracks of the logs that have been loaded, and while there are none, where to drop them.
class TracksPage : public QWidget {
    Q_OBJECT

public:
    /// The controller must have been set up, and must outlive it.
    explicit TracksPage(Pinmora_AppDelegate &delegate, QWidget *parent = nullptr);

private:
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
