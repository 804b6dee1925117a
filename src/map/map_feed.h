#pragma once

#include "map/paced_update.h"
#include "outlets/array_controller.h"
#include "outlets/map_view.h"
#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "store/image.h"

#include <array>
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace pinmora {

/// Keeps the map pages drawing what the library holds: tracks, photos with a position, and which
/// of them are selected. It goes one way only, as JSON; positions are numbers there or absent.
///
/// A page gets everything when it has been loaded, and later what has changed, once a turn of the
/// event loop at most. Before the first page nothing is done at all.
class MapFeed : private ChangeObserver {
public:
    struct Outlets {
        MapView &webView1;
        MapView &webView2; ///< the wizard's
        ArrayController<image> &pictureArray;
    };

    /// Context and outlets must outlive it.
    MapFeed(Context &context, Outlets outlets);
    ~MapFeed() override;
    MapFeed(const MapFeed &) = delete;
    MapFeed &operator=(const MapFeed &) = delete;

private:
    /// What a view's page has been told.
    struct Page {
        MapView &view;
        bool isWizards = false;
        bool isLoaded = false;
        std::string selection{}; ///< the message about it
    };

    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &record) override;
    void didDelete(Record &record) override;

    bool hasPage() const { return pages_[0].isLoaded || pages_[1].isLoaded; }
    void loaded(Page &page);
    void sendTracks();
    void sendChanges();
    void sendSelection(Page &page);

    Context &context_;
    Outlets outlets_;
    std::array<Page, 2> pages_;
    std::unordered_set<const image *> changed_;
    std::unordered_set<std::uint32_t> gone_; ///< their serials
    PacedUpdate tracks_;
    PacedUpdate changes_; ///< of photos and selection
    std::vector<Connection> connections_;
};

} // namespace pinmora
