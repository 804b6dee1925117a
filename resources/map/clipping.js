// The parts of lines and areas that lie within a box. Both are flat arrays of x, y, x, y, ...
"use strict";

mapPage.clipping = (() => {
    /** [smallest x, smallest y, largest x, largest y] */
    function boxOf(points) {
        const box = [Infinity, Infinity, -Infinity, -Infinity];
        for (let i = 0; i < points.length; i += 2) {
            box[0] = Math.min(box[0], points[i]);
            box[1] = Math.min(box[1], points[i + 1]);
            box[2] = Math.max(box[2], points[i]);
            box[3] = Math.max(box[3], points[i + 1]);
        }
        return box;
    }

    function meet(one, other) {
        return one[0] <= other[2] && other[0] <= one[2] && one[1] <= other[3] && other[1] <= one[3];
    }

    function within(box, outer) {
        return box[0] >= outer[0] && box[1] >= outer[1] && box[2] <= outer[2] && box[3] <= outer[3];
    }

    /** The part of an area on the inner side of one edge (after Sutherland and Hodgman). */
    function cut(ring, axis, limit, sign) {
        const result = [];
        const count = ring.length;
        for (let i = 0; i < count; i += 2) {
            const before = i === 0 ? count - 2 : i - 2;
            const at = (ring[i + axis] - limit) * sign;
            const atBefore = (ring[before + axis] - limit) * sign;
            if ((at < 0) !== (atBefore < 0)) {
                const part = atBefore / (atBefore - at);
                const crossing = [ring[before] + part * (ring[i] - ring[before]),
                                  ring[before + 1] + part * (ring[i + 1] - ring[before + 1])];
                crossing[axis] = limit;
                result.push(crossing[0], crossing[1]);
            }
            if (at >= 0) {
                result.push(ring[i], ring[i + 1]);
            }
        }
        return result;
    }

    /** An area's part within the box; [] for none. Where it is cut, it follows the box's edge. */
    function area({box: own, points}, box) {
        if (!meet(own, box)) {
            return [];
        }
        if (within(own, box)) {
            return points;
        }
        let ring = points;
        for (const [axis, index, sign] of [[0, 0, 1], [1, 1, 1], [0, 2, -1], [1, 3, -1]]) {
            ring = cut(ring, axis, box[index], sign);
        }
        return ring;
    }

    /** The stretches of a line whose pieces come near the box, each with the points just beyond. */
    function line({box: own, points}, box) {
        if (!meet(own, box)) {
            return [];
        }
        if (within(own, box)) {
            return [points];
        }
        const stretches = [];
        let stretch = null;
        for (let i = 2; i < points.length; i += 2) {
            const [x, y, nextX, nextY] = [points[i - 2], points[i - 1], points[i], points[i + 1]];
            if (Math.max(x, nextX) < box[0] || Math.min(x, nextX) > box[2] ||
                Math.max(y, nextY) < box[1] || Math.min(y, nextY) > box[3]) {
                stretch = null;
            } else if (stretch) {
                stretch.push(nextX, nextY);
            } else {
                stretch = [x, y, nextX, nextY];
                stretches.push(stretch);
            }
        }
        return stretches;
    }

    return {boxOf, meet, area, line};
})();
