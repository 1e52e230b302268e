// What the main part of the page can show. Each view returns the elements to put there.
'use strict';

const tallyText = list => {
  const writes = list.filter(it => it.kind === 1), controls = list.filter(it => it.kind === 2).length;
  const parts = [];
  if (writes.length) parts.push(`${count(writes.length, 'write', 'writes')}, ${writes.filter(it => it.changed).length} with a change`);
  if (controls) parts.push(count(controls, 'control', 'controls'));
  const reads = list.filter(it => it.kind === 0).length;
  if (reads) parts.push(count(reads, 'read', 'reads'));
  return parts.join(' · ');
};

const tableLink = name => element('a.mono', { href: `#table/${name}` }, name);
const eventLink = number => element('a', { href: `#event/${number}` }, `event ${number}`);
const eventText = number => data.events[number]?.text ?? `event ${number}`;
const arrow = () => element('span.to', { 'aria-label': 'becomes' }, '→');

function valueRows(operation) {
  const all = changes(operation);
  if (!all.length) return null;
  return element('div.scroll', null, element('table.values', null,
    element('thead', null, element('tr', null, ...['field', 'bits', 'value'].map(it => element('th', { scope: 'col' }, it)))),
    element('tbody', null, ...all.map(change => element('tr', { 'data-field': change.field.name },
      element('td', null, element('code', null, breakable(change.field.name))), element('td', null, bitsText(change.field)),
      element('td', null, element('span.b', null, readable(change.before)), arrow(), element('span.a', null, readable(change.after))))))));
}

// One write or control: where, what it changed, and who made it.
function writeView(operation, { withTable = true, withOrigin = false, withPicture = true } = {}) {
  const made = element('article.write', { 'data-seq': operation.seq });
  made.append(element('header', null,
    element('span', null, `FAP ${operation.fap}`),
    withTable && operation.table ? tableLink(operation.table) : null,
    element('span.place', null, placeText(operation)),
    element('span.seq', null, `#${operation.seq}`),
    withOrigin ? eventLink(operation.event) : null,
    element('span.src', null, withOrigin ? `${operation.function}  ${operation.source}` : operation.source)));
  if (operation.kind === 2) {
    made.append(element('p', { style: 'margin:0' },
      element('span.b', null, operation.before === null ? 'unset' : String(operation.before)), arrow(),
      element('span.a', null, String(operation.value))));
  } else if (!operation.changed) {
    made.append(element('p.same', { style: 'margin:0' }, 'wrote what was there'));
  } else {
    if (withPicture) {
      made.append(bitPicture(layoutOfOperation(operation), new Set(changes(operation).map(it => it.field.name)), `Fields of ${operation.table}`));
    }
    made.append(valueRows(operation) ?? '');
  }
  return made;
}

// Long lists come in portions.
function portions(list, make, size = 40) {
  const box = element('div');
  let from = 0;
  const more = element('button', { type: 'button' });
  const add = () => {
    box.append(...list.slice(from, from + size).map(make));
    from += size;
    if (from >= list.length) more.remove();
    else { more.textContent = `Show ${Math.min(size, list.length - from)} more of ${list.length - from}`; box.append(more); }
  };
  more.addEventListener('click', add);
  add();
  return box;
}

function gateRows(gates) {
  return element('div.scroll', null, element('table', null,
    element('thead', null, element('tr', null, ...['function', 'why not', 'FAP', 'cause'].map(it => element('th', { scope: 'col' }, it)))),
    element('tbody', null, ...gates.map(gate => element('tr', null,
      element('td', null, element('code', null, breakable(gate.function))), element('td', null, element('span.gate', null, gate.reason)),
      element('td', null, gate.fap === null ? '' : String(gate.fap)), element('td', null, gate.cause))))));
}

function eventView(number) {
  const list = operations.filter(it => it.event === number);
  const groups = groupBy(list, it => `${it.function}\n${it.cause}`);
  const parts = [
    element('h1', null, number === 0 ? 'Start-up' : eventText(number)),
    element('p.lead', null, `Event ${number} of ${data.events.length - 1}. ${tallyText(list) || 'The chips were left alone'}.`),
  ];
  for (const [, those] of groups) {
    const writes = those.filter(isWrite), first = those[0];
    if (!writes.length) continue;
    const tables = groupBy(writes, it => it.table ?? 'controls');
    parts.push(group(
      [element('span.fn', null, first.function), element('span.cause', null, first.cause), element('span.tally', null, tallyText(those))],
      () => tables.size === 1 || writes.length < 12
        ? [portions(writes, it => writeView(it))]
        : [...tables].map(([table, of]) => group(
            [element('span.fn', null, table), element('span.tally', null, tallyText(of))], () => [portions(of, it => writeView(it))])),
      number > 0 && groups.size < 5));
  }
  const gates = data.gates.filter(gate => gate.event === number);
  if (gates.length) parts.push(element('h2', null, 'Kept from running'), gateRows(gates));
  return parts;
}

function fieldList(layout) {
  return element('div.scroll', null, element('table', null,
    element('thead', null, element('tr', null, ...['field', 'bits', 'width'].map(it => element('th', { scope: 'col' }, it)))),
    element('tbody', null, ...[...layout.fields].sort((a, b) => a.offset - b.offset).map(field => element('tr', null,
      element('td', null, element('code', null, breakable(field.name))), element('td.num', null, bitsText(field)), element('td.num', null, String(field.width)))))));
}

// The pictures of a table: one for each way in which its fields lie.
function layoutPictures(name) {
  const ways = new Map();
  for (const [chip, variants] of Object.entries(data.tables[name].layouts)) {
    for (const [variant, layout] of Object.entries(variants)) {
      const key = JSON.stringify(layout.fields);
      if (!ways.has(key)) ways.set(key, { layout, where: [] });
      ways.get(key).where.push(data.tables[name].variants > 1 ? `${chip} variant ${variant}` : chip);
    }
  }
  return [...ways.values()].map(({ layout, where }) => element('figure', { style: 'margin:0 0 1rem' },
    ways.size > 1 ? element('figcaption.lead', { style: 'margin-bottom:.3rem' }, where.join(', ')) : null,
    bitPicture(layout, new Set(), `Fields of ${name}`),
    group([element('span.cause', null, count(layout.fields.length, 'field', 'fields'))], () => [fieldList(layout)])));
}

// What the run made of each place: from the first write's before to the last one's after.
function placeGroups(list) {
  return [...groupBy(list.filter(isWrite), it => `${it.fap} ${placeText(it)}`)].map(([, those]) => {
    const first = those[0], last = those.at(-1);
    const whole = { ...last, before: first.before, changed: those.some(it => it.changed) };
    const net = whole.kind === 1 ? changes(whole) : [];
    return group(
      [element('span', null, `FAP ${last.fap}`), element('span.place', null, placeText(last)),
       element('span.cause', null, net.slice(0, 3).map(it => `${it.field.name} ${readable(it.before)} → ${readable(it.after)}`).join(', ') + (net.length > 3 ? ', …' : '')),
       element('span.tally', null, count(those.length, last.kind === 2 ? 'setting' : 'write', last.kind === 2 ? 'settings' : 'writes'))],
      () => [portions([...those].reverse(), it => writeView(it, { withTable: false, withOrigin: true }))]);
  });
}

function tableView(name) {
  const list = operationsOf.get(name) ?? [];
  const parts = [element('h1', null, name)];
  if (name !== 'controls') {
    parts.push(element('p.lead', null, `${data.tables[name].kind}. ${tallyText(list) || 'Not touched'}.`), ...layoutPictures(name));
  } else {
    parts.push(element('p.lead', null, `Numbered controls of the driver. ${tallyText(list)}.`));
  }
  const functions = groupBy(list, it => it.function);
  parts.push(element('h2', null, 'Functions'), element('div.scroll', null, element('table', null, element('tbody', null,
    ...[...functions].map(([fn, those]) => element('tr', null, element('td', null, element('code', null, breakable(fn))),
      element('td', null, [...new Set(those.map(it => it.source))].slice(0, 4).join(', ')),
      element('td', null, tallyText(those))))))));
  parts.push(element('h2', null, 'Entries, newest write first'));
  const box = element('div');
  const choice = element('select', { 'aria-label': 'FAP' }, element('option', { value: '' }, 'every FAP'),
    ...data.switch.faps.map(fap => element('option', { value: fap.fapId }, `FAP ${fap.fapId}`)));
  const show = () => {
    const those = choice.value === '' ? list : list.filter(it => it.fap === Number(choice.value));
    const groups = placeGroups(those);
    box.replaceChildren(groups.length ? portions(groups, it => it, 60) : element('p.empty', null, 'No write here.'));
  };
  choice.addEventListener('change', show);
  show();
  if (data.switch.faps.length > 1) parts.push(element('div.filters', null, choice));
  parts.push(box);
  return parts;
}

function switchView() {
  const rows = pairs => element('dl', null, ...pairs.flatMap(([name, value]) => [element('dt', null, name), element('dd', null, String(value))]));
  const parts = [
    element('h1', null, data.name || 'A run'),
    element('p.lead', null, `Slice ${data.switch.slice}, ${count(data.switch.faps.length, 'FAP', 'FAPs')}, ${count(data.events.length - 1, 'event', 'events')} after the start.`),
    element('ul.chips', null,
      ...[[operations.filter(it => it.kind === 1).length, 'writes'], [operations.filter(it => it.changed && it.kind === 1).length, 'with a change'],
          [operations.filter(it => it.kind === 2).length, 'controls'], [operations.filter(it => it.kind === 0).length, 'reads'],
          [Object.keys(data.tables).length, 'tables'], [data.gates.length, 'closed gates']]
        .map(([number, what]) => element('li.chip', null, element('b', null, number.toLocaleString('en')), ` ${what}`))),
    element('div.cards', null, ...data.switch.faps.map(fap => element('section.card', null, element('h3', null, `FAP ${fap.fapId}  ${fap.name}`),
      rows([['chip', fap.chipType], ['major revision', fap.major], ['SDK version', fap.sdkVersion], ['cores', fap.cores],
            ['ports', Object.entries(fap.ports).map(([key, port]) => `${key}→${port}`).join(' ') || 'none'],
            ['writes', operations.filter(it => it.fap === fap.fapId && it.kind === 1).length]])))),
    element('h2', null, 'Toggles'),
    data.toggles.length ? element('div.scroll', null, element('table', null,
      element('thead', null, element('tr', null, ...['toggle', 'file', 'state'].map(it => element('th', { scope: 'col' }, it)))),
      element('tbody', null, ...data.toggles.map(toggle => element('tr', null, element('td', null, element('code', null, breakable(toggle.name))),
        element('td', null, toggle.file), element('td', null, element(toggle.state ? 'span.on' : 'span.off', null, toggle.state ? 'on' : 'off'))))))) : element('p.empty', null, 'None was read.'),
    element('h2', null, 'Causes'),
    element('div.scroll', null, element('table', null,
      element('thead', null, element('tr', null, ...['cause', 'events', 'what it did'].map(it => element('th', { scope: 'col' }, it)))),
      element('tbody', null, ...[...groupBy(operations, it => it.cause)].map(([cause, those]) => {
        const numbers = [...new Set(those.map(it => it.event))];
        return element('tr', null, element('td', null, element('code', null, breakable(cause))),
          element('td', null, ...numbers.slice(0, 8).flatMap((it, at) => [at ? ', ' : '', eventLink(it)])), element('td', null, tallyText(those)));
      })))),
  ];
  if (data.gates.length) parts.push(element('h2', null, 'Kept from running'), portions(data.gates, gate => gateRows([gate]), 30));
  return parts;
}

// What a search finds, the nearest first: tables, fields, functions, causes.
function found(wanted) {
  const low = wanted.toLowerCase(), hits = [];
  const has = text => text.toLowerCase().includes(low);
  for (const name of tableNames) if (has(name)) hits.push({ text: name, why: `table · ${tallyText(operationsOf.get(name) ?? [])}`, href: `#table/${name}`, rank: name.toLowerCase() === low ? 0 : 1 });
  for (const [name, table] of Object.entries(data.tables)) {
    const fields = new Set(Object.values(table.layouts).flatMap(variants => Object.values(variants)).flatMap(layout => layout.fields.map(it => it.name)));
    for (const field of fields) if (has(field)) hits.push({ text: field, why: `field of ${name}`, href: `#table/${name}`, rank: 2 });
  }
  for (const [fn, those] of groupBy(operations, it => it.function)) if (has(fn)) {
    const first = those.find(isWrite) ?? those[0];
    hits.push({ text: fn, why: `function · ${tallyText(those)}`, href: `#event/${first.event}`, rank: 3 });
  }
  data.events.forEach((event, number) => { if (number && has(event.text)) hits.push({ text: event.text, why: `event ${number}`, href: `#event/${number}`, rank: 4 }); });
  return hits.sort((a, b) => a.rank - b.rank);
}

function searchView(wanted) {
  const hits = found(wanted);
  return [
    element('h1', null, wanted),
    element('p.lead', { role: 'status' }, hits.length ? count(hits.length, 'hit', 'hits') : 'Nothing has this in its name.'),
    element('ul.hits', null, ...hits.slice(0, 200).map(hit => element('li', null, element('a', { href: hit.href }, element('code', null, marked(hit.text, wanted)), element('span.why', null, hit.why))))),
  ];
}
