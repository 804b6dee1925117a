// How soon the window is up, on an empty library and on a large one, against a bare window of the
// same size in a program that is linked with the same libraries, and against reading the library.

#include "ratio.h"
#include "window_program.h"

#include <QLabel>
#include <QProcess>
#include <QWindow>

#include <cstdio>
#include <unistd.h>

using namespace pinmora;

namespace {

constexpr std::size_t photoCount = 10'000;
constexpr std::size_t pointCount = 1'000'000;

/// Ends the program once a window has been painted.
class FirstPaint : public QObject {
    bool eventFilter(QObject *object, QEvent *event) override {
        if (event->type() == QEvent::Expose && qobject_cast<QWindow *>(object)) {
            QMetaObject::invokeMethod(
                this, [] { _exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }
};

int showWindow(int argc, char **argv, bool bare) {
    QApplication application(argc, argv);
    FirstPaint firstPaint;
    application.installEventFilter(&firstPaint);
    if (bare) {
        QLabel window;
        window.resize(1280, 800);
        window.show();
        return QApplication::exec();
    }
    app::Program program(".", nullptr);
    return QApplication::exec();
}

int readLibrary() {
    bench::Library library;
    const std::filesystem::path folder = qEnvironmentVariable("XDG_DATA_HOME").toStdString();
    const double time = bench::seconds([&] {
        static_cast<void>(XmlStore(folder / "Pinmora" / "Pinmora.xml").read(library.context));
    });
    std::printf("%f\n", time);
    return library.context.count<track_part>() == pointCount ? 0 : 1;
}

/// Runs this program again in one of its roles; what it prints.
QByteArray runAs(const char *role) {
    QProcess process;
    process.start(QStringLiteral("/proc/self/exe"), {QLatin1String(role)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        throw std::runtime_error(std::string(role) + " failed");
    }
    return process.readAllStandardOutput();
}

double medianSeconds(const char *role) {
    std::vector<double> runs;
    for (int run = 0; run < 5; ++run) {
        runs.push_back(bench::seconds([role] { runAs(role); }));
    }
    return bench::median(runs);
}

void measure(bench::Report &report) {
    const bench::WindowHome home;
    const double bare = medianSeconds("bare");
    const double empty = medianSeconds("pinmora");
    report.atMost("window, empty library / bare", empty / bare, 1.5);

    home.writeLibrary(photoCount, pointCount, home.photos(1));
    std::vector<double> reads;
    for (int run = 0; run < 5; ++run) {
        reads.push_back(runAs("read").toDouble());
    }
    const double read = bench::median(reads);
    const double full = medianSeconds("pinmora");
    std::printf("bare %.3f s, empty %.3f s, large %.3f s, reading it %.3f s\n", bare, empty, full,
                read);
    report.atMost("window, large library / allowed", full / (1.5 * bare + 1.1 * read), 1);
}

} // namespace

int main(int argc, char **argv) {
    const std::string role = argc > 1 ? argv[1] : "";
    if (role == "bare" || role == "pinmora") {
        return showWindow(argc, argv, role == "bare");
    }
    return role == "read" ? readLibrary() : bench::run(measure);
}
