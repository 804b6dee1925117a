#include "ui/help_actions.h"

#include "outlets/workspace.h"
#include "shell/version_check.h"
#include "ui/action_table.h"

#include <QAction>

namespace pinmora {
namespace {

void connectLink(QAction *action, const std::string &address, const Workspace &workspace) {
    const bool leadsSomewhere = canOpenAddress(address);
    action->setVisible(leadsSomewhere);
    action->setEnabled(leadsSomewhere); // nor by its shortcut
    QObject::connect(action, &QAction::triggered, action,
                     [&workspace, address] { workspace.openAddress(address); });
}

} // namespace

void connectHelpActions(const Actions &actions, VersionCheck &versionCheck,
                        const Workspace &workspace) {
    QAction *const check = actions[ActionName::CheckVersion];
    QObject::connect(check, &QAction::triggered, check,
                     [&versionCheck] { versionCheck.checkNewVersion(); });
    connectLink(actions[ActionName::WebSite], versionCheck.build().webSite, workspace);
    connectLink(actions[ActionName::ReportProblem], versionCheck.build().reportProblemAddress,
                workspace);
}

} // namespace pinmora
