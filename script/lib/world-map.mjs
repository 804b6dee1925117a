// Writes the world map: node world-map.mjs NODE_MODULES > world.json
//
//   {"unit":1000,"land":[ring,...],"borders":[line,...],"countries":[[name,lat,lon,size],...]}
//
// A ring or line is a flat list of whole numbers in 1/unit degree: the longitude and latitude of its
// first point, then the differences from point to point. A ring is closed without repeating its
// first point; outer rings and holes stand side by side, to be filled by the even-odd rule. No ring
// crosses the date line: an edge along it, or along the foot of the map, is a cut and no coast. A
// country's position is a point well inside its largest part, its size the square root of that
// part's area in square degrees.
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { countryNames } from './country-names.mjs';
import { cutAtDateLine, isFoot, unwound } from './date-line.mjs';
import { innerPoint, ringArea } from './polygon.mjs';

const modules = process.argv[2];
const require = createRequire(`${modules}/`);
const topojson = require('topojson-client');
const iso = require('i18n-iso-countries');

const unit = 1000;
const world = JSON.parse(readFileSync(`${modules}/world-atlas/countries-50m.json`, 'utf8'));
const names = countryNames(`${modules}/i18n-iso-countries/langs/en.json`);
const unnumbered = {
  'Indian Ocean Ter.': undefined, // two dots on the map
  'N. Cyprus': 'Northern Cyprus',
  'Siachen Glacier': undefined,
};

/** The points as whole units, each but the first as the difference from the one before. */
function differences(points) {
  const flat = [];
  let [x, y] = [0, 0];
  for (const [lon, lat] of points) {
    const [nextX, nextY] = [Math.round(lon * unit), Math.round(lat * unit)];
    if (flat.length === 0 || nextX !== x || nextY !== y) {
      flat.push(nextX - x, nextY - y);
      [x, y] = [nextX, nextY];
    }
  }
  return flat;
}

const polygonsOf = ({ type, coordinates }) =>
  type === 'Polygon' ? [coordinates] : type === 'MultiPolygon' ? coordinates : [];

const land = topojson
  .feature(world, world.objects.land)
  .features.flatMap(({ geometry }) => polygonsOf(geometry))
  .flat()
  .filter((ring) => !isFoot(ring))
  .flatMap(cutAtDateLine)
  .map((ring) => differences(ring.slice(0, -1)))
  .filter((ring) => ring.length >= 6);

const borders = topojson
  .mesh(world, world.objects.countries, (a, b) => a !== b)
  .coordinates.map(differences)
  .filter((line) => line.length >= 4);

function nameOf({ id, properties: { name } }) {
  const code = id && iso.numericToAlpha2(id);
  return code ? names.get(code) : name in unnumbered ? unnumbered[name] : name;
}

const largest = new Map();
for (const feature of topojson.feature(world, world.objects.countries).features) {
  const name = nameOf(feature);
  for (const rings of name ? polygonsOf(feature.geometry) : []) {
    const polygon = rings.filter((ring) => !isFoot(ring)).map(unwound);
    const area = ringArea(polygon[0]);
    if (area > (largest.get(name)?.area ?? 0)) {
      largest.set(name, { area, polygon });
    }
  }
}
const countries = [...largest]
  .map(([name, { area, polygon }]) => {
    const [lon, lat] = innerPoint(polygon);
    const onMap = lon - 360 * Math.floor((lon + 180) / 360);
    return [name, ...[lat, onMap, Math.sqrt(area)].map((value) => Number(value.toFixed(2)))];
  })
  .sort((a, b) => b[3] - a[3] || (a[0] < b[0] ? -1 : 1));

process.stdout.write(`${JSON.stringify({ unit, land, borders, countries })}\n`);
