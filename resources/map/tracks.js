// The tracks: as many points as a long journey has, drawn with as few as can be seen.
"use strict";

mapPage.tracks = (() => {
    /** Points that are looked at, simplified and drawn together. */
    const pointsInBlock = 256;
    /** How far a line may be from the true one, in pixels: not to be seen. */
    const tolerance = 0.6;
    const width = {line: 3, casing: 5.5};

    let tracks = []; // {number, lat, lon, time, x, y, blocks}
    let box = null; // {south, west, north, east}
    const layer = new mapPage.CanvasLayer(paint, {pane: "tracks"});

    /** The whole world's units; x goes on beyond the date line where the track crosses it. */
    function measured({number, lat, lon, time}) {
        const count = Math.min(lat.length, lon.length);
        const track = {number, lat, lon, time, blocks: [],
                       x: new Float64Array(count), y: new Float64Array(count)};
        let turns = 0;
        for (let i = 0; i < count; ++i) {
            if (i > 0 && Math.abs(lon[i] - lon[i - 1]) > 180) {
                turns += lon[i] < lon[i - 1] ? 1 : -1;
            }
            track.x[i] = mapPage.positions.x(lon[i]) + turns * mapPage.worldSize;
            track.y[i] = mapPage.positions.y(lat[i]);
        }
        for (let first = 0; first === 0 || first < count - 1; first += pointsInBlock) {
            track.blocks.push(blockOf(track, first, Math.min(first + pointsInBlock, count - 1)));
        }
        return track;
    }

    /** Its last point is the next one's first. */
    function blockOf({x, y}, first, last) {
        const around = [Infinity, Infinity, -Infinity, -Infinity];
        for (let i = first; i <= last; ++i) {
            around[0] = Math.min(around[0], x[i]);
            around[1] = Math.min(around[1], y[i]);
            around[2] = Math.max(around[2], x[i]);
            around[3] = Math.max(around[3], y[i]);
        }
        return {first, last, box: around, lines: []};
    }

    /** What is drawn of a block at a scale of pixels to units, made when it is first seen there. */
    function lineOf(track, block, scale) {
        const level = Math.round(Math.log2(scale));
        block.lines[level] ??= mapPage.simplify(track.x, track.y, block.first, block.last,
                                                tolerance / scale);
        return block.lines[level];
    }

    /** visit(track, block, shift) for what lies within the box, in each copy of the world. */
    function forBlocksIn(around, copies, visit) {
        for (const track of tracks) {
            for (const block of track.blocks) {
                for (const copy of copies) {
                    const shift = copy * mapPage.worldSize;
                    if (block.box[0] + shift <= around[2] && block.box[2] + shift >= around[0] &&
                        block.box[1] <= around[3] && block.box[3] >= around[1]) {
                        visit(track, block, shift);
                    }
                }
            }
        }
    }

    /** Those, and the ones whose tracks lead over their edges. */
    function withNeighbours(copies) {
        return [copies[0] - 1, ...copies, copies[copies.length - 1] + 1];
    }

    function stroke(context, lines, lineWidth, colour) {
        context.lineWidth = lineWidth;
        context.strokeStyle = colour;
        lines.forEach((line) => context.stroke(line));
    }

    function paint(context, view) {
        const edge = width.casing;
        const around = [(view.left - edge) / view.scale, (view.top - edge) / view.scale,
                        (view.left + view.width + edge) / view.scale,
                        (view.top + view.height + edge) / view.scale];
        const lines = [];
        forBlocksIn(around, withNeighbours(view.copies), (track, block, shift) => {
            const points = lineOf(track, block, view.scale);
            const line = new Path2D();
            line.moveTo((points[0] + shift) * view.scale - view.left,
                        points[1] * view.scale - view.top);
            for (let i = 2; i < points.length; i += 2) {
                line.lineTo((points[i] + shift) * view.scale - view.left,
                            points[i + 1] * view.scale - view.top);
            }
            lines.push(line);
        });
        context.lineJoin = context.lineCap = "round";
        stroke(context, lines, width.casing, mapPage.look.colours.land);
        stroke(context, lines, width.line, mapPage.look.colours.track);
    }

    function boxOf(all) {
        const around = {south: 90, west: Infinity, north: -90, east: -Infinity};
        for (const {lat, x} of all) {
            for (let i = 0; i < x.length; ++i) {
                around.south = Math.min(around.south, lat[i]);
                around.north = Math.max(around.north, lat[i]);
                around.west = Math.min(around.west, (x[i] * 360) / mapPage.worldSize - 180);
                around.east = Math.max(around.east, (x[i] * 360) / mapPage.worldSize - 180);
            }
        }
        return all.length > 0 ? around : null;
    }

    mapPage.look.changed(() => layer.redraw());

    return {
        layer,
        box: () => box,
        /** [{x: [], y: [], time: []}], x and y in units of the world's map. */
        all: () => tracks,
        /**
         * All tracks, [{number, lat: [], lon: [], time: []}]; whether there are any now where none
         * were.
         */
        set(all) {
            const before = box;
            tracks = all.filter(({lat}) => lat.length > 0).map(measured);
            box = boxOf(tracks);
            layer.redraw();
            return box !== null && !(before && box.south >= before.south &&
                box.north <= before.north && box.west >= before.west && box.east <= before.east);
        },
        /** Whether a line is seen within [west, north, east, south] of the world's map. */
        areIn(around) {
            let found = false;
            forBlocksIn(around, withNeighbours(mapPage.positions.copiesIn(around)),
                        ({x, y}, {first, last}, shift) => {
                for (let i = first; i <= last && !found; ++i) {
                    const next = Math.min(i + 1, last);
                    found = mapPage.clipping.meet(around, [
                        Math.min(x[i], x[next]) + shift, Math.min(y[i], y[next]),
                        Math.max(x[i], x[next]) + shift, Math.max(y[i], y[next])]);
                }
            });
            return found;
        },
        /**
         * The point that is nearest to a position by the line it belongs to: {number, lat, lon,
         * time}; null when no line is within `reach` units of the world's map.
         */
        near(lat, lon, reach) {
            const [x, y] = [mapPage.positions.x(lon), mapPage.positions.y(lat)];
            let nearest = null;
            let least = reach * reach;
            const here = Math.floor(x / mapPage.worldSize);
            forBlocksIn([x - reach, y - reach, x + reach, y + reach], [here - 1, here, here + 1],
                        (track, block, shift) => {
                for (let i = block.first; i < Math.max(block.last, block.first + 1); ++i) {
                    const next = Math.min(i + 1, block.last);
                    const squared = mapPage.simplify.squaredDistance(
                        x - shift, y, track.x[i], track.y[i], track.x[next], track.y[next]);
                    if (squared <= least) {
                        least = squared;
                        nearest = {track, i, next, x: x - shift};
                    }
                }
            });
            if (!nearest) {
                return null;
            }
            const {track, i, next} = nearest;
            const away = (n) => Math.hypot(track.x[n] - nearest.x, track.y[n] - y);
            const chosen = away(next) < away(i) ? next : i;
            return {number: track.number, lat: track.lat[chosen], lon: track.lon[chosen],
                    time: track.time?.[chosen] ?? null};
        },
    };
})();
