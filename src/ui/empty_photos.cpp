#include "ui/empty_photos.h"

#include "ui/icons.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {
namespace {

/// A picture that is always in the colours in force.
class IconLabel : public QLabel {
public:
    IconLabel(const QIcon &picture, int side, QWidget *parent)
        : QLabel(parent), icon_(picture), side_(side) {
        setAlignment(Qt::AlignCenter);
        setFixedHeight(side);
    }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        icon_.paint(&painter, QRect((width() - side_) / 2, 0, side_, side_));
    }

private:
    QIcon icon_;
    int side_;
};

QLabel *centred(const QString &text, Role role, QWidget *parent) {
    auto *const label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    setRole(label, role);
    return label;
}

QPushButton *buttonFor(const QString &title, Role role, std::function<void()> act,
                       QWidget *parent) {
    auto *const button = new QPushButton(title, parent);
    setRole(button, role);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, std::move(act));
    return button;
}

} // namespace

EmptyPhotos::EmptyPhotos(std::function<void()> addPhotos, std::function<void()> loadLogs,
                         std::function<void()> trySample, QWidget *parent)
    : QFrame(parent) {
    setRole(this, Role::Content);
    auto *const area = new QFrame(this);
    setRole(area, Role::Dashed);
    area->setMaximumWidth(440);
    area->setAccessibleName(tr("Drop photos or a folder here"));

    auto *const add = buttonFor(tr("Add Photos…"), Role::Default, std::move(addPhotos), area);
    auto *const load = new QPushButton(tr("Load GPS Data…"), area);
    load->setAutoDefault(false);
    connect(load, &QPushButton::clicked, load, std::move(loadLogs));
    auto *const buttons = new QHBoxLayout;
    buttons->setSpacing(spacing + 2);
    buttons->addStretch();
    buttons->addWidget(add);
    buttons->addWidget(load);
    buttons->addStretch();

    auto *const inside = new QVBoxLayout(area);
    inside->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    inside->setSpacing(spacing);
    const auto addAir = [inside](int height) { // gives way in a small window
        inside->addSpacerItem(
            new QSpacerItem(0, height, QSizePolicy::Minimum, QSizePolicy::Preferred));
    };
    addAir(4 * spacing);
    inside->addWidget(new IconLabel(quietIcon("add-photos"), 52, area));
    inside->addSpacing(spacing);
    inside->addWidget(centred(tr("Drop photos or a folder here"), Role::Title, area));
    inside->addWidget(
        centred(tr("and the GPS log of the same outing with them"), Role::Quiet, area));
    inside->addSpacing(spacing);
    inside->addLayout(buttons);
    inside->addSpacing(spacing);
    inside->addWidget(
        buttonFor(tr("Try it with the sample outing"), Role::Link, std::move(trySample), area), 0,
        Qt::AlignHCenter);
    addAir(3 * spacing);

    auto *const around = new QVBoxLayout(this);
    around->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    around->addStretch();
    auto *const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(area, 12);
    middle->addStretch(1);
    around->addLayout(middle);
    around->addStretch();
}

} // namespace pinmora
