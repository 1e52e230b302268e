// All events, and those that a person asks for: by FAP, input, function, or what came of them.
'use strict';

const kindsOfEvents = {
  '': ['every event', () => true],
  changed: ['with a change', event => event.tally.changes + event.tally.changedControls > 0],
  published: ['with a publication', event => event.tally.publications > 0],
  gates: ['with a closed gate', event => event.tally.gates > 0],
  silent: ['silent: nothing came of it', event => event.isSilent],
};

// Which events the options of an address ask for.
function eventFilter({ fap, input, function: fn, table, only, text }) {
  const tests = [];
  const hasName = (set, name) => { const number = model.numbers.get(name); tests.push(event => number !== undefined && model.setHas(event[set], number)); };
  if (fap) tests.push(event => model.setHas(event.faps, Number(fap)));
  if (input) hasName('causes', input);
  if (fn) hasName('functions', fn);
  if (table) hasName('tables', table);
  if (only) tests.push(kindsOfEvents[only]?.[1] ?? (() => true));
  if (text) { const low = text.toLowerCase(); tests.push(event => event.text.toLowerCase().includes(low)); }
  return event => tests.every(test => test(event));
}

function eventsView(options) {
  let events = [];
  const named = list => [['', 'any'], ...list.map(it => [it, it])];
  const status = element('p.lead', { role: 'status' });
  const timeline = timelineOf({ isChosen: () => true });
  const list = virtualList({ label: 'Events', length: 0, row: at => eventLine(events[at]), className: 'tall' });
  const apply = () => {
    const isChosen = eventFilter(options);
    events = model.events.filter(isChosen);
    status.textContent = events.length === model.events.length ? `${count(events.length, 'event', 'events')}, the start included.` : `${count(events.length, 'event', 'events')} of ${model.events.length.toLocaleString('en')}.`;
    timeline.chosen(isChosen);
    list.changed(events.length);
  };
  const set = (name, value) => {
    options = { ...options, [name]: value };
    history.replaceState(null, '', address('events', null, options));
    apply();
  };
  const text = element('input', { type: 'text', value: options.text ?? '' });
  text.addEventListener('input', () => set('text', text.value.trim()));
  apply();
  return { title: 'Events', parts: [
    timeline.element,
    element('div.filters', null,
      choiceOf('What came of it', Object.entries(kindsOfEvents).map(([value, [name]]) => [value, name]), options.only, value => set('only', value)),
      choiceOf('FAP', [['', 'any'], ...[...model.faps.values()].map(it => [it.number, `FAP ${it.number}`])], options.fap, value => set('fap', value)),
      choiceOf('Input', named(model.causes), options.input, value => set('input', value)),
      choiceOf('Function', named(model.functions), options.function, value => set('function', value)),
      element('label.choice', null, element('span', null, 'Has the words'), text)),
    status, list.element] };
}
