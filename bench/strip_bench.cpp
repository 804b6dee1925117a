// Turning the camera's clock on the time strip: the processor time of each frame of a drag.

#include "ratio.h"
#include "window_program.h"

#include "ui/time_strip_widget.h"

#include <QImage>
#include <QMouseEvent>

#include <algorithm>

using namespace pinmora;

namespace {

constexpr std::size_t photoCount = 10'000;
constexpr std::size_t pointCount = 1'000'000;
constexpr int frames = 300;

void send(QWidget &strip, QEvent::Type type, QPointF at) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, strip.mapToGlobal(at), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
    QCoreApplication::sendEvent(&strip, &event);
}

void measure(bench::Report &report) {
    const bench::WindowHome home;
    home.writeLibrary(photoCount, pointCount, home.photos(1));
    int argc = 1;
    char name[] = "bench";
    char *argv[] = {name, nullptr};
    QApplication application(argc, argv);
    app::Program program(".", nullptr);
    TimeStrip &strip = program.delegate().subsystems().timeStrip;
    // By itself: what else shows the turn has its own pace.
    TimeStripWidget widget(strip);
    widget.resize(1920, 64);
    QImage picture(widget.size() * 2, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(2);
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::processEvents();
    }
    widget.showAll();
    widget.render(&picture);
    const QPointF begin(widget.axis().xOf(strip.ticks().at(photoCount / 2).at), 40);

    std::vector<double> times;
    send(widget, QEvent::MouseButtonPress, begin);
    for (int frame = 1; frame <= frames; ++frame) {
        const double before = bench::threadSeconds();
        send(widget, QEvent::MouseMove, begin + QPointF(4 + frame, 0));
        static_cast<void>(strip.ticks());
        widget.render(&picture);
        times.push_back(1000 * (bench::threadSeconds() - before));
    }
    if (!strip.isTurning()) {
        throw std::runtime_error("nothing was turned");
    }
    send(widget, QEvent::MouseButtonRelease, begin + QPointF(4 + frames, 0));
    report.atMost("frame of a drag, median ms", bench::median(times), 16);
    report.atMost("frame of a drag, slowest ms", *std::max_element(times.begin(), times.end()), 16);
}

} // namespace

int main() {
    return bench::run(measure);
}
