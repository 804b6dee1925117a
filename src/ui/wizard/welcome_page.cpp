#include "ui/wizard/welcome_page.h"

#include "shell/subsystems.h"
#include "ui/icon_label.h"
#include "ui/icons.h"
#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/wizard/wizard_texts.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <tuple>

namespace pinmora {
namespace {

constexpr int iconSide = 32;

QLabel *lineLabel(Role role, const QString &text) {
    auto *const label = new QLabel(text);
    label->setWordWrap(true);
    setRole(label, role);
    return label;
}

} // namespace

WelcomePage::WelcomePage(Subsystems &parts, QWidget *parent) : QWidget(parent) {
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2 * spacing);
    addLines(*column);
    addSample(*column, parts);
    column->addStretch();
}

void WelcomePage::addLines(QVBoxLayout &column) {
    auto *const frame = new QFrame;
    setRole(frame, Role::Framed);
    auto *const lines = new QVBoxLayout(frame);
    lines->setContentsMargins(3 * spacing, 3 * spacing, 3 * spacing, 3 * spacing);
    lines->setSpacing(3 * spacing);
    for (const auto &[iconName, title, words] :
         {std::tuple("add-photos", tr("Add your photos, and the GPS log of the outing"),
                     tr("No log? You can put photos on the map by hand.")),
          std::tuple("clock", tr("Say whether the camera’s clock was right"),
                     tr("A photo gets the position that the log has for the moment it was taken.")),
          std::tuple("save", tr("Save tagged copies"),
                     tr("The original photos are never touched."))}) {
        auto *const row = new QHBoxLayout;
        row->setSpacing(2 * spacing + smallGap);
        row->addWidget(new IconLabel(accentIcon(iconName), iconSide));
        auto *const texts = new QVBoxLayout;
        texts->setSpacing(smallGap / 2);
        texts->addWidget(lineLabel(Role::Strong, title));
        texts->addWidget(lineLabel(Role::Quiet, words));
        row->addLayout(texts, 1);
        lines->addLayout(row);
    }
    column.addWidget(frame);
}

void WelcomePage::addSample(QVBoxLayout &column, Subsystems &parts) {
    auto *const sample = new QPushButton(tr("Try It With the Sample Outing"), this);
    sample->setToolTip(tr("Loads eight photos and the logs of an outing"));
    sample->setAutoDefault(true);
    setRole(sample, Role::Link);
    connect(sample, &QPushButton::clicked, this, [&parts] { parts.sampleOuting.load(); });
    auto *const held = new QLabel(this);
    setRole(held, Role::Quiet);
    column.addWidget(sample, 0, Qt::AlignLeft);
    column.addWidget(held);
    bindings_.watch(parts.counts.counts, [&parts, sample, held](const Counts &now) {
        const QString words = holdings(now);
        sample->setVisible(words.isEmpty() && parts.sampleOuting.isThere());
        held->setText(words);
        held->setVisible(!words.isEmpty());
    });
}

} // namespace pinmora
