#pragma once

namespace pinmora {

class Actions;
class VersionCheck;
struct Workspace;

/// Lets the entries of the menu Help that lead to the program's makers do what they say. Those for
/// which the build has set no address are not seen. All must outlive the actions.
void connectHelpActions(const Actions &actions, VersionCheck &versionCheck,
                        const Workspace &workspace);

} // namespace pinmora
