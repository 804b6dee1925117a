#include "ui/look_setting.h"

#include "ui/action_table.h"
#include "ui/bindings.h"
#include "ui/theme.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>

#include <array>
#include <utility>

namespace pinmora {
namespace {

constexpr std::array looks{
    std::pair(ActionName::FollowDesktop, Appearance::System),
    std::pair(ActionName::LightLook, Appearance::Light),
    std::pair(ActionName::DarkLook, Appearance::Dark),
};

} // namespace

void connectLooks(const Actions &actions, Preference<Appearance> &appearance, Bindings &bindings) {
    auto *const group = new QActionGroup(actions[ActionName::FollowDesktop]->parent());
    for (const auto &[name, look] : looks) {
        QAction *const action = actions[name];
        group->addAction(action);
        bindings.watch(appearance.value(), [action, own = look](Appearance chosen) {
            action->setChecked(chosen == own);
        });
        QObject::connect(action, &QAction::triggered, action,
                         [&appearance, own = look] { appearance.choose(own); });
    }
    bindings.keep(
        appearance.value().onChange([](Appearance chosen) { applyTheme(*qApp, chosen); }));
}

} // namespace pinmora
