// Where the reader is (the address after the #), and the keys.
'use strict';

const main = document.getElementById('main');
const search = document.getElementById('search');
const keys = document.getElementById('keys');
const visitActions = { openAll: null }; // what the view under way offers to keys
let visitNumber = 0;

const views = {
  '': () => overview(), events: (_, options) => eventsView(options), event: eventView,
  tables: () => tablesView(), table: tableView, functions: () => functionsView(), function: functionView, inputs: () => inputsView(), input: inputView,
  interfaces: () => interfacesView(), interface: interfaceView, fap: fapView, compare: (_, options, visit) => compareView(options, visit), search: searchView,
};

function placeOfAddress() {
  const [path, query = ''] = location.hash.slice(1).split('?');
  const at = path.indexOf('/');
  const [kind, what] = at < 0 ? [path, null] : [path.slice(0, at), decodeURIComponent(path.slice(at + 1))];
  return { kind, what, options: Object.fromEntries(new URLSearchParams(query)) };
}

function show() {
  const { kind, what, options } = placeOfAddress();
  const mine = ++visitNumber;
  visitActions.openAll = null;
  const view = (views[kind] ?? (() => null))(what, options, { isOver: () => mine !== visitNumber })
    ?? { title: 'Not in this run', parts: [element('p.lead', null, 'The page holds nothing of this name. ', element('a', { href: '#' }, 'The run as a whole'))] };
  document.title = `${view.title} · ${model.name || 'l3sm'}`;
  main.replaceChildren(element('h1', null, breakable(view.title)), ...view.parts);
  const section = { event: 'events', table: 'tables', function: 'functions', input: 'inputs', interface: 'interfaces', fap: '' }[kind] ?? kind;
  for (const item of document.querySelectorAll('nav a')) {
    if (item.getAttribute('href') === `#${section}`) item.setAttribute('aria-current', kind === section ? 'page' : 'true');
    else item.removeAttribute('aria-current');
  }
  if (kind !== 'search') {
    search.value = '';
    window.scrollTo(0, 0);
    if (document.activeElement !== search && location.hash) main.focus({ preventScroll: true });
  }
}

function step(by) {
  const { kind, what } = placeOfAddress();
  const go = (list, at, to) => { const next = list[Math.max(0, Math.min(list.length - 1, at + by))]; if (next !== undefined) location.hash = to(next); };
  if (kind === 'table') go(model.tables, model.tables.indexOf(what), name => address('table', name));
  else if (kind === 'function') go(model.functions, model.functions.indexOf(what), name => address('function', name));
  else go(model.events, kind === 'event' ? model.eventsByNumber.get(Number(what))?.at ?? -1 : -1, event => address('event', event.number));
}

function flipTheme() {
  const root = document.documentElement;
  const isDark = root.dataset.theme ? root.dataset.theme === 'dark' : matchMedia('(prefers-color-scheme: dark)').matches;
  root.dataset.theme = isDark ? 'light' : 'dark';
  window.dispatchEvent(new Event('resize'));
  show();
}

const actions = {
  '/': () => search.focus(), j: () => step(1), k: () => step(-1), d: flipTheme, o: () => visitActions.openAll?.(),
  e: () => { location.hash = '#events'; }, t: () => { location.hash = '#tables'; }, s: () => { location.hash = '#'; }, c: () => { location.hash = '#compare'; }, i: () => { location.hash = '#interfaces'; },
  '?': () => keys.showModal(),
};

document.addEventListener('keydown', event => {
  if (event.ctrlKey || event.metaKey || event.altKey || keys.open) return;
  if (event.target === search) {
    if (event.key === 'Escape') { search.value = ''; search.blur(); if (location.hash.startsWith('#search/')) location.hash = '#'; }
    if (event.key === 'Enter') main.querySelector('.hits a')?.click();
    if (event.key === 'ArrowDown') { event.preventDefault(); main.querySelector('.hits a')?.focus(); }
    return;
  }
  if (event.target.matches?.('select, input')) return;
  if (actions[event.key]) { event.preventDefault(); actions[event.key](); }
});

search.addEventListener('input', () => {
  const wanted = search.value.trim();
  history.replaceState(null, '', wanted ? address('search', wanted) : '#');
  show();
});

async function open() {
  model = new Model(await partJson('index'));
  document.getElementById('name').textContent = model.name || 'l3sm';
  const told = document.getElementById('remarks'), text = endingText();
  if (text && !(model.ending.ended === 'cut' && told.textContent.trim())) told.append(element('p', null, text));
  told.hidden = !told.textContent.trim();
  document.getElementById('theme').addEventListener('click', flipTheme);
  document.getElementById('help').addEventListener('click', () => keys.showModal());
  window.addEventListener('hashchange', show);
  show();
}

open().catch(error => {
  main.replaceChildren(element('h1', null, 'The page can\'t be opened'), element('p', null, `It needs a browser that opens compressed data by itself (any since 2023). ${error.message}`));
  throw error;
});
