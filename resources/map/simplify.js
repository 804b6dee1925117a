// A line with fewer points that looks the same.
"use strict";

/**
 * The points of x, y from first to last that are needed for a line that is hardly further than
 * `tolerance` from the whole one, as a flat array of x, y (after Ramer, Douglas and Peucker).
 *
 * Quadratic in the worst case: give it stretches of a few hundred points. It is called for hundreds
 * of them between two pictures, and makes nothing but its result.
 */
mapPage.simplify = (() => {
    const most = 1024;
    const points = new Int32Array(most);
    const needed = new Uint8Array(most);
    const open = new Int32Array(2 * most); // stretches to be looked at, by their ends

    /** Keeps those that are apart; in most logs that leaves few to look at closely. */
    function keepApart(x, y, first, last, tolerance) {
        let count = 0;
        let at = first;
        points[count++] = first;
        for (let i = first + 1; i < last; ++i) {
            if (Math.abs(x[i] - x[at]) + Math.abs(y[i] - y[at]) >= tolerance) {
                points[count++] = i;
                at = i;
            }
        }
        points[count++] = last;
        return count;
    }

    function squaredDistance(px, py, ax, ay, bx, by) {
        const dx = bx - ax;
        const dy = by - ay;
        const length = dx * dx + dy * dy;
        const part = length === 0 ? 0 : ((px - ax) * dx + (py - ay) * dy) / length;
        const near = part < 0 ? 0 : part > 1 ? 1 : part;
        const ex = ax + near * dx - px;
        const ey = ay + near * dy - py;
        return ex * ex + ey * ey;
    }

    /** Of the kept points between two, the one furthest from the line; `from` when none is far. */
    function furthest(x, y, from, to, tolerance) {
        const a = points[from];
        const b = points[to];
        let found = from;
        let furthestSquared = tolerance * tolerance;
        for (let n = from + 1; n < to; ++n) {
            const i = points[n];
            const squared = squaredDistance(x[i], y[i], x[a], y[a], x[b], y[b]);
            if (squared > furthestSquared) {
                furthestSquared = squared;
                found = n;
            }
        }
        return found;
    }

    function simplify(x, y, first, last, tolerance) {
        const count = keepApart(x, y, first, last, tolerance);
        needed.fill(0, 0, count);
        needed[0] = needed[count - 1] = 1;
        open[0] = 0;
        open[1] = count - 1;
        for (let depth = 2; depth > 0;) {
            const to = open[--depth];
            const from = open[--depth];
            const middle = furthest(x, y, from, to, tolerance);
            if (middle > from) {
                needed[middle] = 1;
                open[depth++] = from;
                open[depth++] = middle;
                open[depth++] = middle;
                open[depth++] = to;
            }
        }
        const result = [];
        for (let n = 0; n < count; ++n) {
            if (needed[n]) {
                result.push(x[points[n]], y[points[n]]);
            }
        }
        return result;
    }

    return Object.assign(simplify, {squaredDistance, most});
})();
