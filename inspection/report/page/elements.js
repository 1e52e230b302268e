// Making elements: text is always text, never markup.
'use strict';

// element('a.class', { href: '#x' }, 'text', other)
function element(kind, attributes, ...children) {
  const [tag, ...classes] = kind.split('.');
  const made = document.createElement(tag);
  if (classes.length) made.className = classes.join(' ');
  for (const [name, value] of Object.entries(attributes ?? {})) {
    if (value !== null && value !== undefined) made.setAttribute(name, value);
  }
  made.append(...children.filter(child => child !== null && child !== undefined && child !== ''));
  return made;
}

function svgElement(tag, attributes, ...children) {
  const made = document.createElementNS('http://www.w3.org/2000/svg', tag);
  for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, value);
  made.append(...children);
  return made;
}

// A name of several words without a space between them, or a path, which may be broken where a word begins.
function breakable(name) {
  const made = element('span.what');
  name.split(/(?<=[/:])(?![/:])|(?=[A-Z][a-z])/).forEach((word, at) => { if (at) made.append(element('wbr')); made.append(word); });
  return made;
}

// A part of a text marked where a search has hit.
function marked(text, wanted) {
  const at = wanted ? text.toLowerCase().indexOf(wanted.toLowerCase()) : -1;
  const made = element('span');
  if (at < 0) made.append(text);
  else made.append(text.slice(0, at), element('mark', null, text.slice(at, at + wanted.length)), text.slice(at + wanted.length));
  return made;
}

const count = (number, one, many) => `${number.toLocaleString('en')} ${number === 1 ? one : many}`;

// What rows did, in a few words.
function tallyText({ reads, writes, controls, gates, publications, changes }) {
  const parts = [];
  if (writes) parts.push(`${count(writes, 'write', 'writes')}, ${changes.toLocaleString('en')} with a change`);
  if (controls) parts.push(count(controls, 'control', 'controls'));
  if (publications) parts.push(count(publications, 'publication', 'publications'));
  if (gates) parts.push(count(gates, 'closed gate', 'closed gates'));
  if (reads) parts.push(count(reads, 'read', 'reads'));
  return parts.join(' · ');
}

// The address of a view: address('table', name, { event: 3 })
function address(kind, what = null, options = {}) {
  const query = Object.entries(options).filter(([, value]) => value !== null && value !== undefined && value !== '')
    .map(([name, value]) => `${name}=${encodeURIComponent(value)}`).join('&');
  return `#${kind}${what === null ? '' : `/${encodeURIComponent(what)}`}${query ? `?${query}` : ''}`;
}

const link = (kind, what, text = what, options = {}) => element('a', { href: address(kind, what, options) }, typeof text === 'string' ? breakable(text) : text);

// Rows of cells below a heading for each column; `numbers` tells which columns are set to the right.
function tableOf(headings, rows, { label, numbers = [] } = {}) {
  return element('div.scroll', { tabindex: 0, role: 'region', 'aria-label': label ?? headings.join(', ') }, element('table', null,
    element('thead', null, element('tr', null, ...headings.map((it, at) => element(numbers.includes(at) ? 'th.num' : 'th', { scope: 'col' }, it)))),
    element('tbody', null, ...rows.map(row => element('tr', null, ...row.map((cell, at) => element(numbers.includes(at) ? 'td.num' : 'td', null,
      ...(Array.isArray(cell) ? cell : [cell ?? ''])))))))); 
}

// A choice with its label: [[value, text], ...]
function choiceOf(label, options, chosen, onChange) {
  const select = element('select', null, ...options.map(([value, text]) => element('option', { value, selected: String(value) === String(chosen ?? '') ? '' : null }, text)));
  select.addEventListener('change', () => onChange(select.value));
  return element('label.choice', null, element('span', null, label), select);
}

// The number of an event, to be typed.
function eventChoice(label, event, onChange) {
  const field = element('input', { type: 'number', min: 0, max: model.events.at(-1)?.number ?? 0, value: event.number });
  field.addEventListener('change', () => onChange(model.eventsByNumber.get(Number(field.value)) ?? event));
  return element('label.choice', null, element('span', null, label), field);
}
