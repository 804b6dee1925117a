// A run of the program that is killed in the middle of a write: recovery_worker FOLDER MODE SEED
// CALLS, where CALLS is how many calls of the file system it lives to see. It prints a line before
// each step, "step 3", and after each that is on the disk, "safe 3".

#include "recovery/script.h"
#include "recovery/test_files.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace pinmora;
using namespace pinmora::test;

namespace {

void say(const char *word, unsigned step) {
    std::printf("%s %u\n", word, step);
    std::fflush(stdout);
}

void work(ProgramRun &program, Script script, unsigned steps) {
    for (unsigned step = 1; step <= steps; ++step) {
        say("step", step);
        script.act(program);
        if (step % 5 == 0 && program.keeper.recorder().flush()) {
            say("safe", step);
        }
    }
}

/// Step 1 is the work, and step 2 that the store file loses it.
void emptyStore(ProgramRun &program, const std::filesystem::path &folder, bool isExported) {
    program.addPhoto("saved");
    program.library.saveAction();
    program.addPhoto("unsaved");
    program.import(put(folder / "log", logText(1, 5)));
    if (program.keeper.recorder().flush()) {
        say("safe", 1);
    }
    if (isExported) {
        program.keeper.exported(program.keeper.moment());
    }
    program.library.deleteTempStore();
    say("safe", 2);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const std::filesystem::path folder = argv[1];
    const std::string mode = argv[2];
    qputenv("XDG_DATA_HOME", argv[1]);
    FailingFiles files;
    files.callsLeft = std::atoi(argv[4]);
    files.over = [] { return ::kill(::getpid(), SIGKILL), FailingFiles::failure(); };
    ProgramRun program(files);
    if (mode == "work") {
        Script script(static_cast<unsigned>(std::atoi(argv[3])), folder);
        script.forgetAtSaves();
        work(program, script, 40);
    } else if (mode == "export" || mode == "empty") {
        emptyStore(program, folder, mode == "export");
    } else if (mode == "back") {
        for (const RecoveryOffer &offer : program.offers()) {
            static_cast<void>(program.recovered().bringBack(offer));
        }
    }
    return 0;
}
