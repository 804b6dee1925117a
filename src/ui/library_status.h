#pragma once

#include "outlets/status_line.h"
#include "shell/library_counts.h"
#include "ui/bindings.h"
#include "ui/unhurried.h"

#include <QStatusBar>

#include <cstddef>

class QLabel;

namespace pinmora {

/// The line at the bottom: how much the library holds, what is still to come, and what is going on.
class LibraryStatus : public QStatusBar {
    Q_OBJECT

public:
    /// All must outlive it. `awaited` is the number of place names that are still to come.
    LibraryStatus(LibraryCounts &counts, Observable<std::size_t> &awaited, StatusLine &statusLine,
                  QWidget *parent = nullptr);

private:
    void showCounts(const Counts &counts);
    void showAwaited();

    Observable<std::size_t> &awaited_;
    Unhurried following_; ///< names arrive by the thousand
    QLabel *counts_;
    QLabel *names_;
    QLabel *doing_;
    Bindings bindings_;
};

} // namespace pinmora
