// A list of any length of which only what is seen is laid out: each row has the same height, but for those that are
// opened. Rows keep the focus while they are scrolled; the arrow keys go from one to the next.
'use strict';

// list = virtualList({ label, length, row: number => element, detail: number => element or null })
// list.element goes into the page; list.changed(length) after its rows have become others.
function virtualList({ label, length, row, detail = null, className = '' }) {
  const space = element('div.space', { role: 'list', 'aria-label': label });
  const box = element('div.virtual', { tabindex: 0, role: 'region', 'aria-label': label }, space);
  if (className) box.classList.add(className);
  const shown = new Map(); // elements by number
  const opened = new Map(); // the height of the detail by number
  let height = 0;

  const topOf = number => {
    let top = number * height;
    for (const [at, more] of opened) if (at < number) top += more;
    return top;
  };
  const numberAt = place => {
    let low = 0, high = Math.max(0, length - 1);
    while (low < high) {
      const middle = (low + high + 1) >> 1;
      if (topOf(middle) <= place) low = middle; else high = middle - 1;
    }
    return low;
  };

  const make = number => {
    const item = element('div.item', { role: 'listitem', 'aria-setsize': length, 'aria-posinset': number + 1 });
    item.dataset.number = number;
    const head = row(number);
    head.classList.add('row');
    item.append(head);
    if (detail && head.tagName === 'BUTTON') {
      head.setAttribute('aria-expanded', String(opened.has(number)));
      head.addEventListener('click', () => { toggle(number); });
      if (opened.has(number)) addDetail(item, number);
    }
    space.append(item);
    return item;
  };
  const addDetail = (item, number) => {
    const part = element('div.detail', null, detail(number) ?? '');
    item.append(part);
    new ResizeObserver(() => {
      if (!part.isConnected || !opened.has(number) || opened.get(number) === part.offsetHeight) return;
      opened.set(number, part.offsetHeight);
      layOut();
    }).observe(part);
  };
  const toggle = number => {
    const item = shown.get(number), isOpen = opened.delete(number);
    item.firstChild.setAttribute('aria-expanded', String(!isOpen));
    if (isOpen) item.querySelector('.detail')?.remove();
    else { opened.set(number, 0); addDetail(item, number); }
    layOut();
  };

  function layOut() {
    if (!box.isConnected) return;
    const wanted = parseFloat(getComputedStyle(box).getPropertyValue('--row')) || 36;
    height = wanted;
    space.style.height = `${topOf(length)}px`;
    if (!length) return;
    const first = Math.max(0, numberAt(box.scrollTop) - 4), last = Math.min(length - 1, numberAt(box.scrollTop + box.clientHeight) + 4);
    for (const [number, item] of shown) {
      if ((number < first || number > last) && !item.contains(document.activeElement)) { item.remove(); shown.delete(number); }
    }
    for (let number = first; number <= last; ++number) if (!shown.has(number)) shown.set(number, make(number));
    for (const [number, item] of shown) item.style.transform = `translateY(${topOf(number)}px)`;
  }

  function focus(number) {
    const to = Math.max(0, Math.min(length - 1, number)), top = topOf(to);
    if (top < box.scrollTop) box.scrollTop = top;
    else if (top + height > box.scrollTop + box.clientHeight) box.scrollTop = top + height - box.clientHeight;
    layOut();
    shown.get(to)?.firstChild.focus({ preventScroll: true });
  }

  box.addEventListener('scroll', () => requestAnimationFrame(layOut), { passive: true });
  box.addEventListener('keydown', event => {
    const by = { ArrowDown: 1, ArrowUp: -1 }[event.key];
    const item = event.target.closest?.('.item');
    if (!by || event.target.matches('select, input')) return;
    if (!item && event.target !== box) return;
    event.preventDefault();
    layOut(); // a key may come before the first frame
    focus(item ? Number(item.dataset.number) + by : numberAt(box.scrollTop));
  });
  new ResizeObserver(layOut).observe(box);
  return {
    element: box, focus,
    changed(newLength = length) {
      length = newLength;
      opened.clear();
      for (const item of shown.values()) item.remove();
      shown.clear();
      layOut();
    },
    // Rows that were not there yet when they were laid out.
    refresh() {
      for (const [number, item] of shown) if (item.querySelector('.pending') && !item.contains(document.activeElement)) { item.remove(); shown.delete(number); }
      layOut();
    },
  };
}
