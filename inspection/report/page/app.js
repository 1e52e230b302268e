// Where the reader is (the address after the #), and the keys.
'use strict';

const main = document.getElementById('main');
const nav = document.getElementById('nav');
const search = document.getElementById('search');
const keys = document.getElementById('keys');

document.getElementById('name').textContent = data.name || 'l3sm';

function navigation() {
  const entry = (href, what, number) => element('li', null, element('a', { href, title: what }, breakable(what), element('span.count', null, number)));
  const writesOf = list => list.filter(it => isWrite(it) && (it.kind === 2 || it.changed)).length;
  const byEvent = groupBy(operations, it => it.event);
  nav.append(
    element('h2', null, 'Timeline'),
    element('ol.timeline', null, ...data.events.map((event, number) => element('li', null, element('a', { href: `#event/${number}` },
      element('span.dot', null, String(number)), element('span.what', null, number ? event.text : 'Start-up'),
      element('span.count', { title: 'changes' }, String(writesOf(byEvent.get(number) ?? []))))))),
    element('h2', null, 'Tables'),
    element('ul.tables', null, ...tableNames.map(name => entry(`#table/${name}`, name, String(writesOf(operationsOf.get(name) ?? []))))));
}

function show() {
  const [kind, ...rest] = decodeURIComponent(location.hash.slice(1)).split('/');
  const what = rest.join('/');
  let parts = null;
  if (kind === 'event' && data.events[Number(what)]) parts = eventView(Number(what));
  else if (kind === 'table' && tableNames.includes(what)) parts = tableView(what);
  else if (kind === 'search' && what) parts = searchView(what);
  main.replaceChildren(...(parts ?? switchView()));
  for (const link of nav.querySelectorAll('a')) {
    const isHere = link.getAttribute('href') === location.hash;
    if (isHere) { link.setAttribute('aria-current', 'page'); link.scrollIntoView({ block: 'nearest' }); }
    else link.removeAttribute('aria-current');
  }
  if (kind !== 'search') { search.value = ''; window.scrollTo(0, 0); if (document.activeElement !== search && location.hash) main.focus({ preventScroll: true }); }
}

function step(by) {
  const isTable = location.hash.startsWith('#table/');
  const links = [...nav.querySelectorAll(isTable ? '.tables a' : '.timeline a')];
  const at = links.findIndex(link => link.hasAttribute('aria-current'));
  links[Math.max(0, Math.min(links.length - 1, at + by))]?.click();
}

function flipTheme() {
  const root = document.documentElement;
  const isDark = root.dataset.theme ? root.dataset.theme === 'dark' : matchMedia('(prefers-color-scheme: dark)').matches;
  root.dataset.theme = isDark ? 'light' : 'dark';
}

function openAll() {
  const boxes = [...main.querySelectorAll('details.group')];
  const open = boxes.some(box => !box.open);
  for (const box of boxes) box.open = open;
}

const actions = {
  '/': () => search.focus(), j: () => step(1), k: () => step(-1), d: flipTheme, o: openAll,
  e: () => { location.hash = '#event/0'; }, t: () => { location.hash = `#table/${tableNames[0]}`; }, s: () => { location.hash = '#switch'; },
  '?': () => keys.showModal(),
};

document.addEventListener('keydown', event => {
  if (event.ctrlKey || event.metaKey || event.altKey || keys.open) return;
  if (event.target === search) {
    if (event.key === 'Escape') { search.value = ''; search.blur(); if (location.hash.startsWith('#search/')) location.hash = '#switch'; }
    if (event.key === 'Enter') main.querySelector('.hits a')?.click();
    if (event.key === 'ArrowDown') { event.preventDefault(); main.querySelector('.hits a')?.focus(); }
    return;
  }
  if (event.target.matches?.('select')) return;
  if (event.target.closest?.('.hits') && (event.key === 'ArrowDown' || event.key === 'ArrowUp')) {
    event.preventDefault();
    const links = [...main.querySelectorAll('.hits a')];
    links[links.indexOf(document.activeElement) + (event.key === 'ArrowDown' ? 1 : -1)]?.focus();
    return;
  }
  if (actions[event.key]) { event.preventDefault(); actions[event.key](); }
});

search.addEventListener('input', () => {
  const wanted = search.value.trim();
  history.replaceState(null, '', wanted ? `#search/${encodeURIComponent(wanted)}` : '#switch');
  show();
});
document.getElementById('theme').addEventListener('click', flipTheme);
document.getElementById('help').addEventListener('click', () => keys.showModal());
window.addEventListener('hashchange', show);

navigation();
show();
