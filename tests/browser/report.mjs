// The report of the example in a browser: a person searches a table, opens an event, reads a value.
//
//    node report.mjs L3SM CHROMIUM CHROMEDRIVER [FOLDER]       pictures of the page go to the folder
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { Browser, enter, escape } from './driver.mjs';

const [l3sm, chromium, chromedriver, pictures] = process.argv.slice(2);
const folder = mkdtempSync(join(tmpdir(), 'l3sm-report-'));
const page = join(folder, 'report.html');
execFileSync(l3sm, ['run', '--quiet', '--report', page]);
const browser = await Browser.start(chromium, chromedriver);
const shot = async name => { if (pictures) writeFileSync(join(pictures, name), await browser.picture()); };

const steps = {
  'opens on the switch': async () => {
    await browser.size(1280, 900);
    await browser.open(`file://${page}`);
    assert.match(await browser.text('h1'), /^uRPF fail-forward/);
    assert.match(await browser.text('.cards'), /BCM88690_B0/);
    await shot('report-switch.png');
  },
  'finds a table by a part of its name, from the keyboard alone': async () => {
    await browser.keys('/');
    await browser.keys('ferTrapCfg');
    await browser.until("return document.querySelector('.hits a')?.textContent.startsWith('IppdFerTrapCfg')");
    await browser.keys(enter);
    await browser.until("return location.hash === '#table/IppdFerTrapCfg'");
    assert.equal(await browser.text('h1'), 'IppdFerTrapCfg');
    assert.equal(await browser.run("return document.querySelectorAll('.bits text.scale').length"), 8);
    const fields = await browser.run("return [...document.querySelectorAll('.bits title')].map(it => it.textContent).sort()");
    assert.deepEqual(fields, ['cpuSnoopCodeN [8:0]', 'cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
  },
  'opens an event and reads the value before and after': async () => {
    await browser.click('a[href="#event/1"]');
    assert.equal(await browser.text('h1'), 'set routing/hardware/config urpfLooseFailForward = true');
    assert.equal(await browser.text('.fn'), 'L3Sm::handleUrpfFailFwdConfig');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .b'), '0x5');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .a'), '0x0');
    assert.deepEqual(await browser.run("return [...document.querySelector('.write').querySelectorAll('.hit title')].map(it => it.textContent).sort()"),
      ['cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
    await shot('report-event.png');
  },
  'walks the timeline by keys': async () => {
    await browser.keys('j');
    await browser.until("return location.hash === '#event/2'");
    await browser.keys('k');
    await browser.until("return location.hash === '#event/1'");
    await browser.keys('?');
    assert.equal(await browser.run("return document.getElementById('keys').open"), true);
    await browser.keys(escape);
    assert.equal(await browser.run("return document.getElementById('keys').open"), false);
  },
  'shows the history of an entry, newest write first': async () => {
    await browser.open(`file://${page}#table/IppdFerTrapCfg`);
    await browser.until("return document.querySelector('main h1')?.textContent === 'IppdFerTrapCfg'");
    await browser.run("[...document.querySelectorAll('main details.group')].find(it => it.querySelector('.place')?.textContent === '[3]').open = true");
    await browser.until("return document.querySelectorAll('main .write').length > 0");
    const numbers = await browser.run("return [...document.querySelectorAll('main .write')].map(it => Number(it.dataset.seq))");
    assert.ok(numbers.length >= 4);
    assert.deepEqual(numbers, [...numbers].sort((a, b) => b - a));
  },
  'tells the gates that were closed': async () => {
    await browser.open(`file://${page}#event/0`);
    await browser.until("return document.querySelector('main h1')?.textContent === 'Start-up'");
    assert.match(await browser.run("return document.querySelector('main').textContent"), /the register is there on FAP revisions 8 and 9 only/);
  },
  'is dark or light as the reader likes': async () => {
    await browser.open(`file://${page}#event/1`);
    const paper = () => browser.run("return getComputedStyle(document.body).backgroundColor");
    const before = await paper();
    await browser.click('#theme');
    assert.notEqual(await paper(), before);
    await shot('report-dark.png');
    await browser.click('#theme');
    assert.equal(await paper(), before);
  },
  'fits a narrow window': async () => {
    await browser.size(500, 900);
    for (const place of ['#switch', '#event/1', '#table/IppbProgTrapCfg', '#search/trap']) {
      await browser.open(`file://${page}${place}`);
      assert.ok(await browser.run('return document.documentElement.scrollWidth <= window.innerWidth'), `${place} is too wide`);
    }
    await browser.open(`file://${page}#event/1`);
    await shot('report-narrow.png');
  },
  'asks nothing of a network, and has no error': async () => {
    assert.deepEqual(await browser.run("return performance.getEntriesByType('resource').map(it => it.name)"), []);
    assert.deepEqual((await browser.errors()).map(it => it.message), []);
  },
};

let failures = 0;
for (const [name, step] of Object.entries(steps)) {
  try {
    await step();
    console.log(`ok      ${name}`);
  } catch (error) {
    ++failures;
    console.log(`FAILED  ${name}\n${error.message}`);
  }
}
await browser.stop();
rmSync(folder, { recursive: true });
process.exitCode = failures ? 1 : 0;
