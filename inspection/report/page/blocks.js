// The data that the program has put into the page, compressed: opened by the browser itself, when it is looked at.
'use strict';

// The bytes of a part: base64 of a zlib stream.
async function partBytes(id) {
  const text = atob(document.getElementById(id).textContent);
  const bytes = new Uint8Array(text.length);
  for (let at = 0; at < bytes.length; ++at) bytes[at] = text.charCodeAt(at);
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate'));
  return new Response(stream).arrayBuffer();
}

const partJson = async id => JSON.parse(new TextDecoder().decode(await partBytes(id)));

const changedFlag = 1, beforeFlag = 2;
const kindRead = 0, kindWrite = 1, kindControl = 2, kindGate = 3, kindPublish = 4;

// Columns of rows, as ReportBlocks.h describes them; where a row's words and texts begin is found once.
class Block {
  constructor(number, buffer) {
    const [count, words, textSize] = new Uint32Array(buffer, 0, 3);
    let at = 12;
    const take = (Kind, size) => { const column = new Kind(buffer, at, size); at += column.byteLength; return column; };
    this.number = number;
    this.firstRow = model.blocks[number].firstRow;
    this.count = count;
    this.what = take(Uint32Array, count);
    this.cause = take(Uint32Array, count);
    this.words = take(Uint32Array, words);
    this.fap = take(Uint16Array, count);
    this.flags = take(Uint8Array, count);
    this.text = take(Uint8Array, textSize);
    this.valueAt = new Uint32Array(count);
    this.operation = new Uint32Array(count);
    let word = 0, text = 0, operation = model.blocks[number].firstOperation;
    for (let row = 0; row < count; ++row) {
      const kind = model.kindOf(this.what[row]), hasBefore = this.flags[row] & beforeFlag ? 2 : 1;
      this.operation[row] = operation;
      if (kind <= kindControl) ++operation;
      if (kind === kindPublish) { this.valueAt[row] = text; text += 2; } else this.valueAt[row] = word;
      if (kind === kindWrite) word += model.widthOf(this.what[row]) * hasBefore;
      else if (kind === kindControl) word += hasBefore;
    }
  }

  get texts() {
    this.parsed ??= this.text.length ? JSON.parse(new TextDecoder().decode(this.text)) : [];
    return this.parsed;
  }

  wordsOf(row) {
    const width = model.kindOf(this.what[row]) === kindControl ? 1 : model.widthOf(this.what[row]);
    return this.words.subarray(this.valueAt[row], this.valueAt[row] + width);
  }

  // What stood there; null where nobody knows.
  beforeOf(row) {
    const isControl = model.kindOf(this.what[row]) === kindControl, words = this.wordsOf(row);
    if (!(this.flags[row] & beforeFlag)) return this.flags[row] & changedFlag || isControl ? null : words;
    const at = this.valueAt[row] + words.length;
    return words.map((word, index) => isControl ? this.words[at + index] : (word ^ this.words[at + index]) >>> 0);
  }
}

const openBlocks = new Map(); // promises by number, the one used last at the end
const blocksKept = 96;

function blockAt(number) {
  const known = openBlocks.get(number);
  openBlocks.delete(number);
  const block = known ?? partBytes(`block${number}`).then(buffer => new Block(number, buffer));
  openBlocks.set(number, block);
  if (openBlocks.size > blocksKept) openBlocks.delete(openBlocks.keys().next().value);
  return block;
}

// Calls visit(block, row in the block) for each row of [from, to), passing over blocks that nobody wants. Ends early,
// with false, where `isOver` says so; `progress` hears how far it is.
async function eachRow(from, to, visit, { isWanted = () => true, isOver = () => false, progress = () => {} } = {}) {
  let pause = performance.now() + 60;
  for (let number = model.blockOf(from); number < model.blocks.length; ++number) {
    const { firstRow } = model.blocks[number];
    if (firstRow >= to) break;
    if (!isWanted(model.blocks[number])) continue;
    const block = await blockAt(number);
    if (isOver()) return false;
    const end = Math.min(block.count, to - firstRow);
    for (let row = Math.max(0, from - firstRow); row < end; ++row) visit(block, row);
    if (performance.now() > pause) {
      progress((firstRow + end - from) / (to - from));
      await new Promise(resolve => { setTimeout(resolve); });
      pause = performance.now() + 60;
    }
  }
  return !isOver();
}
