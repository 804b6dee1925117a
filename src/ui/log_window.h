#pragma once

#include "ui/side_window.h"

class QPlainTextEdit;

namespace pinmora {

class ElidedLabel;
class LogFile;
struct Workspace;

/// The window that shows what has gone wrong, the newest at the end. It reads the log anew each
/// time a person turns to it.
class LogWindow : public SideWindow {
    Q_OBJECT

public:
    /// All but the parent must outlive the window.
    LogWindow(Window &window, const LogFile &log, const Workspace &workspace,
              QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void read();

    const LogFile &log_;
    QPlainTextEdit *text_;
};

} // namespace pinmora
