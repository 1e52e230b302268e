// Pictures of where the fields of an entry lie.
'use strict';

// A picture of an entry: one row of 32 bits for each word, the highest bit on the left. Fields in `hit` stand out.
// Views of bits that another field has too get a row of their own; words that one field fills are drawn once.
function bitPicture(layout, hit = new Set(), title = '') {
  const column = 28, height = 26, left = 44, top = 16;
  const rows = [];
  for (let word = 0; word < layout.width; ++word) {
    const parts = layout.fields
      .map((field, index) => ({
        field, index,
        high: Math.min(field.offset + field.width - 1 - word * 32, 31),
        low: Math.max(field.offset - word * 32, 0),
      }))
      .filter(part => part.high >= 0 && part.low <= 31 && part.low <= part.high)
      .sort((a, b) => (b.high - b.low) - (a.high - a.low));
    const lanes = [[]];
    for (const part of parts) {
      const lane = lanes.find(those => those.every(it => it.low > part.high || part.low > it.high));
      if (lane) lane.push(part); else lanes.push([part]);
    }
    const previous = rows.at(-1);
    const filler = lanes.length === 1 && lanes[0].length === 1 && lanes[0][0].high - lanes[0][0].low === 31 ? lanes[0][0] : null;
    if (filler && previous?.filler?.field === filler.field) { previous.last = word; continue; }
    lanes.forEach((lane, at) => rows.push({ lane, word, last: word, filler, label: at === 0 }));
  }
  const picture = svgElement('svg', {
    class: 'bits', viewBox: `0 0 ${left + 32 * column + 2} ${top + rows.length * (height + 3) + 2}`, role: 'img', 'aria-label': title,
  });
  for (const bit of [31, 24, 23, 16, 15, 8, 7, 0]) {
    const number = svgElement('text', { class: 'scale', x: left + (31.5 - bit) * column, y: 10 });
    number.textContent = bit;
    picture.append(number);
  }
  rows.forEach((row, at) => {
    const y = top + at * (height + 3);
    if (row.label) {
      const label = svgElement('text', { class: 'word', x: left - 6, y: y + 17 });
      label.textContent = row.last > row.word ? `${row.word}–${row.last}` : row.word;
      picture.append(label);
    }
    const used = new Array(32).fill(false);
    for (const part of row.lane) for (let bit = part.low; bit <= part.high; ++bit) used[bit] = true;
    if (row.label) {
      for (let high = 31; high >= 0; --high) {
        if (used[high]) continue;
        let low = high;
        while (low > 0 && !used[low - 1]) --low;
        picture.append(svgElement('g', { class: 'none' }, svgElement('rect', {
          x: left + (31 - high) * column + .5, y: y + .5, width: (high - low + 1) * column - 1, height, rx: 3,
        })));
        high = low;
      }
    }
    for (const part of row.lane) {
      const x = left + (31 - part.high) * column, width = (part.high - part.low + 1) * column;
      const name = part.field.name, room = Math.floor((width - 6) / 6.7);
      const text = svgElement('text', { x: x + width / 2, y: y + 17.5 });
      text.textContent = name.length <= room ? name : room >= 4 ? `${name.slice(0, room - 1)}…` : '';
      const tip = svgElement('title', {});
      tip.textContent = `${name} ${bitsText(part.field)}`;
      const kind = hit.has(name) ? 'hit' : part.index % 2 ? 'alt' : 'field';
      picture.append(svgElement('g', { class: kind }, tip,
        svgElement('rect', { x: x + .5, y: y + .5, width: width - 1, height, rx: 3 }), text));
    }
  });
  const box = element('div.scroll', { tabindex: 0, role: 'region', 'aria-label': title }, picture);
  if (hit.size) requestAnimationFrame(() => reveal(box, picture.querySelector('.hit')));
  return box;
}

// Where a box is too narrow for its contents, it is scrolled to the part that counts.
function reveal(box, part) {
  const here = box.getBoundingClientRect(), there = part.getBoundingClientRect();
  box.scrollLeft = there.left - here.left - Math.max(8, (here.width - there.width) / 2);
}
