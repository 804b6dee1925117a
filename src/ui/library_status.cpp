#include "ui/library_status.h"

#include "ui/roles.h"
#include "ui/sheet_redraw.h"
#include "ui/theme.h"

#include <QLabel>
#include <QLocale>

namespace pinmora {
namespace {

QString counted(std::size_t number, const QString &one, const QString &many) {
    return QLocale().toString(static_cast<qulonglong>(number)) + QLatin1Char(' ') +
           (number == 1 ? one : many);
}

} // namespace

LibraryStatus::LibraryStatus(LibraryCounts &counts, Observable<std::size_t> &awaited,
                             StatusLine &statusLine, QWidget *parent)
    : QStatusBar(parent), awaited_(awaited), following_([this] { showAwaited(); }),
      counts_(new QLabel), names_(new QLabel), doing_(new QLabel) {
    setSizeGripEnabled(false);
    counts_->setObjectName(QStringLiteral("counts"));
    counts_->setAccessibleName(tr("What the library holds"));
    doing_->setAccessibleName(tr("What is going on"));
    addWidget(counts_, 1);
    names_->setObjectName(QStringLiteral("awaitedNames"));
    names_->setAccessibleName(tr("Place names that are still to come"));
    setRole(names_, Role::Quiet);
    addPermanentWidget(names_);
    addPermanentWidget(doing_);
    setContentsMargins(spacing, 0, spacing, 0);
    bindings_.watch(counts.counts, [this](const Counts &now) { showCounts(now); });
    bindings_.watch(awaited, [this](std::size_t) { following_.ask(); });
    showAwaited();
    bindings_.watch(statusLine.text, [this](const std::string &text) {
        doing_->setText(text.empty() ? tr("Ready") : QString::fromStdString(text));
    });
    bindings_.keep(statusLine.displayed.connect([] { redrawDuringWork(); }));
}

void LibraryStatus::showAwaited() {
    const std::size_t number = awaited_.get();
    names_->setText(
        number == 0
            ? QString()
            : tr("Looking up %1…").arg(counted(number, tr("place name"), tr("place names"))));
    names_->setVisible(number > 0);
}

void LibraryStatus::showCounts(const Counts &counts) {
    QStringList words;
    if (counts.photos == 0) {
        words << tr("No photos");
    } else {
        words << counted(counts.photos, tr("photo"), tr("photos"))
              << counted(counts.withPosition, tr("with a position"), tr("with a position"));
    }
    if (counts.tracks > 0) {
        words << counted(counts.tracks, tr("track"), tr("tracks"))
              << counted(counts.points, tr("point"), tr("points"));
    }
    counts_->setText(words.join(QStringLiteral("     ")));
}

} // namespace pinmora
