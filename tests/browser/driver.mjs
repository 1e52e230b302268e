// A browser without a window, driven through the pipe that it reads its commands from. It ends when the pipe does, so
// none is left behind where the test is killed.
//
//    const browser = await Browser.start('/usr/bin/chromium');
//    await browser.open('file:///tmp/page.html#place');
//    await browser.keys('/');
//    await browser.until("return document.activeElement.id === 'search'");
//    await browser.stop();
import { spawn } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

const patience = 20_000; // milliseconds for one answer

export class Browser {
  static async start(chromium) {
    const browser = new Browser(chromium);
    try {
      const { targetInfos } = await browser.call('Target.getTargets');
      const { targetId } = targetInfos.find(it => it.type === 'page') ?? await browser.call('Target.createTarget', { url: 'about:blank' });
      browser.session = (await browser.call('Target.attachToTarget', { targetId, flatten: true })).sessionId;
      for (const domain of ['Page', 'Runtime', 'Log']) await browser.call(`${domain}.enable`);
      await browser.call('Page.setLifecycleEventsEnabled', { enabled: true });
      return browser;
    } catch (error) {
      await browser.stop();
      throw error;
    }
  }

  constructor(chromium) {
    this.profile = mkdtempSync(join(tmpdir(), 'l3sm-browser-'));
    this.errors = []; // what the page complained about
    this.calls = new Map();
    this.loads = new Set(); // documents that are there as a whole
    this.said = '';
    this.process = spawn(chromium, ['--headless', '--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage', '--disable-quic',
      '--no-first-run', '--no-default-browser-check', '--disable-background-networking', '--disable-component-update',
      '--disable-extensions', '--disable-sync', '--password-store=basic', '--remote-debugging-pipe',
      `--user-data-dir=${this.profile}`, 'about:blank'],
    { stdio: ['ignore', 'ignore', 'pipe', 'pipe', 'pipe'], detached: true }); // a group of its own, to end it as one
    this.process.stderr.on('data', part => { this.said = (this.said + part).slice(-4000); });
    this.ended = new Promise(resolve => {
      const end = why => { this.fail(why); resolve(); };
      this.process.on('error', error => end(error.message));
      this.process.on('exit', () => end(`the browser ended: ${this.said}`));
    });
    this.process.stdio[3].on('error', () => {});
    let text = '';
    this.process.stdio[4].setEncoding('utf8').on('data', part => {
      const messages = (text + part).split('\0');
      text = messages.pop();
      for (const message of messages) this.hear(JSON.parse(message));
    });
  }

  hear({ id, result, error, method, params }) {
    if (id) {
      const call = this.calls.get(id);
      this.calls.delete(id);
      if (error) call?.reject(new Error(`${call.method}: ${error.message}`)); else call?.resolve(result);
    } else if (method === 'Page.lifecycleEvent' && params.name === 'load') {
      this.loads.add(params.loaderId);
      this.awaited?.();
    } else if (method === 'Runtime.exceptionThrown') {
      this.errors.push(params.exceptionDetails.exception?.description ?? params.exceptionDetails.text);
    } else if (method === 'Log.entryAdded' && params.entry.level === 'error') {
      this.errors.push(params.entry.text);
    } else if (method === 'Runtime.consoleAPICalled' && params.type === 'error') {
      this.errors.push(params.args.map(it => it.value ?? it.description).join(' '));
    }
  }

  fail(why) {
    this.why = why;
    for (const call of this.calls.values()) call.reject(new Error(why));
    this.calls.clear();
  }

  call(method, params = {}) {
    if (this.why) return Promise.reject(new Error(this.why));
    const id = this.number = (this.number ?? 0) + 1;
    return new Promise((resolve, reject) => {
      const late = setTimeout(() => { this.calls.delete(id); reject(new Error(`${method}: no answer`)); }, 2 * patience);
      const settle = how => value => { clearTimeout(late); how(value); };
      this.calls.set(id, { method, resolve: settle(resolve), reject: settle(reject) });
      this.process.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId: this.session })}\0`);
    });
  }

  // Another place of the page that is open doesn't load it anew.
  async open(url) {
    const { loaderId, errorText } = await this.call('Page.navigate', { url });
    if (errorText) throw new Error(`${url}: ${errorText}`);
    if (!loaderId || this.loads.has(loaderId)) return;
    await new Promise((resolve, reject) => {
      const late = setTimeout(() => reject(new Error(`${url} was never there as a whole`)), patience);
      this.awaited = () => { if (this.loads.has(loaderId)) { clearTimeout(late); resolve(); } };
    });
  }

  size(width, height) { return this.call('Emulation.setDeviceMetricsOverride', { width, height, deviceScaleFactor: 1, mobile: false }); }
  likes(scheme) { return this.call('Emulation.setEmulatedMedia', { features: [{ name: 'prefers-color-scheme', value: scheme }] }); }

  async evaluate(expression) {
    const { result, exceptionDetails } = await this.call('Runtime.evaluate', { expression, awaitPromise: true, returnByValue: true });
    if (exceptionDetails) throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
    return result.value;
  }

  run(script) { return this.evaluate(`(() => { ${script} })()`); }

  // Until a script gives something: the page answers on a later turn.
  until(script) {
    return this.evaluate(`new Promise((resolve, reject) => {
      const end = performance.now() + ${patience};
      const look = () => {
        let value;
        try { value = (() => { ${script} })(); } catch (error) { reject(error); return; }
        if (value) resolve(value);
        else if (performance.now() > end) reject(new Error('never: ' + ${JSON.stringify(script)}));
        else setTimeout(look, 10);
      };
      look();
    })`);
  }

  text(selector) { return this.until(`return document.querySelector(${JSON.stringify(selector)})?.innerText`); }
  // Until a script's text matches.
  async matches(script, pattern) {
    const end = performance.now() + patience;
    let text;
    do {
      text = await this.run(script);
      if (pattern.test(text)) return;
    } while (performance.now() < end);
    throw new Error(`never ${pattern}: ${text}`);
  }
  says(selector, pattern) { return this.matches(`return document.querySelector(${JSON.stringify(selector)})?.innerText`, pattern); }

  // As a person does it: the place must be in the window, and nothing may lie above it.
  async click(selector) {
    const [x, y] = await this.until(`
      const it = document.querySelector(${JSON.stringify(selector)});
      it?.scrollIntoView({ block: 'nearest' });
      const box = it?.getClientRects()[0];
      if (!box) return null;
      const place = [box.x + box.width / 2, box.y + box.height / 2];
      const top = document.elementFromPoint(...place);
      return top && it.contains(top) ? place : null`);
    for (const type of ['mousePressed', 'mouseReleased']) {
      await this.call('Input.dispatchMouseEvent', { type, x, y, button: 'left', clickCount: 1 });
    }
  }

  // To whatever has the focus: letters, and the names of other keys, as in keys('a', 'Enter').
  async keys(...all) {
    for (const key of all.flatMap(it => named[it] ? [it] : [...it])) {
      const what = { key, ...named[key] ?? { text: key } };
      await this.call('Input.dispatchKeyEvent', { type: 'keyDown', ...what });
      await this.call('Input.dispatchKeyEvent', { type: 'keyUp', ...what, text: undefined });
    }
  }

  async picture() {
    return Buffer.from((await this.call('Page.captureScreenshot', { format: 'png' })).data, 'base64');
  }

  async stop() {
    this.session = undefined;
    this.call('Browser.close').catch(() => {});
    const patient = setTimeout(() => this.kill(), 5000);
    await this.ended;
    clearTimeout(patient);
    this.kill();
    rmSync(this.profile, { recursive: true, force: true, maxRetries: 20, retryDelay: 100 });
  }

  // All of its processes.
  kill() {
    try { process.kill(-this.process.pid, 'SIGKILL'); } catch { /* there is none */ }
  }
}

const named = {
  Enter: { code: 'Enter', windowsVirtualKeyCode: 13, text: '\r' },
  Escape: { code: 'Escape', windowsVirtualKeyCode: 27 },
  Tab: { code: 'Tab', windowsVirtualKeyCode: 9 },
  ArrowDown: { code: 'ArrowDown', windowsVirtualKeyCode: 40 },
};
