#include "map/map_feed.h"

#include "map/feed_messages.h"
#include "store/track.h"
#include "store/track_part.h"

#include <utility>

namespace pinmora {

MapFeed::MapFeed(Context &context, Outlets outlets)
    : context_(context),
      outlets_(outlets), pages_{Page{outlets.webView1}, Page{outlets.webView2, true}},
      tracks_([this] { sendTracks(); }), changes_([this] { sendChanges(); }) {
    context.addObserver(*this, {.entity = &image::description()});
    // A point's place and time are what they were when it came in.
    context.addObserver(*this, {.entity = &track::description(), .values = false});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    for (Page &page : pages_) {
        connections_.push_back(page.view.loaded.connect([this, &page] { loaded(page); }));
    }
    connections_.push_back(outlets.pictureArray.selectionChanged.connect([this] {
        if (hasPage()) {
            changes_.ask();
        }
    }));
}

MapFeed::~MapFeed() {
    context_.removeObserver(*this);
}

void MapFeed::didChange(Record &record, std::string_view key) {
    if (hasPage() && (key == "lat" || key == "lon" || key == "image_name")) {
        changed_.insert(static_cast<const image *>(&record));
        changes_.ask();
    }
}

void MapFeed::didInsert(Record &record) {
    if (!hasPage()) {
        return;
    }
    if (&record.entity() == &image::description()) {
        changed_.insert(static_cast<const image *>(&record));
        gone_.erase(record.serial()); // it may have come back
        changes_.ask();
    } else {
        tracks_.ask();
    }
}

void MapFeed::didDelete(Record &record) {
    if (!hasPage()) {
        return;
    }
    if (&record.entity() == &image::description()) {
        changed_.erase(static_cast<const image *>(&record));
        gone_.insert(record.serial());
        changes_.ask();
    } else {
        tracks_.ask();
    }
}

void MapFeed::loaded(Page &page) {
    page.isLoaded = true;
    page.selection.clear();
    page.view.feed(feed_messages::tracks(context_));
    page.view.feed(feed_messages::allPhotos(context_));
    sendSelection(page);
}

void MapFeed::sendTracks() {
    const std::string message = feed_messages::tracks(context_);
    for (const Page &page : pages_) {
        if (page.isLoaded) {
            page.view.feed(message);
        }
    }
}

void MapFeed::sendChanges() {
    const auto changed = std::exchange(changed_, {});
    const auto gone = std::exchange(gone_, {});
    std::string message;
    if (!changed.empty() || !gone.empty()) {
        message = feed_messages::changedPhotos({changed.begin(), changed.end()},
                                               {gone.begin(), gone.end()});
    }
    for (Page &page : pages_) {
        if (page.isLoaded) {
            if (!message.empty()) {
                page.view.feed(message);
            }
            sendSelection(page);
        }
    }
}

void MapFeed::sendSelection(Page &page) {
    const std::vector<image *> &selected = outlets_.pictureArray.selectedObjects();
    const bool clickPlaces = page.isWizards
                                 ? !selected.empty()
                                 : selected.size() == 1 && !selected.front()->lat_and_lon();
    std::string message = feed_messages::selection(selected, clickPlaces);
    if (message != page.selection) {
        page.view.feed(message);
        page.selection = std::move(message);
    }
}

} // namespace pinmora
