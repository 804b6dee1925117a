// What puts photos somewhere, or leads there: clicks on the map and on tracks, photos dropped on
// it, and positions pasted.
"use strict";

mapPage.placing = (() => {
    /** Pixels between a click and a track that still mean the track. */
    const reach = 8;
    /** The same while a point of the track is asked for. */
    const reachOfPick = 24;

    const {say, view, positions, pointer, tracks, status} = mapPage;
    const {map} = view;
    let selection = {count: 0, clickPlaces: false};
    let picking = false; // the next click is to choose a point of the track

    function report(lat, lon) {
        mapPage.reportPosition(positions.report(lat, lon, map.getZoom()));
    }

    function trackAt({lat, lng}, within = reach) {
        return tracks.near(lat, lng, within / 2 ** map.getZoom());
    }

    function line(text, className) {
        return Object.assign(document.createElement("div"), {textContent: text, className});
    }

    /** Seconds of the wall clock that the program shows, which needs no zone of time here. */
    function timeText(seconds) {
        return new Date(seconds * 1000).toLocaleString(document.documentElement.lang, {
            timeZone: "UTC", day: "numeric", month: "short", year: "numeric", hour: "2-digit",
            minute: "2-digit", second: "2-digit"});
    }

    function useButton(point) {
        const button = document.createElement("button");
        button.type = "button";
        button.textContent = selection.count > 0 ? say("Use This Point")
            : say("Select photos first");
        button.disabled = selection.count === 0;
        button.addEventListener("click", () => {
            map.closePopup();
            report(point.lat, point.lon);
        });
        return button;
    }

    function offer(point) {
        const content = line("", "point");
        if (Number.isFinite(point.time)) {
            content.append(line(timeText(point.time), "time"));
        }
        content.append(line(positions.shown(point.lat, point.lon), "quiet"), useButton(point));
        map.openPopup(content, [point.lat, view.nearestCopy(point.lon)],
                      {closeButton: false, minWidth: 120, autoPanPaddingTopLeft: [48, 48],
                       autoPanPaddingBottomRight: [8, 40]});
    }

    /** The program knows more points than are drawn: it chooses the one. */
    function pick(latlng) {
        if (trackAt(latlng, reachOfPick)) {
            mapPage.reportPicked(positions.report(latlng.lat, latlng.lng, map.getZoom()));
        } else {
            status.note(say("There is no track here. Click on the track, or press Escape."));
        }
    }

    function clicked({latlng, originalEvent}) {
        if (originalEvent.detail > 1) {
            return; // the second of a double click, which zooms
        }
        if (picking) {
            pick(latlng);
        } else if (pointer.isDraft()) {
            pointer.placeDraft(latlng.lat, latlng.lng);
        } else if (selection.clickPlaces) {
            report(latlng.lat, latlng.lng);
        } else {
            const point = trackAt(latlng);
            if (point) {
                offer(point);
            }
        }
    }

    /** What a click there would do. */
    function showCursor(latlng) {
        const places = picking || pointer.isDraft() || selection.clickPlaces;
        map.getContainer().classList.toggle("places", places);
        map.getContainer().classList.toggle("on-track", !places && trackAt(latlng) !== null);
    }

    /** Goes to a position that somebody has named; the level is the person's choice. */
    function go({lat, lon, zoom}) {
        view.setView(lat, lon, view.levelFor(zoom));
    }

    function pasted(event) {
        if (event.target instanceof HTMLInputElement) {
            return;
        }
        event.preventDefault();
        const read = mapPage.coordinates(event.clipboardData?.getData("text/plain") ?? "");
        if (!read || read.refused) {
            status.note(read?.refused ?? say("What was pasted is no position."));
            return;
        }
        go(read);
        if (selection.count > 0) {
            report(read.lat, read.lon);
        }
    }

    function dropped(x, y) {
        const size = map.getSize();
        if (x >= 0 && y >= 0 && x <= size.x && y <= size.y) {
            const {lat, lng} = map.containerPointToLatLng([x, y]);
            report(lat, lng);
        }
    }

    map.on("click", clicked);
    document.addEventListener("paste", pasted);
    document.addEventListener("keydown", (event) => {
        if (event.key !== "Escape" || event.defaultPrevented) {
            return;
        }
        if (picking) {
            mapPage.reportPicked("");
        } else if (!pointer.escape()) {
            map.closePopup();
        }
    });

    return {
        go,
        dropped,
        showCursor,
        /** Whether the next click is to choose the point of the track where the photo was taken. */
        setPicking(on) {
            if (picking === on) {
                return;
            }
            picking = on;
            map.closePopup();
            map.getContainer().classList.toggle("places", on || pointer.isDraft() ||
                                                selection.clickPlaces);
            status.setHint(on
                ? say("Click the point of the track where the photo was taken.") : "");
        },
        /** {count: how many photos are selected, clickPlaces: whether a click places them} */
        setSelection({count, clickPlaces}) {
            selection = {count: Number(count) || 0, clickPlaces: clickPlaces === true};
            map.closePopup();
        },
    };
})();
