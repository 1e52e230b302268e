// The report's page in a browser, for the tests: opening it at a place, reading it, asking whether everybody can.
//
//    await onPage(chromium, async page => {
//      await page.show('report.html', '#event/1');
//      ...
//    });
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { Browser } from './driver.mjs';

export class Page {
  constructor(browser, pictures) {
    this.browser = browser;
    this.pictures = pictures;
  }

  // At a place, loaded anew; until what it shows is there.
  async show(file, hash) {
    await this.browser.open('about:blank');
    await this.browser.open(`file://${file}${hash}`);
    await this.isThere();
  }

  // Another place of the page that is open.
  async goTo(hash) {
    await this.browser.evaluate(`new Promise(resolve => {
      if (location.hash === ${JSON.stringify(hash)} || location.hash + ${JSON.stringify(hash)} === '#') { resolve(); return; }
      addEventListener('hashchange', () => setTimeout(resolve), { once: true });
      location.hash = ${JSON.stringify(hash)};
    })`);
    await this.isThere();
  }

  isThere() { return this.browser.until("return document.querySelector('main h1') && !document.querySelector('main .pending')"); }
  heading(text) { return this.browser.until(`return document.querySelector('main h1')?.innerText === ${JSON.stringify(text)}`); }
  place(hash) { return this.browser.until(`return location.hash === ${JSON.stringify(hash)}`); }
  // Those that lie in the window; a virtual list lays them out on a later turn.
  lines() {
    return this.browser.until(`const all = [...document.querySelectorAll('main .item .row')].map(it => it.innerText.replace(/\\s+/g, ' ').trim());
      return all.length ? all : null`);
  }
  // Until a line says it: what is searched for comes as it is found.
  says(pattern) {
    return this.browser.matches("return [...document.querySelectorAll('main .item .row')].map(it => it.innerText.replace(/\\s+/g, ' ').trim()).join('\\n')", pattern);
  }
  nodes() { return this.browser.run("return document.querySelectorAll('*').length"); }
  async shot(name) { if (this.pictures) writeFileSync(join(this.pictures, name), await this.browser.picture()); }

  async fits(where) {
    assert.ok(await this.browser.run('return document.documentElement.scrollWidth <= window.innerWidth'), `${where} is too wide`);
  }

  async hasHeadingsInOrder(where) {
    const levels = await this.browser.run("return [...document.querySelectorAll('main :is(h1, h2, h3, h4)')].map(it => Number(it.tagName[1]))");
    assert.equal(levels.filter(it => it === 1).length, 1, `${where} has one main heading`);
    levels.forEach((level, at) => assert.ok(level <= (levels[at - 1] ?? 0) + 1, `${where}: headings ${levels}`));
  }

  // What the rules for accessible pages find, of those findings that keep somebody out.
  async isAccessible(axe, where) {
    if (!await this.browser.run("return 'axe' in window")) await this.browser.evaluate(`${axe}; 0`);
    const found = await this.browser.evaluate(`axe.run(document, { resultTypes: ['violations'] }).then(({ violations }) => violations
      .filter(it => ['serious', 'critical'].includes(it.impact)).flatMap(it => it.nodes.map(node => it.id + ': ' + node.target.join(' ') + ' ' + node.any.map(why => why.message).join(' '))))`);
    assert.deepEqual(found, [], where);
  }
}

// The rules, kept in a folder of the build; null where no registry can be reached.
export function axeIn(folder) {
  const file = join(folder, 'node_modules/axe-core/axe.min.js');
  if (!existsSync(file)) {
    try {
      execFileSync('npm', ['install', '--silent', '--no-save', '--no-audit', '--no-fund', '--prefix', folder, 'axe-core@4.10.2'], { timeout: 60_000, stdio: 'ignore' });
    } catch {
      return null;
    }
  }
  return existsSync(file) ? readFileSync(file, 'utf8') : null;
}

// Runs the steps, each with its name; how many failed becomes the exit status.
export async function onPage({ chromium, pictures = null, minutes = 3 }, make, steps) {
  const folder = mkdtempSync(join(tmpdir(), 'l3sm-report-'));
  let browser, failures = 0;
  // A browser that hangs is ended in time to clean up.
  setTimeout(() => { console.log('FAILED  it took too long'); process.exitCode = 1; browser?.kill(); }, minutes * 60_000).unref();
  try {
    make(folder);
    browser = await Browser.start(chromium);
    const page = new Page(browser, pictures);
    for (const [name, step] of Object.entries(steps)) {
      try {
        const left = await step(page, browser, folder);
        console.log(left ? `left out  ${name}: ${left}` : `ok      ${name}`);
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
}
