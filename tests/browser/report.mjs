// The report of the example in a browser: a person searches a table, opens an event, reads a value.
//
//    node report.mjs L3SM CHROMIUM [FOLDER]       pictures of the page go to the folder
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { Browser } from './driver.mjs';

const [l3sm, chromium, pictures] = process.argv.slice(2);
const folder = mkdtempSync(join(tmpdir(), 'l3sm-report-'));
const page = join(folder, 'report.html');
let browser;
// The page at a place, loaded anew.
const goTo = async hash => {
  await browser.open('about:blank');
  await browser.open(`file://${page}${hash}`);
};
const shot = async name => { if (pictures) writeFileSync(join(pictures, name), await browser.picture()); };
const heading = text => browser.until(`return document.querySelector('main h1')?.innerText === ${JSON.stringify(text)}`);
const place = hash => browser.until(`return location.hash === ${JSON.stringify(hash)}`);

const steps = {
  'opens on the switch': async () => {
    await browser.size(1280, 900);
    await browser.likes('light');
    await goTo('');
    assert.match(await browser.text('h1'), /^uRPF fail-forward/);
    assert.match(await browser.text('.cards'), /BCM88690_B0/);
    await shot('report-switch.png');
  },
  'finds a table by a part of its name, from the keyboard alone': async () => {
    await browser.keys('/');
    await browser.until("return document.activeElement.id === 'search'");
    await browser.keys('ferTrapCfg');
    await browser.until("return document.querySelector('.hits a')?.textContent.startsWith('IppdFerTrapCfg')");
    await browser.keys('Enter');
    await place('#table/IppdFerTrapCfg');
    await heading('IppdFerTrapCfg');
    assert.equal(await browser.run("return document.querySelectorAll('.bits text.scale').length"), 8);
    const fields = await browser.run("return [...document.querySelectorAll('.bits title')].map(it => it.textContent).sort()");
    assert.deepEqual(fields, ['cpuSnoopCodeN [8:0]', 'cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
  },
  'opens an event and reads the value before and after': async () => {
    await browser.click('a[href="#event/1"]');
    await heading('set routing/hardware/config urpfLooseFailForward = true');
    assert.equal(await browser.text('.fn'), 'L3Sm::handleUrpfFailFwdConfig');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .b'), '0x5');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .a'), '0x0');
    assert.deepEqual(await browser.run("return [...document.querySelector('.write').querySelectorAll('.hit title')].map(it => it.textContent).sort()"),
      ['cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
    await shot('report-event.png');
  },
  'walks the timeline by keys': async () => {
    const isOpen = "document.getElementById('keys').open";
    await browser.keys('j');
    await place('#event/2');
    await heading('set routing/hardware/config urpfStrictFailForward = true');
    await browser.keys('k');
    await place('#event/1');
    await heading('set routing/hardware/config urpfLooseFailForward = true');
    await browser.keys('?');
    await browser.until(`return ${isOpen}`);
    await browser.keys('Escape');
    await browser.until(`return !${isOpen}`);
  },
  'opens and closes the boxes of an event by keys': async () => {
    const open = "[...document.querySelectorAll('main details.group')].filter(it => it.open).length";
    const before = await browser.run(`return ${open}`);
    assert.ok(before > 0);
    await browser.keys('o');
    await browser.until(`return ${open} === 0`);
    await browser.keys('o');
    await browser.until(`return ${open} === ${before}`);
  },
  'shows the history of an entry, newest write first': async () => {
    await goTo('#table/IppdFerTrapCfg');
    await browser.run("[...document.querySelectorAll('main details.group')].find(it => it.querySelector('.place')?.textContent === '[3]').open = true");
    await browser.until("return document.querySelectorAll('main .write').length > 0");
    const numbers = await browser.run("return [...document.querySelectorAll('main .write')].map(it => Number(it.dataset.seq))");
    assert.ok(numbers.length >= 4);
    assert.deepEqual(numbers, [...numbers].sort((a, b) => b - a));
  },
  'tells the gates that were closed': async () => {
    await goTo('#event/0');
    await heading('Start-up');
    assert.match(await browser.text('main'), /the register is there on FAP revisions 8 and 9 only/);
  },
  'is dark or light as the reader likes': async () => {
    const paper = () => browser.run('return getComputedStyle(document.body).backgroundColor');
    await goTo('#event/1');
    const light = await paper();
    await browser.click('#theme');
    const dark = await paper();
    assert.notEqual(dark, light);
    await shot('report-dark.png');
    await browser.click('#theme');
    assert.equal(await paper(), light);
    await browser.likes('dark');
    await goTo('#event/1');
    assert.equal(await paper(), dark);
    await browser.likes('light');
  },
  'fits a narrow window': async () => {
    await browser.size(400, 900);
    for (const hash of ['#switch', '#event/0', '#event/1', '#table/IppbProgTrapCfg', '#table/controls', '#search/trap']) {
      await goTo(hash);
      await browser.until("return document.querySelector('main h1')");
      assert.ok(await browser.run('return document.documentElement.scrollWidth <= window.innerWidth'), `${hash} is too wide`);
    }
    await goTo('#event/1');
    const [box, picture] = await browser.until("const it = document.querySelector('.write .bits'); return it && [it.parentElement.clientWidth, it.clientWidth]");
    assert.ok(picture > box, 'the picture is scrolled in its own box');
    await browser.until(`
      const hit = document.querySelector('.write .hit').getBoundingClientRect();
      const box = document.querySelector('.write .scroll').getBoundingClientRect();
      return box.left <= hit.left && hit.right <= box.right`);
    await shot('report-narrow.png');
  },
  'asks nothing of a network, and has no error': async () => {
    assert.deepEqual(await browser.run("return performance.getEntriesByType('resource').map(it => it.name)"), []);
    assert.deepEqual(browser.errors, []);
  },
};

// A browser that hangs is ended in time to clean up.
setTimeout(() => { console.log('FAILED  it took too long'); process.exitCode = 1; browser?.kill(); }, 120_000).unref();

let failures = 0;
try {
  execFileSync(l3sm, ['run', '--quiet', '--report', page], { timeout: 60_000 });
  browser = await Browser.start(chromium);
  for (const [name, step] of Object.entries(steps)) {
    try {
      await step();
      console.log(`ok      ${name}`);
    } catch (error) {
      ++failures;
      console.log(`FAILED  ${name}\n${error.message}`);
    }
  }
} finally {
  await browser?.stop();
  rmSync(folder, { recursive: true });
}
if (failures) process.exitCode = 1;
