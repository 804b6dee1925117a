// Where the photos come to lie while the camera's clock is being turned: a pale dot each, which
// slides along the track with the turn.
"use strict";

mapPage.ghosts = (() => {
    const most = 500;
    const size = 5; // pixels from the middle to the edge
    /** Of ghosts within a square of so many pixels one is drawn: the others are hidden by it. */
    const cell = 3;
    /** Seconds to the nearest point from which on a photo is far from the track. */
    const far = 300;

    let times = []; // of the photos, ascending, as the clock is stored
    let turnedBy = null; // seconds; null while no hand is at the clock
    let points = null; // all tracks' points in the order of their times: {time, x, y}
    const layer = new mapPage.CanvasLayer(paint, {pane: "ghosts"});

    /** Points of one log come in order already, and those of several log after log as a rule. */
    function pointsByTime(tracks) {
        const all = tracks.map((track) => ({
            track, count: Math.min(track.x.length, track.time?.length ?? 0)}))
            .sort((a, b) => (a.track.time?.[0] ?? 0) - (b.track.time?.[0] ?? 0));
        const count = all.reduce((sum, one) => sum + one.count, 0);
        const found = {time: new Float64Array(count), x: new Float64Array(count),
                       y: new Float64Array(count)};
        let filled = 0;
        let inOrder = true;
        for (const {track, count: its} of all) {
            for (let i = 0; i < its; ++i) {
                if (Number.isFinite(track.time[i])) {
                    found.time[filled] = track.time[i];
                    found.x[filled] = track.x[i];
                    found.y[filled] = track.y[i];
                    inOrder &&= filled === 0 || found.time[filled - 1] <= track.time[i];
                    ++filled;
                }
            }
        }
        const order = inOrder ? null
            : Uint32Array.from({length: filled}, (_, i) => i)
                .sort((a, b) => found.time[a] - found.time[b] || a - b);
        for (const key of Object.keys(found)) {
            const list = found[key].subarray(0, filled);
            found[key] = order ? Float64Array.from(order, (i) => list[i]) : list;
        }
        return found;
    }

    /** The place in `time` of what is nearest to an instant; of two the earlier. */
    function nearest(time, instant) {
        let [low, high] = [0, time.length];
        while (low < high) {
            const middle = (low + high) >> 1;
            if (time[middle] < instant) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        const isBeforeNearer = low === time.length ||
            (low > 0 && instant - time[low - 1] <= time[low] - instant);
        return isBeforeNearer ? low - 1 : low;
    }

    /** Those that are seen, one a cell: {left, top, isFar}. */
    function seen(view) {
        const {time, x, y} = points;
        const across = Math.ceil(view.width / cell);
        const taken = new Uint8Array(across * Math.ceil(view.height / cell));
        const found = [];
        for (const stored of times) {
            const instant = stored + turnedBy;
            const i = nearest(time, instant);
            const top = y[i] * view.scale - view.top;
            const isFar = Math.abs(time[i] - instant) > far;
            const world = mapPage.worldSize;
            const eastOfWorld = x[i] - world * Math.floor(x[i] / world); // tracks go on beyond it
            for (const copy of view.copies) {
                const left = (eastOfWorld + copy * world) * view.scale - view.left;
                if (left < 0 || left >= view.width || top < 0 || top >= view.height) {
                    continue;
                }
                const at = Math.floor(top / cell) * across + Math.floor(left / cell);
                if (!taken[at]) {
                    taken[at] = 1;
                    found.push({left, top, isFar});
                }
            }
        }
        return found;
    }

    /** Of too many every so-manieth. */
    function thinned(all) {
        return all.length <= most ? all
            : Array.from({length: most}, (_, i) => all[Math.floor((i * all.length) / most)]);
    }

    /** In one go: a picture for each took fifty times as long where a processor draws. */
    function drawAll(context, some, ground, ring) {
        context.beginPath();
        for (const {left, top} of some) {
            context.moveTo(left + size, top);
            context.arc(left, top, size, 0, 2 * Math.PI);
        }
        context.fillStyle = ground;
        context.fill();
        context.lineWidth = 2;
        context.strokeStyle = ring;
        context.stroke();
    }

    function paint(context, view) {
        if (turnedBy === null || times.length === 0) {
            return;
        }
        points ??= pointsByTime(mapPage.tracks.all());
        if (points.time.length === 0) {
            return;
        }
        const {accent, land, warning} = mapPage.look.colours;
        const shown = thinned(seen(view));
        drawAll(context, shown.filter(({isFar}) => isFar), `${land}a0`, warning);
        drawAll(context, shown.filter(({isFar}) => !isFar), `${accent}b3`, `${land}e0`);
    }

    mapPage.look.changed(() => layer.redraw());

    return {
        layer,
        /** {by: seconds, or null at the end, times: [] when a turn begins} */
        turn(message) {
            if (Array.isArray(message.times)) {
                times = message.times.filter(Number.isFinite);
            }
            turnedBy = Number.isFinite(message.by) ? message.by : null;
            if (turnedBy === null) {
                times = [];
            }
            layer.redraw();
        },
        /** The tracks are others. */
        forgetPoints() {
            points = null;
            layer.redraw();
        },
    };
})();
