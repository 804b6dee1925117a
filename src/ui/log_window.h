#pragma once

#include "outlets/window.h"
#include "ui/bindings.h"

#include <QWidget>

class QPlainTextEdit;

namespace pinmora {

class ElidedLabel;
class LogFile;
struct Workspace;

/// The window that shows what has gone wrong, the newest at the end. It reads the log anew each
/// time a person turns to it.
class LogWindow : public QWidget {
    Q_OBJECT

public:
    /// All but the parent must outlive the window.
    LogWindow(Window &window, const LogFile &log, const Workspace &workspace,
              QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void read();

    Window &window_;
    const LogFile &log_;
    QPlainTextEdit *text_;
    Bindings bindings_;
};

} // namespace pinmora
