#pragma once

#include "outlets/window.h"
#include "ui/bindings.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace pinmora {

class ManualPage;

/// The window with the manual: its pages by title at the side, and the page that is read. All of it
/// comes with the program; nothing is fetched.
class ManualWindow : public QWidget {
    Q_OBJECT

public:
    /// The outlet must outlive the window.
    explicit ManualWindow(Window &window, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void listPages();
    QLayout *makeBar();
    void markPage(const QUrl &source);
    /// Goes to the next place of the words looked for, over the page's end to its begin.
    void find(bool backwards);

    Window &window_;
    QListWidget *contents_;
    ManualPage *page_;
    QLineEdit *words_;
    QLabel *found_;
    Bindings bindings_;
};

} // namespace pinmora
