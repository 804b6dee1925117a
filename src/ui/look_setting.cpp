#include "ui/look_setting.h"

#include "platform/defaults.h"
#include "ui/action_table.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace pinmora {
namespace {

constexpr std::string_view lookKey = "appearance";

constexpr std::array looks{
    std::pair(ActionName::FollowDesktop, Appearance::System),
    std::pair(ActionName::LightLook, Appearance::Light),
    std::pair(ActionName::DarkLook, Appearance::Dark),
};

std::string_view wordFor(Appearance look) {
    return look == Appearance::Light ? "light" : look == Appearance::Dark ? "dark" : "desktop";
}

void chooseLook(Defaults &defaults, Appearance look) {
    defaults.setText(lookKey, wordFor(look));
    defaults.synchronize();
    applyTheme(*qApp, look);
}

} // namespace

Appearance appearanceFrom(const Defaults &defaults) {
    const std::string word = defaults.text(lookKey).value_or("");
    return word == "light"  ? Appearance::Light
           : word == "dark" ? Appearance::Dark
                            : Appearance::System;
}

void connectLooks(const Actions &actions, Defaults &defaults, QObject *owner) {
    const Appearance inForce = appearanceFrom(defaults);
    auto *const group = new QActionGroup(owner);
    for (const auto &[name, look] : looks) {
        QAction *const action = actions[name];
        group->addAction(action);
        action->setChecked(look == inForce);
        QObject::connect(action, &QAction::triggered, owner,
                         [&defaults, chosen = look] { chooseLook(defaults, chosen); });
    }
}

} // namespace pinmora
