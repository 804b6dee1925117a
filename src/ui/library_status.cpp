#include "ui/library_status.h"

#include "platform/translation.h"
#include "ui/roles.h"
#include "ui/sheet_redraw.h"
#include "ui/theme.h"

#include <QLabel>

namespace pinmora {

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
    names_->setText(number == 0
                        ? QString()
                        : QString::fromStdString(translated("ui", "Looking up %Ln place names…",
                                                            "Looking up %Ln place name…", number)));
    names_->setVisible(number > 0);
}

void LibraryStatus::showCounts(const Counts &counts) {
    QStringList words;
    const auto say = [&words](const std::string &text) { words << QString::fromStdString(text); };
    if (counts.photos == 0) {
        words << tr("No photos");
    } else {
        say(translated("ui", "%Ln photos", "%Ln photo", counts.photos));
        //: so many of the photos
        say(translated("ui", "%Ln with a position", "%Ln with a position", counts.withPosition));
    }
    if (counts.tracks > 0) {
        say(translated("ui", "%Ln tracks", "%Ln track", counts.tracks));
        //: of the tracks
        say(translated("ui", "%Ln points", "%Ln point", counts.points));
    }
    counts_->setText(words.join(QStringLiteral("     ")));
}

} // namespace pinmora
