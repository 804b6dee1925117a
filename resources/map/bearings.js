// What to go by where the bundled map shows little: the positions of its grid's lines along the
// edges and, where no place is seen, in which directions the nearest ones lie.
"use strict";

mapPage.bearings = (() => {
    /** Pixels of the view's edges that belong to what lies over the map. */
    const edges = {top: 48, right: 12, bottom: 40, left: 52};
    /** From left and right along the upper edge: the buttons' and the search field's. */
    const [leftOfTop, rightOfTop] = [48, 220];
    const lineHeight = 16;
    const longestName = 30;
    const tenths = new Intl.NumberFormat(document.documentElement.lang,
                                         {minimumFractionDigits: 1, maximumFractionDigits: 1});

    /** [left, top, right, bottom] of the view in the pixels of the canvas. */
    function viewOf({width, height}, {x, y}) {
        return [x, y, width - x, height - y];
    }

    function writeFree(context, taken, text, x, y) {
        const half = context.measureText(text).width / 2 + 6;
        const box = [x - half, y - lineHeight / 2, x + half, y + lineHeight / 2];
        if (taken.some((other) => mapPage.clipping.meet(other, box))) {
            return false;
        }
        taken.push(box);
        context.strokeText(text, x, y);
        context.fillText(text, x, y);
        return true;
    }

    const degreesText = (degrees, digits, [plus, minus]) =>
        `${Math.abs(degrees).toFixed(digits)}\u00b0 ${degrees < 0 ? minus : plus}`;

    /** The lines' longitudes along the upper edge, their latitudes along the right one. */
    function writeGrid(context, view, around, taken) {
        const step = mapPage.baseMap.gridStep(view.level);
        const digits = Math.max(0, -Math.floor(Math.log10(step) + 1e-9));
        const [left, top, right, bottom] = viewOf(view, around);
        const {positions} = mapPage;
        const lonAt = (pixel) => ((view.left + pixel) / view.scale / mapPage.worldSize) * 360 - 180;
        for (let n = Math.ceil(lonAt(left + leftOfTop) / step); ; ++n) {
            const x = positions.x(n * step) * view.scale - view.left;
            const text = degreesText(positions.wrapped(n * step), digits, "EW");
            const half = context.measureText(text).width / 2;
            if (x + half > right - rightOfTop) {
                break;
            }
            if (x - half >= left + leftOfTop) {
                writeFree(context, taken, text, x, top + 12);
            }
        }
        const latAt = (pixel) => positions.latAt((view.top + pixel) / view.scale);
        for (let n = Math.floor(latAt(top + edges.top) / step); ; --n) {
            const y = positions.y(n * step) * view.scale - view.top;
            if (y > bottom - edges.bottom || Math.abs(n * step) > 85) {
                break;
            }
            const text = degreesText(n * step, digits, "NS");
            writeFree(context, taken, text, right - context.measureText(text).width / 2 - 8, y);
        }
    }

    function distanceText(metres) {
        const km = metres / 1000;
        return `${km < 10 ? tenths.format(km) : Math.round(km)} km`;
    }

    /** A small arrow around that point. */
    function drawArrow(context, x, y, angle) {
        context.save();
        context.translate(x, y);
        context.rotate(angle);
        context.beginPath();
        context.moveTo(6, 0);
        context.lineTo(-4, -4.5);
        context.lineTo(-4, 4.5);
        context.closePath();
        context.stroke();
        context.fill();
        context.restore();
    }

    /** A place beyond the view's edge: its name and distance, by the edge, with an arrow there. */
    function writePlace(context, view, around, taken, {name, x, y, metres}) {
        const [left, top, right, bottom] = viewOf(view, around);
        const short = name.length > longestName ? `${name.slice(0, longestName - 1)}\u2026` : name;
        const text = `${short}, ${distanceText(metres)}`;
        const half = context.measureText(text).width / 2;
        const [middleX, middleY] = [(left + right) / 2, (top + bottom) / 2];
        const east = x * view.scale - view.left - middleX;
        const south = y * view.scale - view.top - middleY;
        const angle = Math.atan2(south, east);
        // The arrow goes ahead of the text, and both stay within the edges.
        const room = [right - edges.right - half - 70 - middleX, bottom - edges.bottom - 24 - middleY];
        const roomBefore = [middleX - left - edges.left - half - 20, middleY - top - edges.top - 24];
        if (Math.min(...room, ...roomBefore) <= 0) {
            return;
        }
        const part = Math.min(Math.abs((east < 0 ? roomBefore : room)[0] / east),
                              Math.abs((south < 0 ? roomBefore : room)[1] / south));
        if (part >= 1) {
            return; // the map has been moved: it is seen now
        }
        const [atX, atY] = [middleX + part * east, middleY + part * south];
        if (writeFree(context, taken, text, atX, atY)) {
            const ahead = Math.min((half + 14) / Math.abs(Math.cos(angle)),
                                   18 / Math.abs(Math.sin(angle)));
            drawArrow(context, atX + ahead * Math.cos(angle), atY + ahead * Math.sin(angle), angle);
        }
    }

    return {
        /**
         * Onto a canvas that reaches `around` beyond the view; `taken` are the boxes of what is
         * written, `beyond` the places that are not seen, {name, x, y, metres}, the nearest first.
         */
        paint(context, view, around, taken, beyond) {
            beyond.forEach((place) => writePlace(context, view, around, taken, place));
            if (view.level >= mapPage.baseMap.firstOfGrid) {
                writeGrid(context, view, around, taken);
            }
        },
    };
})();
