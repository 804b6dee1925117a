#pragma once

#include "outlets/window.h"
#include "ui/bindings.h"

#include <QWidget>

#include <functional>

namespace pinmora {

/// A window beside the one that is worked in. It is shown as its outlet has it; its close button
/// and Escape ask for it to be closed.
class SideWindow : public QWidget {
    Q_OBJECT

public:
    /// The window over which it is to come up; null for none.
    using Over = std::function<QWidget *()>;

    /// The outlet must outlive the window. Without `over` the desktop places it.
    explicit SideWindow(Window &window, QWidget *parent = nullptr, Over over = nullptr);

protected:
    /// Shows it as the outlet has it, from now on. Once only, when it is complete.
    void follow();
    /// A person wants it closed.
    virtual void closeAsked() { window_.close(); }

    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    Window &window_;
    Bindings bindings_;

private:
    void comeUp();

    const Over over_;
};

} // namespace pinmora
