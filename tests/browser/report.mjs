// The report of the example in a browser: a person searches a table, opens an event, reads a value.
//
//    node report.mjs L3SM CHROMIUM AXE-FOLDER EXAMPLES [FOLDER]       pictures of the page go to the folder
import assert from 'node:assert/strict';
import { execFileSync, spawnSync } from 'node:child_process';
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { axeIn, onPage } from './page.mjs';

const [l3sm, chromium, axeFolder, examples, pictures] = process.argv.slice(2);
const axe = axeIn(axeFolder);
let file, interfaces, cut, failed;
const everyView = ['', '#events', '#event/0', '#event/1', '#tables', '#table/IppbProgTrapCfg', '#table/controls', '#functions', '#function/L3Sm%3A%3AhandleUrpfFailFwdConfig',
  '#inputs', '#input/chip-init', '#interfaces', '#fap/0', '#compare', '#search/trap'];
const isOpen = "document.getElementById('keys').open";

function make(folder) {
  [file, interfaces, cut, failed] = ['report.html', 'interfaces.html', 'cut.html', 'failed.html'].map(name => join(folder, name));
  const journal = join(folder, 'run.jsonl'), part = join(folder, 'cut.jsonl');
  execFileSync(l3sm, ['run', '--quiet', '--report', file, '--journal', journal], { timeout: 60_000 });
  execFileSync(l3sm, ['report', join(examples, 'interface-mtu.json'), '-o', interfaces], { timeout: 60_000 });
  writeFileSync(part, readFileSync(journal, 'utf8').split('"event": 3')[0]);
  execFileSync(l3sm, ['report', part, '-o', cut], { timeout: 60_000, stdio: 'ignore' });
  // The plug-in fails with this toggle.
  spawnSync(l3sm, ['run', '--quiet', '--toggle', 'DaceL3Unicast.json:UnifiedIPv4Fwd2Ctx=off', '--report', failed], { timeout: 60_000, stdio: 'ignore' });
}

const steps = {
  'opens on the run as a whole': async (page, browser) => {
    await browser.size(1280, 900);
    await browser.likes('light');
    await page.show(file, '');
    await browser.says('h1', /^uRPF fail-forward/);
    await browser.says('main', /BCM88690_B0[\s\S]*chip-init[\s\S]*the register is there on FAP revisions 8 and 9 only/);
    await browser.says('.counts', /5,125 writes[\s\S]*2 closed gates[\s\S]*0 silent events/);
    await page.shot('report-switch.png');
  },
  'finds a table by a part of its name, from the keyboard alone': async (page, browser) => {
    await browser.keys('/');
    await browser.until("return document.activeElement.id === 'search'");
    await browser.keys('ferTrapCfg');
    await browser.until("return document.querySelector('.hits a')?.textContent.startsWith('IppdFerTrapCfg')");
    await browser.keys('Enter');
    await page.place('#table/IppdFerTrapCfg');
    await page.heading('IppdFerTrapCfg');
    assert.equal(await browser.run("return document.querySelectorAll('figure .bits text.scale').length"), 8);
    const fields = await browser.run("return [...document.querySelectorAll('figure .bits title')].map(it => it.textContent).sort()");
    assert.deepEqual(fields, ['cpuSnoopCodeN [8:0]', 'cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
  },
  'shows from the input over the function to the write, with the values before and after': async (page, browser) => {
    await page.goTo('#event/1');
    await page.heading('set routing/hardware/config urpfLooseFailForward = true');
    assert.equal(await browser.text('.head .fn'), 'L3Sm::handleUrpfFailFwdConfig');
    await page.says(/IppdFerTrapCfg \[3\] cpuStrengthN 0x5 → 0x0, snoopStrengthN 0x0 → 0x5 FAP 0/m);
    await browser.click('button.line.below');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .b'), '0x5');
    assert.equal(await browser.text('tr[data-field="cpuStrengthN"] .a'), '0x0');
    assert.deepEqual(await browser.run("return [...document.querySelector('.write').querySelectorAll('.hit title')].map(it => it.textContent).sort()"),
      ['cpuStrengthN [12:9]', 'snoopStrengthN [15:13]']);
    await page.shot('report-event.png');
  },
  'tells at the start which gates were closed, and opens all functions by a key': async (page, browser) => {
    await page.goTo('#event/0');
    assert.ok((await page.lines()).every(line => !line.includes('→')));
    await browser.keys('o');
    await browser.until("return document.querySelector('main button.line.below')");
    await browser.keys('o');
    await browser.until("return !document.querySelector('main button.line.below')");
    const at = await browser.run("return [...document.querySelectorAll('main .head')].findIndex(it => it.innerText.includes('closed gate'))");
    await browser.run(`document.querySelectorAll('main .head .twist')[${at}].click()`);
    assert.ok(await browser.until("return [...document.querySelectorAll('main .warned')].some(it => /the chip has no IppdInLifProfileMap/.test(it.innerText))"));
  },
  'walks by keys, and the title follows': async (page, browser) => {
    await page.goTo('#event/1');
    await browser.keys('j');
    await page.place('#event/2');
    await page.heading('set routing/hardware/config urpfStrictFailForward = true');
    await browser.matches('return document.title', /^set routing\/hardware\/config urpfStrictFailForward = true · uRPF/);
    await browser.keys('k');
    await page.place('#event/1');
    await browser.keys('?');
    await browser.until(`return ${isOpen}`);
    await browser.keys('Escape');
    await browser.until(`return !${isOpen}`);
    // The first key comes before the list has been drawn.
    assert.equal(await browser.evaluate(`new Promise(resolve => {
      addEventListener('hashchange', () => {
        const list = document.querySelector('main .virtual');
        list.focus();
        list.dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowDown', bubbles: true }));
        resolve(document.activeElement.closest('.item')?.dataset.number);
      }, { once: true });
      location.hash = '#events';
    })`), '0');
    await browser.keys('ArrowDown', 'Enter');
    await page.place('#event/1');
  },
  'filters events, and keeps the filter in its address': async (page, browser) => {
    await page.show(file, '#events?function=L3Sm%3A%3AhandleUrpfFailFwdConfig&input=routing%2Fhardware%2Fconfig%20urpfStrictFailForward');
    await browser.until("return /^1 event of 4/.test(document.querySelector('main [role=status]').innerText)");
    assert.deepEqual((await page.lines()).map(it => it[0]), ['2']);
    await browser.run("const it = document.querySelector('main select'); it.value = 'silent'; it.dispatchEvent(new Event('change'))");
    await browser.says('main [role=status]', /^0 events of 4/);
    await browser.matches('return location.hash', /only=silent/);
  },
  'shows what a table holds at any event, with what became different': async (page, browser) => {
    await page.show(file, '#table/IppdFerTrapCfg?fap=0&event=1');
    const contents = "[...document.querySelectorAll('main .virtual')[0].querySelectorAll('.row')].map(it => it.innerText.replace(/\\s+/g, ' ').trim())";
    const [three, four] = await browser.until(`const all = ${contents}; return all.length > 1 ? all : null`);
    assert.match(three, /changed by event 1 ?\[3\] cpuStrengthN 0x5 → 0x0, snoopStrengthN 0x0 → 0x5, cpuSnoopCodeN 0x123 \(291\)/);
    assert.match(four, /^\[4\] cpuSnoopCodeN 0x175 \(373\), cpuStrengthN 0x5/);
    await browser.run("const it = document.querySelector('main input[type=number]'); it.value = 3; it.dispatchEvent(new Event('change'))");
    await browser.until(`return /cpuStrengthN 0x0 → 0x5/.test(${contents}[0])`);
    const history = await browser.until("const all = [...document.querySelectorAll('main .virtual')[1]?.querySelectorAll('.number') ?? []]; return all.length > 0 ? all.map(it => it.innerText) : null");
    assert.deepEqual(history, ['event 3', 'event 2', 'event 1', 'event 0', 'event 0', 'event 0', 'event 0']);
    await browser.run("document.querySelector('main .virtual .row').click()");
    await browser.until("return document.querySelectorAll('main .detail .hit').length === 2");
    await page.shot('report-table.png');
  },
  'compares two chips at an event': async (page, browser) => {
    await page.show(file, '#compare?a=0&b=1&event=3');
    await browser.says('main', /[1-9]\d* entries differ in \d+ tables/);
    await browser.run("const it = [...document.querySelectorAll('main select')][1]; it.value = 0; it.dispatchEvent(new Event('change'))");
    await browser.until("return /That is one FAP/.test(document.querySelector('main').innerText)");
  },
  'finds values in both ways of writing, gates, sources, FAPs and inputs': async (page, browser) => {
    await page.show(file, '');
    const finds = async (wanted, pattern) => {
      await page.goTo(`#search/${encodeURIComponent(wanted)}`);
      await page.says(pattern);
    };
    for (const number of ['0x123', '291']) await finds(number, /IppdFerTrapCfg\.cpuSnoopCodeN = 0x123 \(291\) first in event 0 on FAP 0/m);
    await finds('revisions 8 and 9', /the register is there on FAP revisions 8 and 9 only gate of L3Sm::initLifMcBridgeFallbackAllowReg/m);
    await finds('L3SmUrpf.cpp', /L3SmUrpf\.cpp:\d+ source of L3Sm::handleUrpfFailFwdConfig/m);
    await finds('fap 1', /^FAP 1 Fap3\/1, BCM88850_A0/m);
    await finds('urpfStrict', /routing\/hardware\/config urpfStrictFailForward input/m);
    await finds('cpuStrengthN', /^cpuStrengthN field of IppdFerTrapCfg/m);
    await page.show(interfaces, '');
    await finds('2000', /intfStatus\/Ethernet1 mtu = 0x7d0 \(2000\) first in event 3/m);
  },
  'tells what was published for an interface, over time': async (page, browser) => {
    await page.show(interfaces, '#interfaces');
    await page.says(/^Ethernet1 .*mtu 2000/m);
    await page.goTo('#interface/Ethernet1');
    await browser.says('main table', /mtu\s+2000\s+event 3/);
    await page.says(/^event 3 mtu 1500 → 2000 interface\/config\/global l3Mtu/m);
    await page.shot('report-interface.png');
  },
  'says at its top where a journal breaks off, and what has failed': async (page, browser) => {
    await page.show(cut, '');
    await browser.says('#remarks', /cut here, in event 2/);
    await page.show(failed, '');
    await browser.says('#remarks', /ended by a failed assertion in event 0: /);
    await page.goTo('#event/0');
    await browser.says('main', /The run broke off in it[\s\S]*chip-init/);
    await page.show(file, '');
    assert.ok(await browser.run("return document.getElementById('remarks').hidden"));
  },
  'is dark or light as the reader likes': async (page, browser) => {
    const paper = () => browser.run('return getComputedStyle(document.body).backgroundColor');
    await page.show(file, '#event/1');
    const light = await paper();
    await browser.click('#theme');
    const dark = await paper();
    assert.notEqual(dark, light);
    await page.isThere();
    await browser.click('button.line.below');
    await page.shot('report-dark.png');
    await browser.click('#theme');
    assert.equal(await paper(), light);
    await browser.likes('dark');
    await page.show(file, '#event/1');
    assert.equal(await paper(), dark);
    await browser.likes('light');
  },
  'has headings in order': async page => {
    for (const hash of everyView) {
      await page.show(file, hash);
      await page.hasHeadingsInOrder(hash);
    }
  },
  'keeps nobody out: light, dark and narrow': async (page, browser) => {
    if (!axe) return 'axe-core can\'t be had';
    for (const [scheme, width] of [['light', 1280], ['dark', 1280], ['light', 400], ['dark', 400]]) {
      await browser.likes(scheme);
      await browser.size(width, 900);
      for (const hash of everyView) {
        await page.show(file, hash);
        await browser.run("document.querySelector('main button.line')?.click()");
        await page.isAccessible(axe, `${hash}, ${scheme}, ${width}`);
      }
    }
    await browser.likes('light');
    return null;
  },
  'fits a narrow window': async (page, browser) => {
    await browser.size(400, 900);
    for (const hash of everyView) {
      await page.show(file, hash);
      await page.fits(hash);
    }
    await page.show(file, '#event/1');
    await browser.click('button.line.below');
    const [box, picture] = await browser.until("const it = document.querySelector('.write .bits'); return it && [it.parentElement.clientWidth, it.clientWidth]");
    assert.ok(picture > box, 'the picture is scrolled in its own box');
    await browser.until(`
      const hit = document.querySelector('.write .hit').getBoundingClientRect();
      const box = document.querySelector('.write .scroll').getBoundingClientRect();
      return box.left <= hit.left && hit.right <= box.right`);
    await page.shot('report-narrow.png');
  },
  'asks nothing of a network, and has no error': async (page, browser) => {
    assert.deepEqual(await browser.run("return performance.getEntriesByType('resource').map(it => it.name)"), []);
    assert.deepEqual(browser.errors, []);
  },
};

await onPage({ chromium, pictures }, make, steps);
