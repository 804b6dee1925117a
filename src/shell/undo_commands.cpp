#include "shell/undo_commands.h"

#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "platform/translation.h"

#include <string>

namespace pinmora {
namespace {

std::string undoTitle(const std::string &step) {
    if (step.empty()) {
        return translated("shell", "Undo");
    }
    //: %1: what is taken back, such as "Load GPS Data"
    return filled(translated("shell", "Undo %1"), {step});
}

std::string redoTitle(const std::string &step) {
    if (step.empty()) {
        return translated("shell", "Redo");
    }
    //: %1: what is done again, such as "Load GPS Data"
    return filled(translated("shell", "Redo %1"), {step});
}

} // namespace

UndoCommands::UndoCommands(Context &context) : context_(context), manager_(*context.undoManager()) {
    manager_.addObserver(*this);
    connections_.push_back(undoItem.pressed.connect([this] {
        if (context_.commitEditing()) {
            manager_.undo();
        }
    }));
    connections_.push_back(redoItem.pressed.connect([this] {
        if (context_.commitEditing()) {
            manager_.redo();
        }
    }));
    showHistory();
}

UndoCommands::~UndoCommands() {
    manager_.removeObserver(*this);
}

void UndoCommands::showHistory() {
    undoItem.enabled.set(manager_.canUndo());
    redoItem.enabled.set(manager_.canRedo());
    undoItem.title.set(undoTitle(manager_.undoActionName()));
    redoItem.title.set(redoTitle(manager_.redoActionName()));
}

} // namespace pinmora
