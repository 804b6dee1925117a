// The names on the bundled map: countries from afar, places from near. No name covers another.
"use strict";

mapPage.labels = (() => {
    const levels = {lastOfCountries: 7, firstOfPlaces: 6};
    /** A country is named where it is about as wide as its name. */
    const leastWidth = 0.7;
    /** Square pixels of the view for one place. */
    const roomForPlace = 12000;
    const settles = 150; // milliseconds after a move until places are asked for
    const longest = 60; // letters of a name
    /** Where no place is seen, they are looked for within so many widths of the view around it. */
    const widths = [3, 12, 48, 192, 768];
    const mostBeyond = 3;

    let countries = []; // {name, x, y, size}, the largest first
    let places = []; // {name, x, y}
    let beyond = []; // the nearest ones, {name, x, y, metres}, where none is seen
    let asked = null;
    let askLater = 0;

    const layer = new mapPage.CanvasLayer(paint, {pane: "labels"});

    function overlaps(taken, box) {
        return taken.some((other) => mapPage.clipping.meet(other, box));
    }

    /** Writes the name with its middle there if there is room for it. */
    function write(context, taken, {name, x, y}, dot) {
        const half = context.measureText(name).width / 2;
        const middle = dot ? y - 10 : y;
        const box = [x - half - 6, middle - 8, x + half + 6, dot ? y + 4 : middle + 8];
        if (overlaps(taken, box)) {
            return;
        }
        taken.push(box);
        context.strokeText(name, x, middle);
        context.fillText(name, x, middle);
        if (dot) {
            context.beginPath();
            context.arc(x, y, 2, 0, 2 * Math.PI);
            context.fill();
        }
    }

    function writeAll(context, view, taken, names, dot) {
        for (const name of names) {
            for (const copy of view.copies) {
                const x = (name.x + copy * mapPage.worldSize) * view.scale - view.left;
                const y = name.y * view.scale - view.top;
                if (x > 0 && x < view.width && y > 0 && y < view.height) {
                    write(context, taken, {name: name.name, x, y}, dot);
                }
            }
        }
    }

    function paint(context, view) {
        const {level} = view;
        const taken = [];
        context.textAlign = "center";
        context.textBaseline = "middle";
        context.lineJoin = "round";
        context.lineWidth = 3;
        context.fillStyle = mapPage.look.colours.name;
        context.strokeStyle = mapPage.look.colours.nameGround;
        if (level >= levels.firstOfPlaces) {
            context.font = "13px system-ui, sans-serif";
            writeAll(context, view, taken, places, true);
            context.font = "12px system-ui, sans-serif";
            mapPage.bearings.paint(context, view, layer.around, taken, beyond);
        }
        if (level <= levels.lastOfCountries) {
            const degree = (view.scale * mapPage.worldSize) / 360;
            context.font = level < 4 ? "11px system-ui, sans-serif" : "600 14px system-ui, sans-serif";
            writeAll(context, view, taken, countries.filter(({name, size}) =>
                size * degree >= leastWidth * context.measureText(name).width), false);
        }
    }

    const placeOf = (name, lat, lon) => ({name: String(name).slice(0, longest),
        x: mapPage.positions.x(lon), y: mapPage.positions.y(lat)});

    async function placesIn(bounds, limit, signal) {
        const whole = bounds.getEast() - bounds.getWest() >= 360;
        const box = new URLSearchParams({
            south: Math.max(-90, bounds.getSouth()), north: Math.min(90, bounds.getNorth()),
            west: whole ? -180 : mapPage.positions.wrapped(bounds.getWest()),
            east: whole ? 180 : mapPage.positions.wrapped(bounds.getEast()),
            limit,
        });
        const answer = await fetch(`names?${box}`, {signal});
        return answer.ok ? answer.json() : [];
    }

    /** The nearest ones to the middle of a view that shows none. */
    async function placesBeyond(bounds, middle, signal) {
        for (const width of widths) {
            const found = await placesIn(bounds.pad(width), 50, signal);
            if (found.length > 0) {
                return found.map(({name, lat, lon}) => {
                    const near = mapPage.view.nearestCopy(lon);
                    return {...placeOf(name, lat, near), metres: middle.distanceTo([lat, near])};
                }).sort((one, other) => one.metres - other.metres).slice(0, mostBeyond);
            }
        }
        return [];
    }

    async function ask() {
        asked?.abort();
        asked = new AbortController();
        const {signal} = asked;
        const {map} = mapPage.view;
        const [bounds, size] = [map.getBounds(), map.getSize()];
        const limit = Math.max(5, Math.min(200, Math.round((size.x * size.y) / roomForPlace)));
        try {
            const found = await placesIn(bounds, limit, signal);
            const further = found.length > 0 ? []
                : await placesBeyond(bounds, map.getCenter(), signal);
            places = found.map(({name, lat, lon}) => placeOf(name, lat, lon));
            beyond = further;
            layer.redraw();
        } catch {
            // Overtaken by the next question, or there are no names to be had.
        }
    }

    function askSoon() {
        clearTimeout(askLater);
        const {map} = mapPage.view;
        if (map.hasLayer(layer) && map.getZoom() >= levels.firstOfPlaces && map.getSize().x > 0) {
            askLater = setTimeout(ask, settles);
        }
    }

    mapPage.view.map.on("moveend resize", askSoon);
    layer.on("add", askSoon);
    mapPage.look.changed(() => layer.redraw());

    return {
        layer,
        /** [name, lat, lon, size in degrees across] of each. */
        setCountries(all) {
            countries = all.map(([name, lat, lon, size]) => ({...placeOf(name, lat, lon), size}))
                .sort((one, other) => other.size - one.size);
            layer.redraw();
        },
    };
})();
