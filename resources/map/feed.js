// What the program sends to be drawn; none of it is ever taken for script or markup.
"use strict";

mapPage.feed = (() => {
    const {say, view, tracks, photos, ghosts, pointer, placing} = mapPage;
    const fitButton = document.getElementById("fit");

    function updateFitButton() {
        const words = tracks.box() ? say("Fit to track") : say("Fit to photos");
        fitButton.disabled = !tracks.box() && !photos.box();
        fitButton.title = words;
        fitButton.setAttribute("aria-label", words);
    }

    function isTrack(track) {
        const {lat, lon} = track ?? {};
        return Array.isArray(lat) && Array.isArray(lon) && lat.length === lon.length &&
            lat.every((one, i) => mapPage.positions.isPosition(one, lon[i]));
    }

    const readers = {
        look: mapPage.look.set,
        tracks(message) {
            const elsewhere = tracks.set(message.tracks.filter(isTrack));
            ghosts.forgetPoints();
            if (elsewhere && !pointer.isShown()) {
                view.byProgram(() => view.fit(tracks.box()));
            }
            updateFitButton();
        },
        photos(message) {
            photos.change(message);
            mapPage.hover.leave();
            pointer.nameAgain();
            if (photos.box() && !tracks.box() && !view.hasMoved() && !pointer.isShown()) {
                view.byProgram(() => view.fit(photos.box()));
            }
            updateFitButton();
        },
        selection(message) {
            photos.select(message.ids ?? [], message.count);
            pointer.nameAgain();
            placing.setSelection(message);
        },
        turn: ghosts.turn,
        pick(message) {
            placing.setPicking(message.on === true);
        },
        drop(message) {
            placing.dropped(message.x, message.y);
        },
    };

    function heard({detail}) {
        try {
            const message = JSON.parse(detail);
            if (Object.hasOwn(readers, message.kind)) {
                readers[message.kind](message);
            }
        } catch (error) {
            console.error("feed", error);
        }
    }

    return {
        begin() {
            fitButton.addEventListener("click", () => view.fit(tracks.box() ?? photos.box()));
            document.addEventListener("pinmora-feed", heard);
        },
    };
})();
