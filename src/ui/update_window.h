#pragma once

#include "ui/bindings.h"

#include <QWidget>

class QLayout;

namespace pinmora {

class updateTest;

/// The window of the update check: what it has found, and what can be done about it. It brings its
/// own sheets along.
class UpdateWindow : public QWidget {
    Q_OBJECT

public:
    /// The check must outlive the window.
    explicit UpdateWindow(updateTest &update, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLayout *makeTexts();
    QLayout *makeButtons();
    void follow();

    updateTest &update_;
    Bindings bindings_;
};

} // namespace pinmora
