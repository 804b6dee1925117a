#include "shell/undo_commands.h"

#include "persistence/context.h"
#include "persistence/undo_manager.h"

#include <string>

namespace pinmora {
namespace {

std::string titleOf(const std::string &command, const std::string &step) {
    return step.empty() ? command : command + " " + step;
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
    undoItem.title.set(titleOf("Undo", manager_.undoActionName()));
    redoItem.title.set(titleOf("Redo", manager_.redoActionName()));
}

} // namespace pinmora
