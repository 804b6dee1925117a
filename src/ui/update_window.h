#pragma once

#include "ui/side_window.h"

class QLayout;

namespace pinmora {

class updateTest;

/// The window of the update check: what it has found, and what can be done about it. It brings its
/// own sheets along.
class UpdateWindow : public SideWindow {
    Q_OBJECT

public:
    /// The check must outlive the window.
    explicit UpdateWindow(updateTest &update, QWidget *parent = nullptr);

protected:
    void closeAsked() override;

private:
    QLayout *makeTexts();
    QLayout *makeButtons();

    updateTest &update_;
};

} // namespace pinmora
