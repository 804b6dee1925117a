#pragma once

#include "outlets/observable.h"
#include "outlets/signal.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace pinmora {

/// A page to be loaded.
struct PageRequest {
    std::string address;
    bool ignoresCache = false;
    std::chrono::seconds timeout{60};

    friend bool operator==(const PageRequest &, const PageRequest &) = default;
};

/// What a script of the page has called: a function of the published object, with the one argument
/// that those functions take. Anybody may have written the page: nothing of it is checked yet.
struct PageCall {
    std::string function;
    std::variant<std::string, double> argument;
};

/// The page that shows the map; it is spoken to in scripts. Whoever shows the page may come later:
/// what was asked for until then is kept and handed over in its order.
class MapView {
public:
    struct Script {
        std::string text;
    };
    /// The name under which scripts of the page find the controller.
    struct PublishedName {
        std::string name;
    };
    /// What the page is to draw, as JSON. Only a page that is there hears it.
    struct Feed {
        std::string json;
    };
    using Command = std::variant<PageRequest, PublishedName, Script, Feed>;
    using Handler = std::function<void(const Command &)>;

    void load(PageRequest request) { give(std::move(request)); }
    void publish(std::string name) { give(PublishedName{std::move(name)}); }
    /// The page is responsible for scripts that come before it is ready.
    void evaluate(const std::string &script) {
        scripts.emit(script);
        give(Script{script});
    }
    /// Nothing is kept: what is to be drawn is sent anew after each load.
    void feed(std::string json) {
        if (handler_) {
            handler_(Feed{std::move(json)});
        }
    }

    /// One only; it gets what has been kept at once.
    void attach(Handler handler) {
        handler_ = std::move(handler);
        for (const Command &command : std::exchange(kept_, {})) {
            handler_(command);
        }
    }
    void detach() { handler_ = nullptr; }

    /// Every script, when it is given.
    Signal<const std::string &> scripts;

    Observable<bool> visible{true};

    // What whoever shows the page tells.
    Signal<> loaded; ///< a page has been loaded, the first time or again
    Signal<const PageCall &> called;

private:
    void give(Command command) {
        if (handler_) {
            handler_(command);
        } else {
            kept_.push_back(std::move(command));
        }
    }

    Handler handler_;
    std::vector<Command> kept_;
};

} // namespace pinmora
