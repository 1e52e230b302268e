// One FAP; and two FAPs beside each other, as they are at an event.
'use strict';

function fapView(number) {
  const fap = model.faps.get(Number(number));
  if (!fap) return null;
  const events = model.events.filter(event => model.setHas(event.faps, fap.number));
  return { title: `FAP ${fap.number}`, parts: [
    element('p.lead', null, `${[fap.name, fap.chip].filter(Boolean).join(', ')}. ${tallyText(model.tally('faps', fap.number)) || 'Nothing was asked of it'}. `,
      model.faps.size > 1 ? element('a', { href: address('compare', null, { a: fap.number }) }, 'beside another FAP') : ''),
    element('h2', null, count(events.length, 'event', 'events')), eventsList(events, `Events of FAP ${fap.number}`),
  ] };
}

function compareView(options, visit) {
  const numbers = [...model.faps.keys()];
  if (numbers.length < 2) return { title: 'Chip against chip', parts: [element('p.lead', null, 'The switch has one FAP: there is none to compare it with.')] };
  let a = Number(options.a ?? numbers[0]), b = Number(options.b ?? numbers.find(it => it !== a));
  let event = model.eventsByNumber.get(Number(options.event ?? NaN)) ?? model.events.at(-1);
  let turn = 0;
  const answer = element('div');
  const show = () => {
    const mine = ++turn;
    const status = element('p.pending', { role: 'status' }, 'Opening the rows …');
    answer.replaceChildren(status);
    contentsAt({ event, faps: [a, b] }, { isOver: () => mine !== turn || visit.isOver(), progress: part => { status.textContent = `Opening the rows: ${Math.round(part * 100)} %`; } })
      .then(entries => { if (entries) answer.replaceChildren(...differenceParts(entries, a, b)); });
  };
  const set = (name, value) => {
    if (name === 'event') event = value; else if (name === 'a') a = Number(value); else b = Number(value);
    history.replaceState(null, '', address('compare', null, { a, b, event: event.number }));
    show();
  };
  show();
  const faps = [...model.faps.values()].map(it => [it.number, `FAP ${it.number}${it.chip ? `  ${it.chip}` : ''}`]);
  return { title: 'Chip against chip', parts: [
    element('p.lead', null, 'What two FAPs hold at the end of an event, of all that the run has written.'),
    element('div.filters', null, choiceOf('One FAP', faps, a, value => set('a', value)), choiceOf('The other', faps, b, value => set('b', value)), eventChoice('At the end of event', event, value => set('event', value))),
    answer,
  ] };
}

function differenceParts(entries, a, b) {
  if (a === b) return [element('p.empty', null, 'That is one FAP; choose two.')];
  const all = differencesBetween(entries, a, b);
  if (!all.length) return [element('p.empty', { role: 'status' }, `No difference: FAP ${a} and FAP ${b} hold the same in every entry that the run has written.`)];
  const byTable = groupBy(all, it => it.place.table);
  let rows = all;
  const list = virtualList({
    label: 'Entries that differ', length: rows.length, className: 'tall',
    row: at => {
      const { place, one, other } = rows[at];
      return element('button.line', { type: 'button' }, element('span.name', null, `${place.table} ${place.text}`), element('span.said', null, differenceText(one, other)));
    },
    detail: at => {
      const { one, other } = rows[at], values = [one, other].map(it => new Map(it ? namedValues(it) : []));
      const names = [...new Set(values.flatMap(it => [...it.keys()]))];
      const cell = value => value === undefined ? '—' : readable(value);
      return tableOf(['field', `FAP ${a}`, `FAP ${b}`], names.map(name => {
        const [left, right] = values.map(it => it.get(name)), differs = left !== right;
        return [element('code', null, breakable(name)), differs ? element('span.b', null, cell(left)) : cell(left), differs ? element('span.a', null, cell(right)) : cell(right)];
      }));
    },
  });
  const choice = choiceOf('Table', [['', `every table (${all.length})`], ...[...byTable].map(([table, those]) => [table, `${table} (${those.length})`])], '', table => {
    rows = table ? byTable.get(table) : all;
    list.changed(rows.length);
  });
  return [element('div.filters', null, choice), element('p.lead', { role: 'status' }, `${count(all.length, 'entry differs', 'entries differ')} in ${count(byTable.size, 'table', 'tables')}.`), list.element];
}

function differenceText(one, other) {
  if (!one || !other) return `written on FAP ${(one ?? other).fap} alone`;
  const right = new Map(namedValues(other));
  const names = namedValues(one).filter(([name, value]) => right.get(name) !== value);
  return names.slice(0, 3).map(([name, value]) => `${name} ${readable(value)} | ${right.has(name) ? readable(right.get(name)) : '—'}`).join(', ') + (names.length > 3 ? `, and ${names.length - 3} more` : '');
}
