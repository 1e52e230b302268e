// One table: where its fields lie, what it holds at an event, and how it came to that.
'use strict';

// The pictures of a table: one for each way in which its fields lie.
function layoutPictures(name) {
  const ways = groupBy(model.layoutsOf.get(name) ?? [], layout => JSON.stringify(layout.fields));
  return [...ways.values()].map(layouts => element('figure', null,
    ways.size > 1 ? element('figcaption', null, layouts.map(it => it.variants > 1 ? `${it.chip} variant ${it.variant}` : it.chip).join(', ')) : null,
    bitPicture(layouts[0], new Set(), `Fields of ${name}`)));
}

function tableView(name, options, visit) {
  if (!model.tables.includes(name)) return null;
  const number = model.numbers.get(name);
  let fap = options.fap ?? (model.faps.size > 1 ? String(firstFapOf(number)) : '');
  let event = model.eventsByNumber.get(Number(options.event ?? NaN)) ?? model.events.at(-1);
  let turn = 0;
  const contents = element('div'), past = element('div');
  const show = () => {
    const mine = ++turn, current = { isOver: () => mine !== turn || visit.isOver() };
    const pending = () => element('p.pending', { role: 'status' }, 'Opening the rows …');
    contents.replaceChildren(pending());
    past.replaceChildren(pending());
    const wanted = fap === '' ? null : Number(fap);
    contentsAt({ event, faps: wanted === null ? null : [wanted], table: name }, current)
      .then(entries => { if (entries) contents.replaceChildren(contentsList(name, entries, event)); })
      .then(() => historyOf({ table: name, fap: wanted }, current))
      .then(found => { if (found) past.replaceChildren(...historyParts(name, found)); });
  };
  const set = (what, value) => {
    if (what === 'fap') fap = value; else event = value;
    history.replaceState(null, '', address('table', name, { fap, event: event.number }));
    show();
  };
  show();
  const functions = [...model.functionTables].filter(([, tables]) => tables.has(name));
  const memory = model.layoutsOf.get(name)?.[0];
  return { title: name, parts: [
    element('p.lead', null, `${memory ? memory.isMemory ? 'Memory' : 'Register' : 'Numbered controls of the driver'}. ${tallyText(model.tally('tables', name)) || 'Not touched'}. `,
      element('a', { href: address('events', null, { table: name }) }, 'events that wrote it')),
    ...layoutPictures(name),
    element('h2', null, 'Contents'),
    element('div.filters', null,
      eventChoice('At the end of event', event, value => set('event', value)),
      choiceOf('FAP', [['', 'every FAP'], ...[...model.faps.values()].map(it => [it.number, `FAP ${it.number}`])], fap, value => set('fap', value))),
    contents,
    element('h2', null, 'Writes, newest first'), past,
    element('h2', null, 'Functions'),
    tableOf(['function', 'it', 'source'], functions.map(([fn, tables]) => [link('function', fn), ['', 'reads', 'writes', 'reads and writes'][tables.get(name)], [...model.sources.get(fn) ?? []].slice(0, 3).join(', ')])),
  ] };
}

function firstFapOf(table) {
  const event = model.events.find(it => model.setHas(it.tables, table));
  return event ? model.sets[event.faps][0] : [...model.faps.keys()][0] ?? 0;
}

// Entries that the run has written, with their fields; those that the event has changed are marked.
function contentsList(name, entries, event) {
  if (!entries.length) return element('p.empty', null, 'The run has written nothing here up to this event.');
  const isChanged = entry => entry.was === null || entry.words.some((word, at) => word !== entry.was[at]);
  const list = virtualList({
    label: `Contents of ${name}`, length: entries.length,
    row: at => {
      const entry = entries[at], changed = isChanged(entry);
      return element('button.line', { type: 'button' },
        element(`span.${changed ? 'change-mark' : 'same-mark'}`, { 'aria-hidden': 'true' }), element('span.unseen', null, changed ? `changed by event ${event.number}` : ''),
        element('span.name', null, entry.place.text), element('span.said', null, ...entryText(entry)), element('span.tally', null, model.faps.size > 1 ? `FAP ${entry.fap}` : ''));
    },
    detail: at => {
      const { place, words, was } = entries[at];
      if (!place.layout) return element('p', null, String(words[0]));
      const hit = new Set(fieldChanges(place.layout, was, words).map(it => it.field.name));
      const made = element('div.write', null, bitPicture(place.layout, hit, `Fields of ${name}`), tableOf(['field', 'bits', 'value'], place.layout.fields.map(field => {
        const now = bits(words, field), before = was === null ? null : bits(was, field);
        return [element('code', null, breakable(field.name)), bitsText(field), hit.has(field.name) ? [valueSpan('b', before), arrow(), valueSpan('a', now), changedBits(before, now) ?? ''] : readable(now)];
      }), { label: `Fields of ${place.text}` }));
      return made;
    },
  });
  return list.element;
}

// Fields of an entry in a few words: those that became different first, then those that are set.
function entryText({ place, words, was }) {
  if (!place.layout) return [String(words[0])];
  const changed = fieldChanges(place.layout, was, words);
  const names = new Set(changed.map(it => it.field.name));
  const parts = changed.slice(0, 4).map(({ field, before, after }) => element('span.bit', null, `${field.name} ${before === null ? '?' : readable(before)} → `, element('b', null, readable(after))));
  for (const field of place.layout.fields) {
    if (parts.length >= 5) break;
    const value = bits(words, field);
    if (!names.has(field.name) && value) parts.push(element('span.bit', null, `${field.name} ${readable(value)}`));
  }
  return parts.length ? parts.flatMap((part, at) => at ? [', ', part] : [part]) : ['every field 0'];
}

function historyParts(name, { all, rows }) {
  if (!rows.length) return [element('p.empty', null, 'No write.')];
  const blocks = new Map();
  const list = virtualList({
    label: `Writes of ${name}`, length: rows.length,
    row: at => {
      const block = blocks.get(model.blockOf(rows[at]));
      if (block) return rowLine(rowOf(block, rows[at] - block.firstRow), { withTable: false, withEvent: true, withFaps: model.faps.size > 1 });
      blockAt(model.blockOf(rows[at])).then(opened => { blocks.set(opened.number, opened); requestAnimationFrame(list.refresh); });
      return element('div.line', null, element('span.pending', null, '…'));
    },
    detail: at => {
      const block = blocks.get(model.blockOf(rows[at])), row = rowOf(block, rows[at] - block.firstRow), made = rowDetail(row);
      made.prepend(element('p.facts', null, link('event', model.eventOf(row.number).number, model.eventOf(row.number).text), ` on ${row.cause}`));
      return made;
    },
  });
  return [all > rows.length ? element('p.lead', null, `The newest ${rows.length.toLocaleString('en')} of ${all.toLocaleString('en')}; a FAP makes it less.`) : '', list.element];
}
