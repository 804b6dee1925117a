// Rings that run across the date line, where their source lets the longitude jump from 180 to -180.

const turn = 360;

/** Whether the ring is but the foot of the map, around the South Pole, which is no coast. */
export const isFoot = (ring) => ring.every(([, lat]) => lat < -89);

/**
 * The closed ring with longitudes that go on beyond 180 or -180 instead of jumping. One that goes
 * around the South Pole, where the world's map has its foot, is closed along that.
 */
export function unwound(ring) {
  let shift = 0;
  const points = ring.map(([lon, lat], i) => {
    const step = i > 0 ? lon - ring[i - 1][0] : 0;
    shift -= Math.abs(step) > turn / 2 ? Math.sign(step) * turn : 0;
    return [lon + shift, lat];
  });
  return shift === 0 ? points : [...points, [points.at(-1)[0], -90], [points[0][0], -90], points[0]];
}

/** The part of a closed ring for which side * lon <= side * limit, closed along the limit. */
function clipped(ring, limit, side) {
  const inside = ([lon]) => side * lon <= side * limit;
  const kept = [];
  for (let i = 1; i < ring.length; i++) {
    const [a, b] = [ring[i - 1], ring[i]];
    if (inside(a)) {
      kept.push(a);
    }
    if (inside(a) !== inside(b)) {
      kept.push([limit, a[1] + ((limit - a[0]) / (b[0] - a[0])) * (b[1] - a[1])]);
    }
  }
  return kept.length > 2 ? [...kept, kept[0]] : [];
}

/** The ring's parts on either side of the date line, each within -180 to 180. */
export function cutAtDateLine(ring) {
  const whole = unwound(ring);
  const parts = [];
  for (const shift of [-turn, 0, turn]) {
    const moved = whole.map(([lon, lat]) => [lon + shift, lat]);
    const part = clipped(clipped(moved, 180, 1), -180, -1);
    if (part.some(([lon]) => Math.abs(lon) < 180)) {
      parts.push(part);
    }
  }
  return parts;
}
