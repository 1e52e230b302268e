// Finding: tables, fields, functions, inputs, sources, FAPs, gates, publications, toggles, events; and values, in
// hexadecimal or decimal.
'use strict';

let names; // everything that has a name: { text, low, why, href, rank }
let values; // [{ table, field, value, event, fap }], once they are opened

function namesOf() {
  if (names) return names;
  names = [];
  const add = (rank, text, why, href, all = text) => names.push({ rank, text, low: all.toLowerCase(), why, href });
  for (const name of model.tables) add(1, name, () => `table · ${tallyText(model.tally('tables', name))}`, address('table', name));
  for (const fap of model.faps.values()) add(1, `FAP ${fap.number}`, () => [fap.name, fap.chip].filter(Boolean).join(', '), address('fap', fap.number));
  for (const fap of model.faps.values()) if (fap.name || fap.chip) add(4, [fap.name, fap.chip].filter(Boolean).join(' '), () => `FAP ${fap.number}`, address('fap', fap.number));
  for (const [table, layouts] of model.layoutsOf) {
    for (const field of new Set(layouts.flatMap(layout => layout.fields.map(it => it.name)))) add(2, field, () => `field of ${table}`, address('table', table));
  }
  for (const fn of model.functions) add(3, fn, () => `function · ${tallyText(model.tally('functions', fn))}`, address('function', fn));
  for (const [fn, all] of model.sources) for (const source of all) add(6, source, () => `source of ${fn}`, address('function', fn));
  for (const cause of model.causes) add(3, cause, () => `input · ${tallyText(model.tally('causes', cause))}`, address('input', cause));
  for (const [, [gate]] of groupBy(model.gates, it => it.reason)) add(5, gate.reason, () => `gate of ${gate.function}`, address('function', gate.function));
  for (const owner of publishedOwners().keys()) add(2, owner, () => 'interface or object with published values', address('interface', owner));
  for (const it of model.published) add(7, `${it.attribute} of ${interfaceOf(it) ?? it.path}`, () => `published at ${it.path}, last in event ${it.event}: ${valueText(it.value)}`, address('interface', interfaceOf(it) ?? it.path), publicationName(it));
  for (const { name, file, state } of model.toggles) add(5, `${file}:${name}`, () => `toggle, ${state ? 'on' : 'off'}`, '#');
  for (const event of model.events) if (event.number) add(8, event.text, () => `event ${event.number}`, address('event', event.number));
  return names;
}

async function openValues() {
  if (values) return;
  const list = await partJson('values'), found = [];
  for (let at = 0; at < list.length; at += 5) found.push({ table: list[at], field: list[at + 1], value: list[at + 2], event: list[at + 3], fap: list[at + 4] });
  values = found;
}

// A number as the run's values are written: "0x1f" and "31" alike.
function asHexadecimal(wanted) {
  const digits = wanted.replaceAll("'", '').toLowerCase();
  return /^(0x[0-9a-f]+|\d+)$/.test(digits) ? `0x${BigInt(digits).toString(16)}` : null;
}

function found(wanted) {
  const low = wanted.toLowerCase(), number = asHexadecimal(wanted);
  const hits = namesOf().filter(it => it.low.includes(low)).map(it => ({ ...it, rank: it.low === low ? 0 : it.rank }));
  for (const { table, field, value, event, fap } of values ?? []) {
    if (number ? value !== number : value.startsWith('0x') || !value.toLowerCase().includes(low)) continue;
    const control = /^control \d+$/.test(table), isOfChip = fap >= 0;
    hits.push({ rank: number ? 0.5 : 7, text: `${control ? table : isOfChip ? `${table}.${field}` : `${table} ${field}`} = ${number ? readable(BigInt(value)) : value}`, why: () => `first in event ${event}${isOfChip ? ` on FAP ${fap}` : ''}`,
      href: isOfChip ? address('table', control ? 'controls' : table, { event, fap }) : address('event', event) });
  }
  return hits.sort((a, b) => a.rank - b.rank);
}

function searchView(wanted) {
  const status = element('p.lead', { role: 'status' }), box = element('div.hits');
  const show = () => {
    const hits = found(wanted);
    status.textContent = (hits.length ? count(hits.length, 'hit', 'hits') : 'Nothing has this in its name, and no value is this') + (values ? '' : '; the values are being opened …')
      + (values && !model.valuesAreWhole && asHexadecimal(wanted) ? '; of fields with very many values the first ones are searched' : '') + '.';
    box.replaceChildren(hits.length ? virtualList({ label: 'Hits', length: hits.length, className: 'tall', row: at => element('a.line', { href: hits[at].href },
      element('span.name', null, marked(hits[at].text, wanted)), element('span.said', null, hits[at].why())) }).element : '');
  };
  show();
  if (!values) openValues().then(() => { if (status.isConnected) show(); });
  return { title: `Search: ${wanted}`, parts: [status, box] };
}
