// A run of the program that is killed while it saves: killed_save ORIGINALS RESOURCES COPIES
// PREPARATION. It prints "saving" when the copies are begun, and "saved" when the run is over, and
// waits for its end.

#include "shell/desk.h"

#include <QGuiApplication>
#include <QTimer>

#include <cstdio>

using namespace pinmora;

namespace {

void say(const char *word) {
    std::puts(word);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    Desk desk(argv[2]);
    desk.start();
    desk.parts().photoIntake.openFiles({argv[1]});
    desk.endTurn();
    if (std::string_view(argv[4]) == "saved library") {
        desk.delegate.library.saveAction();
    }
    for (image *photo : desk.context().records<image>()) {
        photo->setComments("typed");
    }
    desk.endTurn();
    if (!desk.parts().unsavedWork.recorder().flush()) {
        return 1;
    }
    desk.parts().savePipeline.updatePicts();
    desk.parts().saveOutlets.folderChooser.answer({argv[3]});
    say("saving");
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (!desk.parts().savePipeline.isRunning()) {
            say("saved");
            look.stop();
        }
    });
    look.start(1);
    return QGuiApplication::exec();
}
