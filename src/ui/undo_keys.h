#pragma once

#include <QObject>

namespace pinmora {

/// Lets Undo and Redo of the program through where a text field has nothing of its own to take
/// back: it would swallow the keys otherwise.
class UndoKeys : public QObject {
    Q_OBJECT

public:
    /// Watches the whole application while it lives.
    explicit UndoKeys(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace pinmora
