// The world that comes with the page: land, water and borders, at every level and round the date
// line.
"use strict";

mapPage.baseMap = (() => {
    /** Large: what a canvas costs is mostly that there is one. */
    const tileSize = 512;
    /** Pixels around a tile within which it has shapes, so that cut edges stay out of sight. */
    const around = 16;
    /** Tiles whose shapes are remembered: several views, and what leads to them. */
    const remembered = 300;
    /** Milliseconds of drawing at a stretch. */
    const stretch = 8;
    /** Apart by less than this many pixels, points of an outline look like one. */
    const closest = 0.5;
    /** The level from which the grid is drawn. */
    const firstOfGrid = 8;

    let world = null; // {land, borders}: [{box, points}]
    let cuts = new Map(); // shapes by tile, the oldest first
    const waiting = [];

    const shape = (points) => ({box: mapPage.clipping.boxOf(points), points});

    /**
     * A flat list of a first point and differences, in parts of a degree, as x and y. Where it
     * crosses the date line, x goes on beyond the world's edge.
     */
    function decoded(flat, unit) {
        const points = new Array(flat.length);
        let lon = 0;
        let lat = 0;
        for (let i = 0; i + 1 < flat.length; i += 2) {
            const step = flat[i] / unit;
            lon += i > 0 && Math.abs(step) > 180 ? step - 360 * Math.sign(step) : step;
            lat += flat[i + 1] / unit;
            points[i] = mapPage.positions.x(lon);
            points[i + 1] = mapPage.positions.y(lat);
        }
        return points;
    }

    /** An outline that has gone round the world encloses a pole: it is closed along the edge. */
    function closed(ring) {
        const [first, last] = [ring[0], ring[ring.length - 2]];
        if (Math.abs(last - first) < mapPage.worldSize / 2) {
            return ring;
        }
        const edge = ring[1] > mapPage.worldSize / 2 ? mapPage.worldSize : 0;
        return [...ring, last, ring[1], last, edge, first, edge];
    }

    /** The same where it lies in the world and, when it goes beyond the edge, as it comes back. */
    function allRound(points) {
        const size = mapPage.worldSize;
        return [0, -size, size]
            .map((shift) => shape(points.map((value, i) => (i % 2 === 0 ? value + shift : value))))
            .filter(({box}) => box[0] < size && box[2] > 0);
    }

    /**
     * The shapes of a tile, cut from those of the tile that holds it: the deeper, the fewer points
     * there are to look at.
     */
    function shapesOf(z, x, y) {
        if (z < 0) {
            return world;
        }
        const key = `${z}/${x}/${y}`;
        const known = cuts.get(key);
        if (known) {
            return known;
        }
        const outer = shapesOf(z - 1, x >> 1, y >> 1);
        const side = mapPage.worldSize / 2 ** z;
        const edge = side * (around / tileSize);
        const box = [x * side - edge, y * side - edge, (x + 1) * side + edge, (y + 1) * side + edge];
        const cut = {
            land: outer.land.map((ring) => mapPage.clipping.area(ring, box))
                .filter((ring) => ring.length > 4).map(shape),
            borders: outer.borders.flatMap((line) => mapPage.clipping.line(line, box)).map(shape),
        };
        cuts.set(key, cut);
        if (cuts.size > remembered) {
            cuts.delete(cuts.keys().next().value);
        }
        return cut;
    }

    function trace(context, {box, points}, left, top, scale, isLine) {
        if (!isLine && (box[2] - box[0]) * scale < closest && (box[3] - box[1]) * scale < closest) {
            return; // an island that is not to be seen
        }
        let lastX = (points[0] - left) * scale;
        let lastY = (points[1] - top) * scale;
        context.moveTo(lastX, lastY);
        for (let i = 2; i < points.length; i += 2) {
            const x = (points[i] - left) * scale;
            const y = (points[i + 1] - top) * scale;
            if (Math.abs(x - lastX) + Math.abs(y - lastY) >= closest || i + 2 === points.length) {
                context.lineTo(x, y);
                lastX = x;
                lastY = y;
            }
        }
    }

    /** Degrees between the lines of the grid, far enough apart to be no pattern. */
    function gridStep(level) {
        const most = 360 / 2 ** level;
        const power = 10 ** Math.floor(Math.log10(most));
        return [5, 2, 1].find((part) => part * power <= most) * power;
    }

    /** On a map without streets, what shows that it moves and how far things are apart. */
    function drawGrid(context, {x, y, z}, side) {
        const degrees = gridStep(z);
        const first = (x * side * 360) / mapPage.worldSize - 180;
        context.beginPath();
        for (let n = Math.ceil(first / degrees - 1e-9); ; ++n) {
            const at = (mapPage.positions.x(n * degrees) - x * side) * (tileSize / side);
            if (at >= tileSize - 1e-6) {
                break;
            }
            context.moveTo(Math.round(at) + 0.5, 0);
            context.lineTo(Math.round(at) + 0.5, tileSize);
        }
        for (let n = Math.floor(mapPage.positions.latAt(y * side) / degrees + 1e-9); ; --n) {
            const at = (mapPage.positions.y(n * degrees) - y * side) * (tileSize / side);
            if (at >= tileSize - 1e-6 || n * degrees < -85) {
                break;
            }
            context.moveTo(0, Math.round(at) + 0.5);
            context.lineTo(tileSize, Math.round(at) + 0.5);
        }
        context.lineWidth = 1;
        context.strokeStyle = mapPage.look.colours.grid;
        context.stroke();
    }

    /** How often the world is halved to get to tiles of that level. */
    const depthAt = (level) => level - Math.log2(tileSize / mapPage.worldSize);

    function drawTile(canvas, coords) {
        const {land, water, border} = mapPage.look.colours;
        const dense = canvas.width / tileSize;
        const context = canvas.getContext("2d");
        context.setTransform(dense, 0, 0, dense, 0, 0);
        context.fillStyle = water;
        context.fillRect(0, 0, tileSize, tileSize);
        const depth = depthAt(coords.z);
        const side = mapPage.worldSize / 2 ** depth;
        const shapes = shapesOf(depth, coords.x, coords.y);
        const place = [coords.x * side, coords.y * side, tileSize / side];
        context.beginPath();
        shapes.land.forEach((ring) => trace(context, ring, ...place, false));
        context.fillStyle = land;
        context.fill("evenodd");
        context.beginPath();
        shapes.borders.forEach((line) => trace(context, line, ...place, true));
        context.lineWidth = coords.z < 4 ? 0.75 : 1.25;
        context.strokeStyle = border;
        context.stroke();
        if (coords.z >= firstOfGrid) {
            drawGrid(context, coords, side);
        }
    }

    function drawWaiting() {
        const start = performance.now();
        while (waiting.length > 0 && performance.now() - start < stretch) {
            const {canvas, coords, done} = waiting.shift();
            if (!canvas.given) {
                drawTile(canvas, coords);
                done(null, canvas);
            }
        }
        if (waiting.length > 0) {
            requestAnimationFrame(drawWaiting);
        }
    }

    const Tiles = L.GridLayer.extend({
        createTile(coords, done) {
            const canvas = document.createElement("canvas");
            canvas.width = canvas.height = Math.round(tileSize * (window.devicePixelRatio || 1));
            if (world) {
                waiting.push({canvas, coords, done});
                if (waiting.length === 1) {
                    requestAnimationFrame(drawWaiting);
                }
            }
            return canvas;
        },
    });
    const layer = new Tiles({tileSize, keepBuffer: 1, updateWhenZooming: false, className: "base"});
    layer.on("tileunload", ({tile}) => { tile.given = true; });
    mapPage.look.changed(() => layer.redraw());

    return {
        layer,
        firstOfGrid,
        gridStep,
        /** The world as {unit, land, borders}, lists of flat lists. */
        setWorld({unit, land, borders}) {
            world = {land: land.flatMap((ring) => allRound(closed(decoded(ring, unit)))),
                     borders: borders.flatMap((line) => allRound(decoded(line, unit)))};
            cuts = new Map();
            layer.redraw();
        },
    };
})();
