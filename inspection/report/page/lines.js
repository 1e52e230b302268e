// Lines about rows: what stands in lists, and what a line shows when it is opened.
'use strict';

const arrow = () => element('span.to', null, element('span', { 'aria-hidden': 'true' }, '→'), element('span.unseen', null, ' becomes '));

const valueSpan = (kind, value) => element(`span.${kind}`, null, value === null ? '?' : readable(value));

// Fields with their values before and after.
function changeTable(changes) {
  return element('div.scroll', { tabindex: 0, role: 'region', 'aria-label': 'Fields that changed' }, element('table.values', null,
    element('thead', null, element('tr', null, ...['field', 'bits', 'value'].map(it => element('th', { scope: 'col' }, it)))),
    element('tbody', null, ...changes.map(({ field, before, after }) => element('tr', { 'data-field': field.name },
      element('td', null, element('code', null, breakable(field.name))), element('td', null, bitsText(field)),
      element('td', null, valueSpan('b', before), arrow(), valueSpan('a', after), changedBits(before, after)))))));
}

// Of a wide value, which bits became different.
function changedBits(before, after) {
  if (before === null || (before | after) < 0x10000n) return null;
  const different = [];
  for (let bit = 0, rest = before ^ after; rest; ++bit, rest >>= 1n) if (rest & 1n) different.push(bit);
  return element('span.which', null, different.length > 40 ? `${different.length} bits` : `bits ${rangesText(different)}`);
}

// What a write, control, gate or publication did, with the picture of its entry.
function rowDetail(row, faps = row.fap === null ? [] : [row.fap]) {
  const made = element('div.write', { 'data-row': row.number });
  const facts = [fapsText(faps), row.operation === null ? null : `operation ${row.operation}`, row.source ?? null].filter(Boolean);
  made.append(element('p.facts', null, row.table ? link('table', row.table) : null, row.table ? ' ' : null, row.place ? `${row.place.text}  ` : null, facts.join('  '),
    '  ', row.function ? link('function', row.function) : null));
  if (row.kind === kindGate) made.append(element('p', null, element('span.gate', null, row.reason)));
  else if (row.kind === kindPublish) made.append(publicationText(row));
  else if (row.kind === kindControl) made.append(element('p', null, element('span.b', null, row.before ? String(row.before[0]) : 'unset'), arrow(), element('span.a', null, String(row.words[0]))));
  else if (!row.changed) made.append(element('p.same', null, `Wrote what was there: ${[...row.words].reverse().map(it => it.toString(16).padStart(8, '0')).join(' ')}`));
  else {
    const changes = changesOf(row);
    if (row.layout) made.append(bitPicture(row.layout, new Set(changes.map(it => it.field.name)), `Fields of ${row.table} that changed`));
    made.append(changeTable(changes));
  }
  return made;
}

const publicationText = ({ value, before }) => element('p', null, element('span.b', null, valueText(before)), arrow(), element('span.a', null, valueText(value)));

const publicationName = ({ path, attribute, key }) => `${path} ${attribute}${key === null ? '' : `[${key}]`}`;

// Which interface a publication is about; null for none.
function interfaceOf({ path, key }) {
  if (key !== null) return key;
  return /\/(?:intfStatus|intfStatusLocal|intfConfig|portState)\/([^/]+)$/.exec(path)?.[1] ?? null;
}

// The line of a row in a list.
function rowLine(row, { faps = row.fap === null ? [] : [row.fap], withTable = true, withEvent = false, withFaps = true } = {}) {
  const mark = row.kind === kindGate ? ['gate-mark', 'gate'] : row.kind === kindPublish ? ['publish-mark', 'published'] : row.changed ? ['change-mark', 'changed'] : ['same-mark', 'unchanged'];
  const name = row.kind === kindGate ? null : row.kind === kindPublish ? publicationName(row) : `${withTable && row.kind === kindWrite ? `${row.table} ` : ''}${row.place.text}`;
  const said = row.kind === kindGate ? row.reason : row.kind === kindPublish ? `${valueText(row.before)} → ${valueText(row.value)}` : rowText(row);
  return element('button.line', { type: 'button' },
    element(`span.${mark[0]}`, { 'aria-hidden': 'true' }), element('span.unseen', null, mark[1]),
    withEvent ? element('span.number', null, `event ${model.eventOf(row.number).number}`) : null,
    name ? element('span.name', null, name) : null,
    element(row.kind === kindGate ? 'span.said.warned' : 'span.said', null, said),
    element('span.tally', null, withFaps ? fapsText(faps) : ''));
}

// A line of an event in a list.
function eventLine(event) {
  const { changes, changedControls, publications, gates } = event.tally;
  const parts = [changes ? count(changes, 'change', 'changes') : '', changedControls ? count(changedControls, 'control', 'controls') : '', publications ? count(publications, 'publication', 'publications') : '', gates ? count(gates, 'gate', 'gates') : ''].filter(Boolean);
  return element('a.line', { href: address('event', event.number) },
    element('span.number', null, String(event.number)),
    element('span.said', null, event.text),
    element(event.isSilent ? 'span.tally.silent' : 'span.tally', null, event.isSilent ? ['silent', ...parts].join(' · ') : parts.join(' · ')));
}

const eventsList = (events, label) => events.length
  ? virtualList({ label, length: events.length, row: at => eventLine(events[at]) }).element : element('p.empty', null, 'No event.');
