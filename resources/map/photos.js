// The photos that have a position: a dot each, those that are selected above the others.
"use strict";

mapPage.photos = (() => {
    const sizes = {photo: 5, selected: 7}; // pixels from the middle to the edge
    /** Of photos within a square of so many pixels one is drawn: the others are hidden by it. */
    const cell = 3;

    const photos = new Map(); // by id: {name, lat, lon, x, y}
    let selected = new Set();
    let count; // of all selected ones; unknown until the program tells
    const layer = new mapPage.CanvasLayer(paint, {pane: "photos"});

    /** The dot as a picture, which is drawn faster than a circle. */
    function dot(size, ground, ring) {
        const dense = window.devicePixelRatio || 1;
        const canvas = document.createElement("canvas");
        canvas.width = canvas.height = Math.ceil((2 * size + 2) * dense);
        const context = canvas.getContext("2d");
        context.scale(dense, dense);
        context.arc(size + 1, size + 1, size - 1, 0, 2 * Math.PI);
        context.fillStyle = ground;
        context.fill();
        context.lineWidth = 2.5;
        context.strokeStyle = ring;
        context.stroke();
        return {canvas, side: canvas.width / dense};
    }

    function drawAll(context, view, some, {canvas, side}) {
        const across = Math.ceil(view.width / cell);
        const drawn = new Uint8Array(across * Math.ceil(view.height / cell));
        for (const {x, y} of some) {
            for (const copy of view.copies) {
                const left = (x + copy * mapPage.worldSize) * view.scale - view.left;
                const top = y * view.scale - view.top;
                const at = Math.floor(top / cell) * across + Math.floor(left / cell);
                if (left >= 0 && left < view.width && top >= 0 && top < view.height && !drawn[at]) {
                    drawn[at] = 1;
                    context.drawImage(canvas, left - side / 2, top - side / 2, side, side);
                }
            }
        }
    }

    function paint(context, view) {
        if (photos.size === 0) {
            return;
        }
        const {land, accent} = mapPage.look.colours;
        drawAll(context, view, photos.values(), dot(sizes.photo, land, accent));
        const highlighted = [...selected].map((id) => photos.get(id)).filter(Boolean);
        drawAll(context, view, highlighted, dot(sizes.selected, accent, land));
    }

    mapPage.look.changed(() => layer.redraw());

    /** The same as a distance to the east and to the south of the photo's nearest copy. */
    function away(photo, x, y) {
        const east = photo.x - x;
        return [east - mapPage.worldSize * Math.round(east / mapPage.worldSize), photo.y - y];
    }

    return {
        layer,
        /** Whether a photo is seen within [west, north, east, south] of the world's map. */
        areIn([west, north, east, south]) {
            const middle = [(west + east) / 2, (north + south) / 2];
            return [...photos.values()].some((photo) => {
                const [x, y] = away(photo, ...middle);
                return Math.abs(x) <= (east - west) / 2 && Math.abs(y) <= (south - north) / 2;
            });
        },
        /** Those within `reach` units of the world's map, the nearest first: [{name, lat, lon}]. */
        near(lat, lon, reach) {
            const [x, y] = [mapPage.positions.x(lon), mapPage.positions.y(lat)];
            return [...photos.values()]
                .map((photo) => ({photo, distance: Math.hypot(...away(photo, x, y))}))
                .filter(({distance}) => distance <= reach)
                .sort((one, other) => one.distance - other.distance)
                .map(({photo}) => photo);
        },
        countOfSelected: () => count,
        /** The name of the only photo that is selected; "" when there is none such. */
        nameOfSelected: () => (selected.size === 1 && count === 1
            ? photos.get([...selected][0])?.name ?? "" : ""),
        /** {all, photos: [{id, name, lat, lon}], gone: [id]}: all of them, or what has changed. */
        change(message) {
            if (message.all) {
                photos.clear();
            }
            for (const {id, name, lat, lon} of message.photos ?? []) {
                if (mapPage.positions.isPosition(lat, lon)) {
                    photos.set(id, {name: typeof name === "string" ? name : "", lat, lon,
                                    x: mapPage.positions.x(lon), y: mapPage.positions.y(lat)});
                }
            }
            (message.gone ?? []).forEach((id) => photos.delete(id));
            layer.redraw();
        },
        /** The selected ones that have a position, of so many that are selected. */
        select(ids, ofHowMany) {
            selected = new Set(ids);
            count = ofHowMany;
            layer.redraw();
        },
        /** {south, west, north, east} of all of them; null when there are none. */
        box() {
            const around = {south: 90, west: 180, north: -90, east: -180};
            for (const {lat, lon} of photos.values()) {
                around.south = Math.min(around.south, lat);
                around.north = Math.max(around.north, lat);
                around.west = Math.min(around.west, lon);
                around.east = Math.max(around.east, lon);
            }
            return photos.size > 0 ? around : null;
        },
    };
})();
