// The views that need no row: the run as a whole, and a page for each function, input and FAP. A view returns
// { title, parts }: the heading, and what stands below it.
'use strict';

const endingText = () => {
  const { ended, text, function: where, source, events } = model.ending;
  if (ended === 'cut') return `The journal breaks off after event ${events}: what happened then isn't known.`;
  if (ended === 'assertion') return `The run was ended by a failed assertion in event ${events}: ${text}${where ? `, in ${where}` : ''}${source ? ` (${source})` : ''}.`;
  if (ended === 'interrupted') return `The run was interrupted after event ${events}.`;
  return null;
};

const countCard = (number, what, href) => element('li', null, element('a', { href }, element('b', null, number.toLocaleString('en')), ` ${what}`));

function overview() {
  const sum = name => model.events.reduce((total, event) => total + event.tally[name], 0);
  const silent = model.events.filter(event => event.isSilent).length;
  const parts = [
    element('p.lead', null, [model.slice && `Slice ${model.slice}`, count(model.faps.size, 'FAP', 'FAPs'), `${count(model.events.length - 1, 'event', 'events')} after the start`].filter(Boolean).join(', '), '.'),
    timelineOf().element,
    element('ul.counts', { 'aria-label': 'What the run did' },
      countCard(sum('writes'), 'writes', '#events'), countCard(sum('changes'), 'with a change', '#events?only=changed'),
      countCard(sum('controls'), 'controls', '#table/controls'), countCard(sum('reads'), 'reads', '#functions'),
      countCard(sum('publications'), 'publications', '#interfaces'), countCard(sum('gates'), 'closed gates', '#events?only=gates'),
      countCard(silent, 'silent events', '#events?only=silent')),
  ];
  const costly = [...model.events].sort((a, b) => amountOf(b) - amountOf(a)).slice(0, 6);
  parts.push(element('h2', null, 'Events that changed most'), tableOf(['event', 'what', 'changes', 'publications'],
    costly.map(event => [element('a', { href: address('event', event.number) }, `event ${event.number}`), breakable(event.text), (event.tally.changes + event.tally.changedControls).toLocaleString('en'), event.tally.publications.toLocaleString('en')]), { numbers: [2, 3] }));
  parts.push(element('h2', null, 'FAPs'), fapTable(), element('h2', null, 'Inputs'), tallyTable('input', 'causes', model.causes));
  if (model.gates.length) {
    const gates = groupBy(model.gates, gate => `${gate.function}\n${gate.reason}`);
    parts.push(element('h2', null, 'Gates that were closed'), tableOf(['function', 'why it went no further'],
      [...gates.values()].map(([gate]) => [link('function', gate.function), element('span.gate', null, gate.reason)])));
  }
  if (model.toggles.length) {
    parts.push(element('h2', null, 'Toggles that were set'), tableOf(['toggle', 'file', 'state'],
      model.toggles.map(({ name, file, state }) => [element('code', null, breakable(name)), file, element(state ? 'span.on' : 'span.off', null, state ? 'on' : 'off')])));
  }
  return { title: model.name || 'A run', parts };
}

const amountOf = ({ tally }) => tally.changes + tally.changedControls + tally.publications;

function fapTable() {
  return tableOf(['FAP', 'name', 'chip', 'major', 'cores', 'ports', 'writes', 'changes', 'gates'], [...model.faps.values()].map(fap => {
    const tally = model.tally('faps', fap.number);
    return [link('fap', fap.number, `FAP ${fap.number}`), fap.name, fap.chip, fap.major === undefined ? '' : String(fap.major), fap.cores === undefined ? 'all' : String(fap.cores),
      fap.ports === undefined ? '' : String(fap.ports), tally.writes.toLocaleString('en'), tally.changes.toLocaleString('en'), tally.gates.toLocaleString('en')];
  }), { numbers: [6, 7, 8] });
}

const viewOf = { causes: 'input', functions: 'function', tables: 'table' };

function tallyTable(heading, kind, names) {
  const rows = names.map(name => ({ name, tally: model.tally(kind, name) }));
  if (rows.length > 40) {
    return virtualList({ label: heading, length: rows.length, row: at => element('a.line', { href: address(viewOf[kind], rows[at].name) },
      element('span.said', null, rows[at].name), element('span.tally', null, tallyText(rows[at].tally))) }).element;
  }
  return tableOf([heading, 'what it did'], rows.map(({ name, tally }) => [link(viewOf[kind], name), tallyText(tally)]));
}

const listView = (title, lead, kind, names) => ({ title, parts: [element('p.lead', null, lead), names.length ? tallyTable(title.toLowerCase(), kind, names) : element('p.empty', null, 'None.')] });
const functionsView = () => listView('Functions', 'Functions of the plug-in that asked something of a chip, or were stopped by a gate.', 'functions', model.functions);
const inputsView = () => listView('Inputs', 'What was changed from outside, and what its being announced caused.', 'causes', model.causes);
const tablesView = () => listView('Tables', 'Tables that the run has touched.', 'tables', model.tables);

function functionView(name) {
  if (!model.functions.includes(name)) return null;
  const number = model.numbers.get(name), events = model.events.filter(event => model.setHas(event.functions, number));
  const tables = [...model.functionTables.get(name) ?? []], gates = model.gates.filter(gate => gate.function === name);
  const parts = [element('p.lead', null, `Function. ${tallyText(model.tally('functions', name))}. `, element('span.src', null, [...model.sources.get(name) ?? []].slice(0, 12).join('  ')))];
  if (tables.length) {
    parts.push(element('h2', null, 'Tables'), tableOf(['table', 'it'], tables.map(([table, does]) => [link('table', table), ['', 'reads', 'writes', 'reads and writes'][does]])));
  }
  if (gates.length) parts.push(element('h2', null, 'Gates that have stopped it'), tableOf(['why', 'source'], gates.map(gate => [element('span.gate', null, gate.reason), gate.source])));
  const causes = new Set(events.flatMap(event => model.sets[event.causes].length === 1 || event.number === 0 ? model.textsOf(event.causes) : []));
  if (causes.size) parts.push(element('h2', null, 'Inputs of its events'), element('ul.plain', null, ...[...causes].slice(0, 60).map(cause => element('li', null, link('input', cause)))));
  parts.push(element('h2', null, count(events.length, 'event', 'events')), eventsList(events, `Events of ${name}`));
  return { title: name, parts };
}

function inputView(name) {
  if (!model.causes.includes(name)) return null;
  const number = model.numbers.get(name), events = model.events.filter(event => model.setHas(event.causes, number));
  const union = what => [...new Set(events.filter(event => event.number > 0 || events.length === 1).flatMap(event => model.textsOf(event[what])))].sort();
  const functions = union('functions'), tables = union('tables');
  const parts = [element('p.lead', null, `Input. ${tallyText(model.tally('causes', name))}.`)];
  if (functions.length) parts.push(element('h2', null, 'Functions in its events'), element('ul.plain', null, ...functions.map(it => element('li', null, link('function', it)))));
  if (tables.length) parts.push(element('h2', null, 'Tables written in its events'), element('ul.plain', null, ...tables.map(it => element('li', null, link('table', it)))));
  parts.push(element('h2', null, count(events.length, 'event', 'events')), eventsList(events, `Events of ${name}`));
  return { title: name, parts };
}
