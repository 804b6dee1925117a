#pragma once

#include "persistence/undo_observer.h"
#include "persistence/undo_step.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class EndOfTurn;

/// Takes back, and does again, what a person did to a context's records.
///
/// What happens in one turn of the event loop is one step; an explicit group is one step however
/// many turns it takes, and groups within a group belong to it. Registering costs nothing for the
/// values of records that came in within the same part of a step, which is why an import of a
/// million points can afford it. Undo and redo write raw values between change notices: no setter
/// runs, so nothing is looked up or posted again.
///
/// Steps keep the records that they took out; the manager must go before its context.
class UndoManager {
public:
    explicit UndoManager(Context &context);
    ~UndoManager();
    UndoManager(const UndoManager &) = delete;
    UndoManager &operator=(const UndoManager &) = delete;

    void beginGroup(std::string_view name);
    void endGroup();
    /// Whether a step is under way that more than this turn belongs to.
    bool isInGroup() const { return depth_ > 0; }
    /// What is written until enableRegistration(), as often called, is no person's doing.
    void disableRegistration();
    void enableRegistration();
    /// Ends the step that the present turn has made, if it has made one; nothing within a group.
    void closeStep();
    /// Tells of what has come until now, also within a group; the step goes on.
    void closePart();
    /// Names the step under way.
    void setActionName(std::string_view name) { open_.name = name; }

    bool canUndo() const;
    bool canRedo() const { return !undone_.empty() && open_.isEmpty() && part_.isEmpty(); }
    /// Nothing happens without a step, and within a group.
    void undo();
    void redo();
    /// "" without a step, and for one without a name.
    std::string undoActionName() const;
    std::string redoActionName() const;
    void removeAllActions();

    /// The step that changes are going to now; a later answer can be joined to it.
    std::uint64_t currentStep();
    /// Registers what is written until endJoining() as part of an earlier step: values only. What a
    /// later step has written since is registered with that one, so that all comes back in the
    /// right order; a step that came to nothing leaves it a step of its own. False when the step
    /// has been taken back or forgotten: then write nothing.
    bool beginJoining(std::uint64_t step);
    void endJoining();

    /// Says that the next will-change of a record is the exchange's own.
    void expectExchange(const Record &record) { exchanged_ = &record; }

    void addObserver(UndoObserver &observer) { observers_.push_back(&observer); }
    void removeObserver(UndoObserver &observer) { std::erase(observers_, &observer); }

private:
    friend class Context;

    // What the context tells.
    void willChange(Record &record, std::string_view key);
    void didChange(const Record &record, std::string_view key);
    void didInsert(Record &record);
    void didDelete(Record &record);
    void forget();

    /// What happens in answer to undo is not registered: the step that comes back stays as it is.
    bool registers() const { return disabled_ == 0 && !exchanging_; }
    static void endFreshness(const UndoStep &told);
    UndoStep &part();
    void closeAside();
    void finish();
    void exchange(std::vector<UndoStep> &from, std::vector<UndoStep> &to,
                  void (UndoStep::*act)(Context &), void (UndoObserver::*notice)(const UndoStep &));
    template <class Notice>
    void tell(Notice notice) const;
    std::size_t stepToJoin(std::uint64_t id) const;
    void join(const UndoStep &told);

    Context &context_;
    std::vector<UndoStep> done_;
    std::vector<UndoStep> undone_;
    UndoStep open_;  ///< the step under way, as far as it has been told
    UndoStep part_;  ///< what has come since
    UndoStep aside_; ///< what is not registered and has not been told
    std::uint64_t nextId_ = 1;
    std::uint64_t joined_ = 0; ///< the step that the part belongs to; 0: the one under way
    std::vector<std::uint64_t> cameToNothing_; ///< steps whose number was given out
    int depth_ = 0;
    int disabled_ = 0;
    bool exchanging_ = false;
    bool forgets_ = false;              ///< once the exchange is over
    const Record *exchanged_ = nullptr; ///< whose value the exchange is about to write
    std::vector<UndoObserver *> observers_;
    std::unique_ptr<EndOfTurn> endOfTurn_;
};

} // namespace pinmora
