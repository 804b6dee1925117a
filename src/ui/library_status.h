#pragma once

#include "outlets/status_line.h"
#include "shell/library_counts.h"
#include "ui/bindings.h"

#include <QStatusBar>

class QLabel;

namespace pinmora {

/// The line at the bottom: how much the library holds, and what is going on.
class LibraryStatus : public QStatusBar {
    Q_OBJECT

public:
    /// Both must outlive it.
    LibraryStatus(LibraryCounts &counts, StatusLine &statusLine, QWidget *parent = nullptr);

private:
    void showCounts(const Counts &counts);

    QLabel *counts_;
    QLabel *doing_;
    Bindings bindings_;
};

} // namespace pinmora
