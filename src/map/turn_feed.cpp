#include "map/turn_feed.h"

#include <QTimer>

#include <utility>

namespace pinmora {

namespace {

constexpr std::chrono::milliseconds pauseBetween{66};

std::string listOf(const std::vector<Date> &times) {
    LocalZone zone;
    std::string json = "[";
    for (const Date &time : times) {
        if (json.size() > 1) {
            json += ',';
        }
        json += std::to_string(zone.wallClockAt(time).time_since_epoch().count());
    }
    return json + "]";
}

} // namespace

TurnFeed::TurnFeed(Outlets outlets, Times times)
    : outlets_(outlets),
      times_(std::move(times)), pages_{Page{outlets.webView1}, Page{outlets.webView2, true}},
      pause_(std::make_unique<QTimer>()) {
    pause_->setSingleShot(true);
    QObject::connect(pause_.get(), &QTimer::timeout, pause_.get(), [this] {
        if (isDue_) {
            send();
        }
    });
    for (Page &page : pages_) {
        connections_.push_back(page.view.loaded.connect([&page] { page.isTold = false; }));
    }
}

TurnFeed::~TurnFeed() = default;

void TurnFeed::turned(std::optional<std::chrono::seconds> by) {
    if (!by) {
        end();
        return;
    }
    if (!std::exchange(by_, by)) {
        timesJson_ = listOf(times_());
    }
    isDue_ = true;
    if (!pause_->isActive()) {
        send();
    }
}

void TurnFeed::send() {
    isDue_ = false;
    for (Page &page : pages_) {
        if (page.isWizards != outlets_.inWizard || !page.view.visible.get()) {
            continue;
        }
        std::string json = R"({"kind":"turn","by":)" + std::to_string(by_->count());
        if (!std::exchange(page.isTold, true)) {
            json.append(R"(,"times":)").append(timesJson_);
        }
        page.view.feed(json + "}");
    }
    pause_->start(pauseBetween);
}

void TurnFeed::end() {
    by_.reset();
    isDue_ = false;
    timesJson_.clear();
    for (Page &page : pages_) {
        if (std::exchange(page.isTold, false)) {
            page.view.feed(R"({"kind":"turn","by":null})");
        }
    }
}

} // namespace pinmora
