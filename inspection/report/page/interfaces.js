// What the plug-in has published: for interfaces, and for whatever else.
'use strict';

const publishedOwners = () => {
  model.owners ??= groupBy(model.published, it => interfaceOf(it) ?? it.path);
  return model.owners;
};

function interfacesView() {
  const owners = [...publishedOwners()].sort(([a], [b]) => a.localeCompare(b, 'en', { numeric: true }));
  if (!owners.length) return { title: 'Interfaces', parts: [element('p.lead', null, 'The run has published nothing.')] };
  const list = virtualList({
    label: 'Interfaces', length: owners.length, className: 'tall',
    row: at => {
      const [name, all] = owners[at];
      return element('a.line', { href: address('interface', name) }, element('span.name', null, name),
        element('span.said', null, all.filter(it => typeof it.value !== 'object').slice(0, 5).map(it => `${it.attribute} ${valueText(it.value)}`).join(', ') || all.map(it => it.attribute).slice(0, 4).join(', ')),
        element('span.tally', null, `last in event ${Math.max(...all.map(it => it.event))}`));
    },
  });
  return { title: 'Interfaces', parts: [element('p.lead', null, `${count(owners.length, 'interface or object', 'interfaces and objects')} whose values the plug-in has published, as they are at the end.`), list.element] };
}

function interfaceView(name, options, visit) {
  const all = publishedOwners().get(name);
  if (!all) return null;
  const wanted = new Set(all.map(it => it.what)), past = element('div', null, element('p.pending', { role: 'status' }, 'Opening the rows …'));
  const rows = [];
  eachRow(0, model.rowCount, (block, at) => { if (wanted.has(block.what[at])) rows.push(rowOf(block, at)); }, { ...visit, isWanted: it => it.publications > 0 })
    .then(done => { if (done) past.replaceChildren(publicationsList(name, rows.reverse())); });
  const mentioning = model.events.filter(event => event.text.includes(name) && new RegExp(`(^|[^\\w.])${name.replace(/[.*+?^${}()|[\]\\]/g, '\\$&')}($|[^\\w.])`).test(event.text));
  return { title: name, parts: [
    element('p.lead', null, `${count(all.reduce((sum, it) => sum + it.count, 0), 'value was', 'values were')} published.`),
    element('h2', null, 'Values at the end'),
    tableOf(['attribute', 'value', 'since', 'path'], all.map(it => [element('code', null, it.attribute), element('code.wrap', null, valueText(it.value)), element('a', { href: address('event', it.event) }, `event ${it.event}`), breakable(it.path)])),
    element('h2', null, 'Over time, newest first'), past,
    element('h2', null, 'Events that name it'), eventsList(mentioning, `Events that name ${name}`),
  ] };
}

function publicationsList(name, rows) {
  return virtualList({
    label: `Values of ${name} over time`, length: rows.length,
    row: at => {
      const row = rows[at], event = model.eventOf(row.number);
      return element('a.line', { href: address('event', event.number) }, element('span.number', null, `event ${event.number}`), element('span.name', null, row.attribute),
        element('span.said', null, `${valueText(row.before)} → ${valueText(row.value)}`), element('span.tally', null, row.cause));
    },
  }).element;
}
