// Rows as people read them: a row of a block as an object, and rows that are alike on several FAPs as one.
'use strict';

const noFap = 0xffff;

function rowOf(block, at) {
  const what = block.what[at], key = model.keys.subarray(what * keySize, (what + 1) * keySize), kind = key[0];
  const row = { number: block.firstRow + at, kind, what, fap: block.fap[at] === noFap ? null : block.fap[at], cause: model.texts[block.cause[at]],
    changed: Boolean(block.flags[at] & changedFlag), operation: kind <= kindControl ? block.operation[at] : null };
  if (kind === kindPublish) {
    const text = block.valueAt[at];
    return Object.assign(row, model.publicationOf(what), { value: block.texts[text], before: block.texts[text + 1] });
  }
  row.function = model.texts[key[8]];
  row.source = model.texts[key[9]];
  if (kind === kindGate) row.reason = model.texts[key[2]];
  else if (kind === kindRead) Object.assign(row, { table: model.texts[key[2]], layout: model.layouts[key[1]] ?? null });
  else Object.assign(row, { table: model.places[model.placeOf[what]].table, place: model.places[model.placeOf[what]], layout: model.layouts[key[1]] ?? null, words: block.wordsOf(at), before: block.beforeOf(at) });
  return row;
}

// The bits of a field: words are unsigned, the least significant first.
function bits(words, field) {
  let value = 0n;
  for (let word = words.length - 1; word >= 0; --word) value = value << 32n | BigInt(words[word] >>> 0);
  return value >> BigInt(field.offset) & (1n << BigInt(field.width)) - 1n;
}

// Hexadecimal in groups of eight digits, decimal beside it where that helps.
function readable(value) {
  const digits = value.toString(16);
  let text = '';
  for (let at = 0; at < digits.length; ++at) text += (at > 0 && (digits.length - at) % 8 === 0 ? "'" : '') + digits[at];
  return `0x${text}` + (value > 9n && value <= 0xffffn ? ` (${value})` : '');
}

const bitsText = field => field.width === 1 ? `[${field.offset}]` : `[${field.offset + field.width - 1}:${field.offset}]`;

// The fields that differ between two contents; all of them where one isn't known.
function fieldChanges(layout, before, words) {
  return (layout?.fields ?? [])
    .map(field => ({ field, before: before ? bits(before, field) : null, after: bits(words, field) }))
    .filter(it => it.before !== it.after);
}

const changesOf = row => row.kind === kindWrite && row.changed ? fieldChanges(row.layout, row.before, row.words) : [];

// What a write or control did, in a few words.
function rowText(row) {
  if (row.kind === kindControl) return `${row.before ? row.before[0] : 'unset'} → ${row.words[0]}`;
  if (!row.changed) return 'wrote what was there';
  const all = changesOf(row).map(it => `${it.field.name} ${it.before === null ? '?' : readable(it.before)} → ${readable(it.after)}`);
  return all.slice(0, 4).join(', ') + (all.length > 4 ? `, and ${all.length - 4} more` : '');
}

// "0–3, 7"
function rangesText(numbers) {
  const parts = [];
  let at = 0;
  const sorted = [...new Set(numbers)].sort((a, b) => a - b);
  while (at < sorted.length) {
    let end = at;
    while (sorted[end + 1] === sorted[end] + 1) ++end;
    parts.push(end > at ? `${sorted[at]}–${sorted[end]}` : `${sorted[at]}`);
    at = end + 1;
  }
  return parts.join(', ');
}

const fapsText = faps => faps.length ? `FAP ${rangesText(faps)}` : '';

// The rows of an event by who made them, in their order: [{ function, cause, source, tally, faps, lines }]. A line
// stands for the rows that do the same on several FAPs.
async function deedsOf(event, options) {
  const deeds = new Map();
  const done = await eachRow(event.firstRow, event.endRow, (block, at) => {
    const what = block.what[at], key = what * keySize, kind = model.keys[key];
    const fn = kind === kindPublish ? -1 : model.keys[key + 8], name = `${fn} ${block.cause[at]}`;
    let deed = deeds.get(name);
    if (!deed) {
      deed = { function: fn < 0 ? null : model.texts[fn], cause: model.texts[block.cause[at]], tally: tallyOf([0, 0, 0, 0, 0, 0, 0], 0), faps: new Set(), lines: new Map() };
      deeds.set(name, deed);
    }
    const fap = block.fap[at], changed = block.flags[at] & changedFlag;
    if (fap !== noFap) deed.faps.add(fap);
    deed.tally[['reads', 'writes', 'controls', 'gates', 'publications'][kind]] += 1;
    if (kind === kindWrite && changed) ++deed.tally.changes;
    if (kind === kindControl && changed) ++deed.tally.changedControls;
    if (kind === kindRead) return;
    const alike = lineName(block, at, what, kind);
    const line = deed.lines.get(alike);
    if (line) line.faps.push(fap);
    else deed.lines.set(alike, { block, at, faps: fap === noFap ? [] : [fap] });
  }, options);
  return done ? [...deeds.values()].map(deed => ({ ...deed, faps: [...deed.faps], lines: gatesFirst([...deed.lines.values()]) })) : null;
}

// What was stopped is looked for first; there may be hundreds of writes beside it.
function gatesFirst(lines) {
  const isGate = ({ block, at }) => model.kindOf(block.what[at]) === kindGate;
  return [...lines.filter(isGate), ...lines.filter(it => !isGate(it))];
}

function lineName(block, at, what, kind) {
  if (kind === kindGate) return what;
  if (kind === kindPublish) return `${what} ${block.firstRow + at}`;
  const width = kind === kindControl ? 1 : model.widthOf(what), flags = block.flags[at];
  const from = block.valueAt[at];
  return `${model.alikeOf[what]} ${flags} ${block.words.subarray(from, from + width * (flags & beforeFlag ? 2 : 1)).join()}`;
}
