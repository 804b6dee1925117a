#pragma once

#include "persistence/context.h"
#include "persistence/undo_manager.h"

#include <string_view>

namespace pinmora {

/// Makes one step of all that happens while it lives, under the name that a menu shows. The
/// outermost of several counts. A context without undo needs none.
class UndoGroup {
public:
    UndoGroup(Context &context, std::string_view name) : manager_(context.undoManager()) {
        if (manager_) {
            manager_->beginGroup(name);
        }
    }
    UndoGroup(const UndoGroup &) = delete;
    UndoGroup &operator=(const UndoGroup &) = delete;
    ~UndoGroup() {
        if (manager_) {
            manager_->endGroup();
        }
    }

private:
    UndoManager *manager_;
};

/// While it lives, what is written is the program's own doing: it cannot be taken back.
class UnregisteredChanges {
public:
    explicit UnregisteredChanges(Context &context) : manager_(context.undoManager()) {
        if (manager_) {
            manager_->disableRegistration();
        }
    }
    UnregisteredChanges(const UnregisteredChanges &) = delete;
    UnregisteredChanges &operator=(const UnregisteredChanges &) = delete;
    ~UnregisteredChanges() {
        if (manager_) {
            manager_->enableRegistration();
        }
    }

private:
    UndoManager *manager_;
};

} // namespace pinmora
