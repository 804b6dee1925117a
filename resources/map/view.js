// The map itself: where it looks, its buttons, and its level, which the program is told of when
// the person changes it.
"use strict";

mapPage.view = (() => {
    const levels = {first: 1, last: 19};
    /** What shows a place: for a position whose level nobody has chosen. */
    const placeLevel = 13;
    /** From here on a place can be made out. */
    const closeLevel = 10;
    const closestFit = 16;

    const map = L.map("map", {
        preferCanvas: true,
        zoomControl: false,
        attributionControl: false,
        minZoom: levels.first,
        maxZoom: levels.last,
        // To the east and the west as far as anybody goes.
        maxBounds: [[-85.06, -36000], [85.06, 36000]],
        maxBoundsViscosity: 1,
        closePopupOnClick: true,
    });
    let toldLevel = NaN;
    let programMoves = false;
    let moved = false;
    let byPerson = false; // who has brought the map where it is
    let touched = false; // by the person, since it has been fitted
    let fitted = null; // {box, center, level} as the last fit has left it
    let zooming = false; // on the way to another level
    let newestMove = null; // of the program, since the screen was last shown
    let moveAgain = null; // after the way to another level
    let fitWanted = null;

    function toldOfLevel() {
        const level = Math.round(map.getZoom());
        if (level === toldLevel) {
            return;
        }
        toldLevel = level;
        if (!programMoves) {
            mapPage.reportLevel(level);
        }
        document.getElementById("zoom-in").disabled = level >= levels.last;
        document.getElementById("zoom-out").disabled = level <= levels.first;
    }

    /** Moves that are not the person's own: at once, and nobody is told of the level. */
    function byProgram(move) {
        programMoves = true;
        try {
            move();
        } finally {
            programMoves = false;
        }
        newestMove = move;
        requestAnimationFrame(() => { newestMove = newestMove === move ? null : newestMove; });
    }

    function setView(lat, lon, level) {
        moved = true;
        map.setView([lat, nearestCopy(lon)], level, {animate: false});
    }

    /** The meridian in that copy of the world that is nearest to what is seen. */
    function nearestCopy(lon) {
        return lon + 360 * Math.round((map.getCenter().lng - lon) / 360);
    }

    function isSized() {
        const size = map.getSize();
        return size.x > 0 && size.y > 0;
    }

    function showWorld() {
        const level = map.getSize().x >= 4 * mapPage.worldSize ? 2 : levels.first;
        map.setView([25, 0], level, {animate: false});
    }

    /** Whether all is as the last fit has left it. */
    function isFitted() {
        return fitted !== null && fitted.level === map.getZoom() &&
            map.latLngToContainerPoint(fitted.center).distanceTo(map.getSize().divideBy(2)) < 3;
    }

    function fit(box) {
        if (!isSized() || zooming) {
            fitWanted = box;
            return;
        }
        fitWanted = null;
        moved = true;
        const size = map.getSize();
        const edge = Math.min(32, size.x / 8, size.y / 8);
        map.fitBounds([[box.south, box.west], [box.north, box.east]],
                      {animate: false, maxZoom: closestFit, padding: [edge, edge]});
        fitted = {box, center: map.getCenter(), level: map.getZoom()};
        touched = !programMoves;
    }

    function fitLater() {
        if (fitWanted) {
            byProgram(() => fit(fitWanted));
        }
    }

    /** What was fitted stays so: the window comes to its size in several steps. */
    function resized() {
        map.invalidateSize({animate: false, pan: true});
        if (isFitted()) {
            fitWanted ??= fitted.box;
        }
        fitLater();
    }

    /**
     * The way to another level, once begun, leads to its end whatever else is asked for. It begins
     * when the screen is next shown: the program may have moved the map in between.
     */
    function zoomBegins() {
        zooming = true;
        moveAgain = newestMove;
        mapPage.hold(true);
    }

    function zoomEnds() {
        if (!zooming) {
            return;
        }
        zooming = false;
        if (moveAgain) {
            byProgram(moveAgain);
        }
        fitLater();
        mapPage.hold(false);
    }

    map.on("zoomend", toldOfLevel);
    map.on("movestart", () => {
        byPerson = !programMoves;
        touched ||= byPerson;
        moved ||= byPerson;
    });
    map.on("zoomanim", zoomBegins);
    map.on("zoomend", zoomEnds);
    map.getContainer().addEventListener("keydown", (event) => {
        if (event.key === "+" && event.shiftKey) {
            // Leaflet takes Shift for three levels at once; on many keyboards it makes the plus.
            event.stopImmediatePropagation();
            map.zoomIn();
        }
    }, true);
    byProgram(showWorld);
    new ResizeObserver(resized).observe(map.getContainer());
    L.control.scale({position: "bottomleft", imperial: false, maxWidth: 90}).addTo(map);
    document.getElementById("zoom-in").addEventListener("click", () => map.zoomIn());
    document.getElementById("zoom-out").addEventListener("click", () => map.zoomOut());

    return {
        map,
        byProgram,
        nearestCopy,
        /** The person's or, within byProgram, the program's move. */
        setView,
        /** Shows all of {south, west, north, east}; later, while nothing of the map is seen. */
        fit,
        resized,
        /** The level for a position whose own is `chosen`. */
        levelFor(chosen) {
            if (Number.isFinite(chosen) && chosen >= 2) {
                return Math.min(levels.last, Math.round(chosen));
            }
            return map.getZoom() >= closeLevel ? map.getZoom() : placeLevel;
        },
        /** Pans if the position is out of sight, by the height of a pin from the upper edge. */
        bringIntoSight(lat, lon) {
            const at = map.latLngToContainerPoint([lat, nearestCopy(lon)]);
            const size = map.getSize();
            if (at.x < 16 || at.y < 44 || at.x > size.x - 16 || at.y > size.y - 8) {
                setView(lat, lon, map.getZoom());
            }
        },
        /** [west, north, east, south] of what is seen, in units of the world's map. */
        seen() {
            const bounds = map.getBounds();
            const {x, y} = mapPage.positions;
            return [x(bounds.getWest()), y(bounds.getNorth()), x(bounds.getEast()),
                    y(bounds.getSouth())];
        },
        /** Whether anything but the world at the start has been shown. */
        hasMoved: () => moved,
        /** Whether it is the person who has brought the map where it is. */
        isByPerson: () => byPerson,
        /** Whether the person has moved the map since it was last fitted to something. */
        isTouched: () => touched,
        showWorld: () => byProgram(showWorld),
    };
})();
