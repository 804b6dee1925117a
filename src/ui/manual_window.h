#pragma once

#include "ui/side_window.h"

class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QUrl;

namespace pinmora {

class ManualPage;

/// The window with the manual: its pages by title at the side, and the page that is read. All of it
/// comes with the program; nothing is fetched.
class ManualWindow : public SideWindow {
    Q_OBJECT

public:
    /// The outlet must outlive the window.
    explicit ManualWindow(Window &window, QWidget *parent = nullptr);

private:
    void listPages();
    QLayout *makeBar();
    void markPage(const QUrl &source);
    /// Goes to the next place of the words looked for, over the page's end to its begin.
    void find(bool backwards);

    QListWidget *contents_;
    ManualPage *page_;
    QLineEdit *words_;
    QLabel *found_;
};

} // namespace pinmora
