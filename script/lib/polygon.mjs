// Plane geometry of polygons: lists of closed rings of [x, y], the outer one first.

/** The area within a ring, in its units squared. */
export function ringArea(ring) {
  let twice = 0;
  for (let i = 1; i < ring.length; i++) {
    twice += ring[i - 1][0] * ring[i][1] - ring[i][0] * ring[i - 1][1];
  }
  return Math.abs(twice) / 2;
}

/** The stretches of the line at height y that lie within the polygon, as [from, to]. */
function stretchesAt(polygon, y) {
  const crossings = [];
  for (const ring of polygon) {
    for (let i = 1; i < ring.length; i++) {
      const [[ax, ay], [bx, by]] = [ring[i - 1], ring[i]];
      if (ay > y !== by > y) {
        crossings.push(ax + ((y - ay) / (by - ay)) * (bx - ax));
      }
    }
  }
  crossings.sort((a, b) => a - b);
  return crossings.flatMap((x, i) => (i % 2 === 1 ? [[crossings[i - 1], x]] : []));
}

function distanceToEdges(polygon, [x, y]) {
  let least = Infinity;
  for (const ring of polygon) {
    for (let i = 1; i < ring.length; i++) {
      const [ax, ay] = ring[i - 1];
      const [dx, dy] = [ring[i][0] - ax, ring[i][1] - ay];
      const along = ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy || 1);
      const t = Math.min(1, Math.max(0, along));
      least = Math.min(least, Math.hypot(x - ax - t * dx, y - ay - t * dy));
    }
  }
  return least;
}

/** A point well inside the polygon: of a raster of candidates the one farthest from all edges. */
export function innerPoint(polygon) {
  const steps = 24;
  const heights = polygon[0].map(([, y]) => y);
  const [low, high] = [Math.min(...heights), Math.max(...heights)];
  let best = { distance: -1, point: polygon[0][0] };
  for (let row = 1; row < steps; row++) {
    const y = low + ((high - low) * row) / steps;
    for (const [from, to] of stretchesAt(polygon, y)) {
      for (const part of [0.5, 0.25, 0.75, 0.375, 0.625]) {
        const point = [from + (to - from) * part, y];
        const distance = distanceToEdges(polygon, point);
        if (distance > best.distance) {
          best = { distance, point };
        }
      }
    }
  }
  return best.point;
}
