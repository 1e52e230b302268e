// The run, as the program has put it into the page: strings once, operations as rows of numbers.
'use strict';

const data = JSON.parse(document.getElementById('data').textContent);

// [seq, event, kind, fap, table or control, variant or value, array, entry, core, words, before, changed, function, source, cause]
// kind: 0 read, 1 write, 2 control. Reads carry no words. `before` of a control: its value before, or null.
const operations = data.operations.map(row => ({
  seq: row[0], event: row[1], kind: row[2], fap: row[3],
  table: row[2] === 2 ? null : data.strings[row[4]], control: row[2] === 2 ? row[4] : null,
  variant: row[5], value: row[5], array: row[6], entry: row[7], core: row[8],
  words: row[9], before: row[10], changed: Boolean(row[11]),
  function: data.strings[row[12]], source: data.strings[row[13]], cause: data.strings[row[14]],
}));
const isWrite = operation => operation.kind !== 0;

const fapOf = number => data.switch.faps.find(fap => fap.fapId === number);
const layoutOf = (table, chip, variant) => data.tables[table].layouts[chip]?.[variant];
const layoutOfOperation = operation => layoutOf(operation.table, fapOf(operation.fap).chipType, operation.variant);

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
  for (let at = 0; at < digits.length; ++at) {
    if (at > 0 && (digits.length - at) % 8 === 0) text += "'";
    text += digits[at];
  }
  return `0x${text}` + (value > 9n && value <= 0xffffn ? ` (${value})` : '');
}

const bitsText = field => field.width === 1 ? `[${field.offset}]` : `[${field.offset + field.width - 1}:${field.offset}]`;

// What a write changed: fields with their values before and after.
function changes(operation) {
  if (operation.kind !== 1) return [];
  return layoutOfOperation(operation).fields
    .map(field => ({ field, before: bits(operation.before, field), after: bits(operation.words, field) }))
    .filter(change => change.before !== change.after);
}

// An entry's place as people read it; what can only be one way is left out.
function placeText(operation) {
  if (operation.kind === 2) return `control ${operation.control}`;
  const table = data.tables[operation.table], layout = layoutOfOperation(operation), parts = [];
  if (table.variants > 1) parts.push(`variant ${operation.variant}`);
  if (layout.arrayed) parts.push(`[${operation.array}]`);
  if (operation.entry !== null) parts.push(operation.entry);
  if (operation.core !== null) parts.push(`core ${operation.core}`);
  return parts.join(' ');
}

const count = (number, one, many) => `${number} ${number === 1 ? one : many}`;

// Groups that keep the order in which their keys first came.
function groupBy(list, keyOf) {
  const groups = new Map();
  for (const item of list) {
    const key = keyOf(item);
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(item);
  }
  return groups;
}

const tableNames = Object.keys(data.tables).sort();
const operationsOf = groupBy(operations, operation => operation.table ?? 'controls');
if (operationsOf.has('controls')) tableNames.push('controls');
