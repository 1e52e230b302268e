// The report of a long run in a browser: how soon it is there, how much of it is laid out, how soon it answers.
//
//    node size.mjs L3SM CHROMIUM SCENARIO-MAKER FAPS INTERFACES EVENTS
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { onPage } from './page.mjs';

const [l3sm, chromium, maker, faps, interfaces, events] = process.argv.slice(2);
const mostBytes = 40e6, mostToLoad = 3000, mostToSearch = 200, mostNodes = 3000, mostToAnswer = 10_000;
let file;

function make(folder) {
  file = join(folder, 'report.html');
  const scenario = join(folder, 'scenario.json');
  writeFileSync(scenario, execFileSync('python3', [maker, '--faps', faps, '--interfaces', interfaces, '--events', events], { maxBuffer: 1 << 30 }));
  execFileSync(l3sm, ['report', scenario, '-o', file], { timeout: 300_000, stdio: 'ignore' });
}

// Milliseconds until the page has what is asked for.
async function timeOf(action) {
  const begin = performance.now();
  await action();
  return performance.now() - begin;
}

const steps = {
  'is one file that can be sent': async () => {
    const { size } = statSync(file);
    console.log(`        ${(size / 1e6).toFixed(1)} MB`);
    assert.ok(size <= mostBytes, `${size} bytes`);
  },
  'is there soon': async (page, browser) => {
    await browser.size(1280, 900);
    const time = await timeOf(() => page.show(file, ''));
    console.log(`        ${Math.round(time)} ms, ${await page.nodes()} elements`);
    assert.ok(time <= mostToLoad, `${time} ms`);
    await browser.says('h1', /Full size|size/i);
    assert.match(await browser.text('main .lead'), new RegExp(`${faps} FAPs, ${Number(events).toLocaleString('en')} events`));
  },
  'lays out what is seen alone': async (page, browser) => {
    for (const hash of ['', '#events', '#event/0', '#tables', '#inputs', '#interfaces', '#table/IppdFerTrapCfg', '#compare', '#search/e']) {
      const time = await timeOf(() => page.goTo(hash));
      const nodes = await page.nodes();
      console.log(`        ${hash || '#'} ${Math.round(time)} ms, ${nodes} elements`);
      assert.ok(nodes <= mostNodes, `${hash}: ${nodes} elements`);
      assert.ok(time <= mostToAnswer, `${hash}: ${time} ms`);
    }
    await page.goTo('#event/0');
    const time = await browser.run("const begin = performance.now(); visitActions.openAll(); return performance.now() - begin");
    assert.ok(time <= 500, `opening all of the start: ${time} ms`);
    assert.ok(await page.nodes() <= mostNodes);
  },
  'reaches the last event of the list': async (page, browser) => {
    await page.goTo('#events');
    await browser.run("const it = document.querySelector('main .virtual'); it.scrollTop = it.scrollHeight");
    await browser.until(`return [...document.querySelectorAll('main .item .number')].at(-1)?.innerText === ${JSON.stringify(events)}
      || [...document.querySelectorAll('main .item .number')].some(it => it.innerText === ${JSON.stringify(events)})`);
    const cut = await browser.run("return [...document.querySelectorAll('main .item .number')].filter(it => it.scrollWidth > it.clientWidth).length");
    assert.equal(cut, 0, 'numbers fit their places');
  },
  'searches at once': async (page, browser) => {
    await page.goTo('#search/x');
    await browser.until("return !/being opened/.test(document.querySelector('main [role=status]').innerText)");
    const words = ['trap', '0x1f4', '1500', 'Ethernet1', 'urpf', 'e', 'FAP 3', 'L3SmUrpf.cpp', '02:00:00'];
    const times = await browser.run(`return ${JSON.stringify(words)}.map(word => { const begin = performance.now(); document.querySelector('#search').value = word; document.querySelector('#search').dispatchEvent(new Event('input')); document.body.offsetHeight; return Math.round(performance.now() - begin); })`);
    console.log(`        ${words.map((word, at) => `${word} ${times[at]} ms`).join(', ')}`);
    assert.ok(Math.max(...times) <= mostToSearch, `${times} ms`);
  },
  'fits a narrow window': async (page, browser) => {
    await browser.size(400, 900);
    for (const hash of ['', '#events', '#event/0', '#interfaces', '#compare', '#inputs']) {
      await page.goTo(hash);
      await page.fits(hash);
    }
  },
  'has no error': async (page, browser) => assert.deepEqual(browser.errors, []),
};

await onPage({ chromium, minutes: 6 }, make, steps);
