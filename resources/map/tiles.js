// Maps from a server, over the one that comes with the page, for as long as they come.
"use strict";

mapPage.tiles = (() => {
    /** Errors in a row after which a server is taken for gone, or for refusing. */
    const mostErrors = 4;
    /** Milliseconds without a tile after which it is too slow. */
    const mostWaiting = 8000;
    const firstPause = 60 * 1000;
    const longestPause = 10 * 60 * 1000;
    const openStreetMap = "https://www.openstreetmap.org/copyright";

    const address = document.querySelector('meta[name="tile-server"]').content;
    const {say} = mapPage;
    const {map} = mapPage.view;
    let layer = null;
    let online = false; // a tile has come since the last change
    let errors = 0; // since the last tile
    let pause = firstPause;
    let slow = 0;
    let retry = 0;

    function host() {
        try {
            return new URL(address.replace("{s}", "a")).hostname;
        } catch {
            return "";
        }
    }

    function showBundled(words, tryAgain) {
        mapPage.labels.layer.addTo(map);
        mapPage.status.setSource(words, tryAgain);
        mapPage.status.setCredits("Natural Earth, GeoNames");
        map.getContainer().classList.remove("online");
    }

    function showOnline() {
        mapPage.labels.layer.remove();
        mapPage.status.setSource(say("Online map"));
        const name = host();
        if (/(^|\.)openstreetmap\.org$/.test(name)) {
            mapPage.status.setCredits(say("© OpenStreetMap contributors"), openStreetMap);
        } else {
            mapPage.status.setCredits(name);
        }
        map.getContainer().classList.add("online");
    }

    /** The server is left alone until the next try. */
    function goOffline() {
        clearTimeout(slow);
        clearTimeout(retry);
        layer?.remove();
        layer = null;
        online = false;
        showBundled(say("Offline map."), tryAgain);
        retry = setTimeout(goOnline, pause);
        pause = Math.min(2 * pause, longestPause);
    }

    function waitForTile() {
        clearTimeout(slow);
        slow = setTimeout(goOffline, mostWaiting);
    }

    function tileCame() {
        errors = 0;
        pause = firstPause;
        if (!online) {
            online = true;
            showOnline();
        }
        waitForTile();
    }

    function tileFailed() {
        errors += 1;
        if (errors >= mostErrors) {
            goOffline();
        }
    }

    function allAnswered() {
        clearTimeout(slow);
        if (errors > 0 && !online) {
            // Later: Leaflet has yet to end what it does with the layer.
            clearTimeout(slow);
            slow = setTimeout(goOffline);
        }
    }

    function goOnline() {
        clearTimeout(retry);
        if (layer) {
            return;
        }
        errors = 0;
        // Nothing is asked for that is not looked at: the servers are other people's.
        const tried = L.tileLayer(address, {maxZoom: 19, keepBuffer: 1, updateWhenZooming: false,
                                            className: "tiles"});
        const heard = (listener) => () => { if (layer === tried) { listener(); } };
        tried.on({loading: heard(waitForTile), tileload: heard(tileCame),
                  tileerror: heard(tileFailed), load: heard(allAnswered)});
        layer = tried;
        try {
            tried.addTo(map);
        } catch {
            goOffline(); // an address that is none
        }
    }

    function tryAgain() {
        pause = firstPause;
        goOnline();
    }

    return {
        begin() {
            if (address === "") {
                showBundled(say("Bundled map"));
                return;
            }
            showBundled("");
            window.addEventListener("online", tryAgain);
            goOnline();
        },
    };
})();
