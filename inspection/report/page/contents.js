// What tables hold at the end of an event, made from the writes up to there.
'use strict';

// The places of one table, or of all (null), that the run has written by the end of `event`, on one FAP, on some
// (an array) or on all (null): [{ fap, place, words, was }], `was` being what stood there before the event. Null where
// the reader went elsewhere meanwhile.
async function contentsAt({ event, faps = null, table = null }, options) {
  const wanted = faps && new Set(faps), number = table === null ? null : model.numbers.get(table);
  const isOfTable = table === null ? null : model.places.map(place => place.table === table);
  const held = new Map();
  const done = await eachRow(0, event.endRow, (block, at) => {
    const place = model.placeOf[block.what[at]];
    if (place < 0 || isOfTable && !isOfTable[place]) return;
    const fap = block.fap[at];
    if (wanted && !wanted.has(fap)) return;
    const name = fap * model.places.length + place, row = block.firstRow + at;
    let entry = held.get(name);
    if (!entry) held.set(name, entry = { fap, place: model.places[place], block: null, at: 0, was: undefined });
    if (row >= event.firstRow && entry.was === undefined) entry.was = entry.block ? entry.block.wordsOf(entry.at) : block.beforeOf(at);
    entry.block = block;
    entry.at = at;
  }, { ...options, isWanted: it => number === null || it.tables.has(number) });
  if (!done) return null;
  return withoutOverwritten([...held.values()]).map(({ fap, place, block, at, was }) => {
    const words = block.wordsOf(at);
    return { fap, place, words, was: was === undefined ? words : was };
  }).sort(byPlace);
}

// A write to all copies leaves nothing of what one core had before.
function withoutOverwritten(entries) {
  if (!entries.some(it => it.place.core >= 0)) return entries;
  const placeName = ({ fap, place }) => [fap, place.table, place.variant, place.array, place.entry].join();
  const rowNumber = ({ block, at }) => block.firstRow + at;
  const ofAll = new Map(entries.filter(it => it.place.core < 0).map(it => [placeName(it), rowNumber(it)]));
  return entries.filter(it => it.place.core < 0 || rowNumber(it) > (ofAll.get(placeName(it)) ?? -1));
}

function byPlace(a, b) {
  return a.place.table.localeCompare(b.place.table) || a.fap - b.fap || a.place.variant - b.place.variant || a.place.array - b.place.array || a.place.entry - b.place.entry || a.place.core - b.place.core;
}

// The writes of a table, newest first, as numbers of rows: at most the newest `most`.
async function historyOf({ table, fap = null, most = 50000 }, options) {
  const number = model.numbers.get(table), isOfTable = model.places.map(place => place.table === table);
  const rows = [];
  const done = await eachRow(0, model.rowCount, (block, at) => {
    const place = model.placeOf[block.what[at]];
    if (place >= 0 && isOfTable[place] && (fap === null || block.fap[at] === fap)) rows.push(block.firstRow + at);
  }, { ...options, isWanted: it => it.tables.has(number) });
  return done ? { all: rows.length, rows: rows.slice(-most).reverse() } : null;
}

// Entries that differ between two FAPs, of what the run has written on either.
function differencesBetween(entries, a, b) {
  const places = groupBy(entries, entry => `${entry.place.table} ${entry.place.text}`);
  return [...places.values()].map(those => {
    const one = those.find(it => it.fap === a) ?? null, other = those.find(it => it.fap === b) ?? null;
    return { place: (one ?? other).place, one, other };
  }).filter(({ one, other }) => !one || !other || namedValues(one).some(([name, value]) => value !== new Map(namedValues(other)).get(name)));
}

// Layouts differ between chips, so fields are compared by name.
function namedValues({ place, words }) {
  return place.layout ? place.layout.fields.map(field => [field.name, bits(words, field)]) : [['value', BigInt(words[0])]];
}
