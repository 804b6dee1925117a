// The common English short name of each country, by its ISO 3166-1 alpha-2 code.
import { readFileSync } from 'node:fs';

// Where the first name of the source is the long form, holds a comma or a note in parentheses, is
// spelled without its accents, or is that of another country as well.
const commonNames = {
  BN: 'Brunei',
  BQ: 'Caribbean Netherlands',
  CC: 'Cocos Islands',
  CD: 'Democratic Republic of the Congo',
  CG: 'Republic of the Congo',
  CI: 'Ivory Coast',
  CN: 'China',
  CZ: 'Czechia',
  FK: 'Falkland Islands',
  FM: 'Micronesia',
  GM: 'Gambia',
  IR: 'Iran',
  LA: 'Laos',
  MD: 'Moldova',
  MF: 'Saint Martin',
  MK: 'North Macedonia',
  PN: 'Pitcairn Islands',
  PS: 'Palestine',
  RE: 'Réunion',
  RU: 'Russia',
  SX: 'Sint Maarten',
  SY: 'Syria',
  TR: 'Turkey',
  TW: 'Taiwan',
  TZ: 'Tanzania',
  US: 'United States',
  VA: 'Vatican City',
  VG: 'British Virgin Islands',
  VI: 'United States Virgin Islands',
};

/** Names by alpha-2 code, from the English file of i18n-iso-countries; throws on one that is unfit. */
export function countryNames(file) {
  const names = new Map();
  for (const [code, given] of Object.entries(JSON.parse(readFileSync(file, 'utf8')).countries)) {
    names.set(code, commonNames[code] ?? [given].flat()[0]);
  }
  for (const [code, name] of names) {
    if (/[,()\t\n]|Republic,|^(the|Kingdom|State) /i.test(name)) {
      throw new Error(`${code}: "${name}" is not a short name`);
    }
  }
  if (new Set(names.values()).size !== names.size) {
    throw new Error('two countries have the same name');
  }
  return names;
}
