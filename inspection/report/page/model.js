// The run as the page knows it from the start: names, layouts, events with their counts. ReportIndex.cpp writes it.
'use strict';

let model; // once the index is open

const keySize = 10, eventSize = 14, tallySize = 8;

class Model {
  constructor(index) {
    Object.assign(this, { texts: index.texts, keys: Int32Array.from(index.keys), sets: index.sets, rowCount: index.rows, ending: index.ending, valuesAreWhole: index.valuesAreWhole });
    this.name = index.run.name ?? '';
    this.slice = index.run.switch?.slice?.name ?? '';
    this.toggles = Object.entries(index.run.toggles ?? {}).flatMap(([file, all]) => Object.entries(all).map(([name, state]) => ({ file, name, state })));
    this.readLayouts(index.layouts);
    this.readEvents(index.events, index.whats);
    this.blocks = [];
    for (let at = 0; at < index.blocks.length; at += 4) {
      const [firstRow, firstOperation, publications, tables] = index.blocks.slice(at, at + 4);
      this.blocks.push({ firstRow, firstOperation, publications, tables: new Set(tables) });
    }
    this.tallies = {};
    for (const [name, list] of Object.entries(index.tallies)) {
      this.tallies[name] = new Map();
      for (let at = 0; at < list.length; at += tallySize) this.tallies[name].set(list[at], tallyOf(list, at + 1));
    }
    this.published = [];
    for (let at = 0; at < index.published.length; at += 4) {
      const [what, value, event, count] = index.published.slice(at, at + 4);
      this.published.push({ ...this.publicationOf(what), what, value, event, count });
    }
    this.readFaps(index.run.switch?.faps ?? []);
    this.findPlaces();
  }

  readLayouts({ layouts, fields }) {
    this.layouts = [];
    let field = 0;
    for (let at = 0; at < layouts.length; at += 8) {
      const [chip, table, variant, width, arrayed, variants, isMemory, count] = layouts.slice(at, at + 8);
      const layout = { chip, table: this.texts[table], variant, width, arrayed: Boolean(arrayed), variants, isMemory: Boolean(isMemory), fields: [] };
      for (let number = 0; number < count; ++number, field += 3) {
        layout.fields.push({ name: this.texts[fields[field]], offset: fields[field + 1], width: fields[field + 2] });
      }
      this.layouts.push(layout);
    }
    this.layoutsOf = groupBy(this.layouts, layout => layout.table);
  }

  readEvents(list, whats) {
    this.events = [];
    for (let at = 0; at < list.length; at += eventSize) {
      const number = list[at];
      const event = { number, at: this.events.length, firstRow: list[at + 1], tally: tallyOf(list, at + 2) };
      [event.faps, event.functions, event.causes, event.tables, event.isWhole] = list.slice(at + 9, at + eventSize);
      event.text = eventText(number, whats[event.at]);
      const { changes, changedControls, publications } = event.tally;
      event.isSilent = changes + changedControls + publications === 0;
      this.events.push(event);
    }
    this.events.forEach((event, at) => { event.endRow = this.events[at + 1]?.firstRow ?? this.rowCount; });
    this.eventsByNumber = new Map(this.events.map(event => [event.number, event]));
  }

  readFaps(list) {
    this.faps = new Map(list.map(it => [it.fapId, { number: it.fapId, name: it.name ?? `Fap${it.fapId}`, chip: it.revision?.chipType ?? '',
      major: it.revision?.major, sdk: it.revision?.sdkVersion, cores: it.cores, ports: Object.keys(it.ports ?? {}).length }]));
    for (const number of this.tallies.faps.keys()) if (!this.faps.has(number)) this.faps.set(number, { number, name: '', chip: '' });
  }

  // Places: what rows write, whoever writes it. And which functions touch which tables.
  findPlaces() {
    const known = new Map();
    this.places = [];
    this.placeOf = new Int32Array(this.keys.length / keySize).fill(-1);
    this.alikeOf = new Int32Array(this.placeOf.length); // what is done alike on chips whose fields lie alike
    const alike = new Map(), shapes = this.layouts.map(layout => JSON.stringify(layout.fields));
    this.functionTables = new Map();
    this.gates = [];
    this.sources = new Map();
    for (let what = 0; what < this.placeOf.length; ++what) {
      const key = this.keys.subarray(what * keySize, (what + 1) * keySize), kind = key[0];
      const shape = `${shapes[key[1]] ?? ''} ${[kind, ...key.slice(2)].join()}`;
      if (!alike.has(shape)) alike.set(shape, what);
      this.alikeOf[what] = alike.get(shape);
      if (kind !== kindPublish) {
        const fn = this.texts[key[8]];
        if (!this.sources.has(fn)) this.sources.set(fn, new Set());
        this.sources.get(fn).add(this.texts[key[9]]);
      }
      if (kind === kindGate) this.gates.push({ reason: this.texts[key[2]], function: this.texts[key[8]], source: this.texts[key[9]] });
      if (kind > kindControl) continue;
      const table = kind === kindControl ? 'controls' : this.texts[key[2]];
      const fn = this.texts[key[8]];
      if (!this.functionTables.has(fn)) this.functionTables.set(fn, new Map());
      const touched = this.functionTables.get(fn);
      touched.set(table, (touched.get(table) ?? 0) | (kind === kindRead ? 1 : 2));
      if (kind === kindRead) continue;
      const name = kind === kindControl ? `control ${key[4]}` : key.slice(1, 7).join();
      if (!known.has(name)) {
        known.set(name, this.places.length);
        this.places.push({ table, layout: this.layouts[key[1]] ?? null, variant: key[3], array: key[4], entry: key[5], core: key[6], control: kind === kindControl ? key[4] : null });
      }
      this.placeOf[what] = known.get(name);
    }
    for (const place of this.places) place.text = placeText(place);
    this.tables = [...this.tallies.tables.keys()].map(it => this.texts[it]).sort();
    this.functions = [...this.tallies.functions.keys()].map(it => this.texts[it]).sort();
    this.causes = [...this.tallies.causes.keys()].map(it => this.texts[it]).sort();
    this.numbers = new Map(this.texts.map((text, number) => [text, number]));
  }

  kindOf(what) { return this.keys[what * keySize]; }
  widthOf(what) { return this.keys[what * keySize + 7]; }
  blockOf(row) { return lastUpTo(this.blocks, row, it => it.firstRow); }
  eventOf(row) { return this.events[lastUpTo(this.events, row, it => it.firstRow)]; }
  setHas(set, number) { return this.sets[set].includes(number); }
  textsOf(set) { return this.sets[set].map(it => this.texts[it]); }
  tally(kind, name) { return this.tallies[kind].get(kind === 'faps' ? name : this.numbers.get(name)) ?? tallyOf([0, 0, 0, 0, 0, 0, 0], 0); }

  publicationOf(what) {
    const at = what * keySize, key = this.keys[at + 5];
    const path = this.texts[this.keys[at + 2]];
    return { path, attribute: this.texts[this.keys[at + 4]], key: key < 0 ? null : this.texts[key] };
  }
}

// The last item whose number is at most `wanted`; empty ones share the number of the one behind them.
function lastUpTo(list, wanted, numberOf) {
  let low = 0, high = list.length - 1;
  while (low < high) {
    const middle = (low + high + 1) >> 1;
    if (numberOf(list[middle]) <= wanted) low = middle; else high = middle - 1;
  }
  return low;
}

function tallyOf(list, at) {
  return { reads: list[at], writes: list[at + 1], controls: list[at + 2], gates: list[at + 3], publications: list[at + 4], changes: list[at + 5], changedControls: list[at + 6] };
}

function valueText(value) {
  return typeof value === 'string' ? value : JSON.stringify(value);
}

// "set evpn/status evpnDciEnabled = true", as the scenario has it.
function eventText(number, what) {
  if (what?.start || number === 0) return 'Start-up';
  const [does, change] = Object.entries(what ?? {})[0] ?? ['', null];
  if (!change?.path) return does ? `${does} ${valueText(change)}` : `Event ${number}`;
  const place = [change.path, change.attribute].filter(Boolean).join(' ') + (change.key === undefined ? '' : `[${change.key}]`);
  return does === 'set' ? `set ${place} = ${valueText(change.value)}` : `${does} ${place}`;
}

function groupBy(list, keyOf) {
  const groups = new Map();
  for (const item of list) {
    const key = keyOf(item);
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(item);
  }
  return groups;
}

// An entry's place as people read it; what can only be one way is left out.
function placeText({ layout, variant, array, entry, core, control }) {
  if (control !== null) return `control ${control}`;
  const parts = [];
  if (!layout || layout.variants > 1) parts.push(`variant ${variant}`);
  if (!layout || layout.arrayed) parts.push(`[${array}]`);
  if (entry >= 0) parts.push(entry);
  if (core >= 0) parts.push(`core ${core}`);
  return parts.join(' ') || 'register';
}
