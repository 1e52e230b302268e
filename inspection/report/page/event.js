// One event: from the input over the functions that it reached to gates, writes and publications.
'use strict';

function eventView(number, options, visit) {
  const event = model.eventsByNumber.get(Number(number));
  if (!event) return null;
  const step = (by, text) => {
    const to = model.events[event.at + by];
    return to ? element('a.step', { href: address('event', to.number) }, text) : element('span.step', null, text);
  };
  const chain = element('div.chain', null, element('p.pending', { role: 'status' }, 'Opening the rows …'));
  deedsOf(event, visit).then(deeds => { if (deeds) chain.replaceChildren(...chainParts(event, deeds)); });
  return { title: event.text, parts: [
    element('p.lead', null, `Event ${event.number} of ${model.events.at(-1).number}. ${tallyText(event.tally) || 'Nothing was asked of any chip'}.${event.isWhole ? '' : ' The run broke off in it.'} `,
      element('span.steps', null, step(-1, '← before'), ' ', step(1, 'next →'))),
    timelineOf({ here: event }).element,
    chain,
  ] };
}

// The list: a head for each function, with the lines below it where it is open.
function chainParts(event, deeds) {
  if (!deeds.length) return [element('p.empty', null, 'No function reached a chip, no gate was met, and nothing was published.')];
  const lines = deeds.reduce((total, deed) => total + deed.lines.length, 0);
  const open = new Set(lines <= 60 || deeds.length === 1 ? deeds : []);
  let rows = [];
  const flatten = () => { rows = deeds.flatMap(deed => [{ deed }, ...(open.has(deed) ? deed.lines.map(line => ({ deed, line })) : [])]); };
  flatten();
  const rowAt = ({ block, at }) => rowOf(block, at);
  const list = virtualList({
    label: 'What it caused', length: rows.length, className: 'tall',
    row: at => {
      const { deed, line } = rows[at];
      if (line) { const made = rowLine(rowAt(line), { faps: line.faps, withFaps: model.faps.size > 1 }); made.classList.add('below'); return made; }
      return headOf(event, deed, open.has(deed), () => {
        if (!open.delete(deed)) open.add(deed);
        flatten();
        list.changed(rows.length);
        list.focus(rows.findIndex(row => row.deed === deed));
      });
    },
    detail: at => rows[at].line ? rowDetail(rowAt(rows[at].line), rows[at].line.faps) : null,
  });
  visitActions.openAll = () => {
    const isAll = deeds.every(deed => open.has(deed) || !deed.lines.length);
    for (const deed of deeds) if (isAll) open.delete(deed); else open.add(deed);
    flatten();
    list.changed(rows.length);
  };
  const inputs = [...new Set(deeds.map(deed => deed.cause))];
  return [
    element('h2', null, 'What it caused'),
    element('p.lead', null, `${inputs.length === 1 ? 'Input' : 'Inputs'} `, ...inputs.slice(0, 6).flatMap((it, at) => [at ? ', ' : '', link('input', it)]), inputs.length > 6 ? ` and ${inputs.length - 6} more` : '',
      ` → ${count(deeds.filter(deed => deed.function).length, 'function', 'functions')} → ${count(lines, 'line', 'lines')}; rows that are alike on several FAPs are one line.`),
    list.element];
}

function headOf(event, deed, isOpen, onClick) {
  const made = element('div.line.head', null,
    element('button.twist', { type: 'button', 'aria-expanded': String(isOpen), 'aria-label': `${deed.function ?? 'Published'}, ${deed.cause}`, disabled: deed.lines.length ? null : '' }, element('span', { 'aria-hidden': 'true' }, deed.lines.length ? (isOpen ? '▾' : '▸') : '·')),
    deed.function ? element('a.fn', { href: address('function', deed.function) }, deed.function) : element('span.fn', null, 'Published'),
    element('span.cause', null, `on ${deed.cause}`),
    element('span.tally', null, tallyText(deed.tally)));
  made.addEventListener('click', click => { if (deed.lines.length && !click.target.closest('a')) onClick(); });
  return made;
}
