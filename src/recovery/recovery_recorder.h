#pragma once

#include "outlets/signal.h"
#include "persistence/undo_observer.h"
#include "recovery/journal_records.h"
#include "recovery/journal_thread.h"
#include "recovery/recovery_folder.h"
#include "recovery/step_encoder.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// Keeps unsaved work on the disk while the program runs: each step of a person, its taking back
/// and each import go to the journal of the current folder, which together with the store file (or
/// a base of its own) is enough to bring the working set back.
///
/// Nothing is written until a person has done something. No call but flush(), saved()
/// and those that write a base waits for the disk. When writing fails, `failed` says so once, and
/// from time to time a later step tries again with a whole base.
class RecoveryRecorder : public ImportJournal, private UndoObserver {
public:
    /// The context must have an undo manager; both must outlive it.
    RecoveryRecorder(Context &context, const RecoveryFolder &folder);
    RecoveryRecorder(const RecoveryRecorder &) = delete;
    RecoveryRecorder &operator=(const RecoveryRecorder &) = delete;
    /// All is on the disk, and stays there.
    ~RecoveryRecorder() override;

    /// The store file has this state and holds what the context holds now: what was recorded until
    /// now is forgotten, and recording starts from there. Work in the current folder that is not
    /// this object's is left alone.
    void begin(std::string_view storeState);
    /// What was recorded is not wanted any more; nothing more is recorded.
    void clear();

    /// The store file is about to be replaced by one of this state, which holds all up to here;
    /// returns once the journal says so on the disk.
    void saved(std::string_view storeState);
    /// The store file does not hold the working set. Unless the journal has a base, the next step
    /// writes one.
    void storeEmptied() { needsBase_ = needsBase_ || !hasBase_; }
    /// Starts the journal anew with the whole working set, on the disk when it returns; after an
    /// error, a sentence, the old one goes on.
    [[nodiscard]] std::optional<std::string> writeBase();

    /// Marks this moment: another one once a person has done something.
    std::size_t moment();

    /// While one lives, steps are passed over: a base that holds them is to follow.
    class Pause {
    public:
        explicit Pause(RecoveryRecorder &recorder) : recorder_(recorder) {
            recorder_.paused_ = recorder_.needsBase_ = true;
        }
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;
        ~Pause() { recorder_.paused_ = false; }

    private:
        RecoveryRecorder &recorder_;
    };

    /// Waits until all that was recorded is on the disk; false when it will not be.
    bool flush();
    /// How long to wait after a failure until a step tries again; at first half a minute.
    void setRetryInterval(std::chrono::milliseconds interval) { retryInterval_ = interval; }

    /// Unsaved work is not being kept: why, in a sentence.
    Signal<const std::string &> failed;

    void beginImport(const ImportFacts &facts) override;
    std::string spareBlock() override;
    void importBytes(std::string bytes) override;
    void importEntity(std::string_view name, const std::optional<std::string> &content) override;
    void endImport() override;

private:
    void didRecord(const UndoStep &part, bool registered) override { record(part, registered); }
    void didUndo(const UndoStep &step) override { record(step, true); }
    void didRedo(const UndoStep &step) override { record(step, true); }

    void record(const UndoStep &step, bool registered);
    bool isWriting() const { return journal_ && !needsBase_ && !journal_->error(); }
    bool prepareToWrite();
    std::error_code startJournal();
    std::optional<std::string> replaceByBase();
    void fail(const std::string &reason);

    Context &context_;
    const RecoveryFolder &folder_;
    StepEncoder encoder_;
    std::unique_ptr<JournalThread> journal_; ///< of the current folder, which is then ours
    std::string state_;                      ///< of the store file
    std::vector<Frame> heldBack_;            ///< the program's own doing, until a person's
    std::size_t steps_ = 0;                  ///< of persons, also those that could not be recorded
    bool begun_ = false;
    bool paused_ = false;
    bool hasBase_ = false;   ///< the journal starts from a base of its own
    bool needsBase_ = false; ///< only with a new base can recording go on
    bool hasFailed_ = false; ///< and that has been told
    std::chrono::milliseconds retryInterval_{30'000};
    std::chrono::steady_clock::time_point nextAttempt_{};

    bool importing_ = false;        ///< and writing the log's bytes
    std::uint32_t importBegin_ = 0; ///< the first serial of the import under way
    std::size_t pointsBefore_ = 0;
};

} // namespace pinmora
