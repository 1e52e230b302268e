// A browser, driven through chromedriver.
import { spawn } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout as wait } from 'node:timers/promises';

const elementKey = 'element-6066-11e4-a52e-4f735466cecf';

export class Browser {
  static async start(chromium, chromedriver) {
    const browser = new Browser();
    browser.profile = mkdtempSync(join(tmpdir(), 'l3sm-browser-'));
    browser.process = spawn(chromedriver, ['--port=0'], { stdio: ['ignore', 'pipe', 'inherit'] });
    const port = await new Promise((resolve, reject) => {
      let text = '';
      browser.process.stdout.on('data', part => {
        text += part;
        const found = text.match(/on port (\d+)/g)?.at(-1);
        if (found && !found.endsWith(' 0')) resolve(Number(found.match(/\d+/)[0]));
      });
      browser.process.on('exit', () => reject(new Error(`chromedriver ended: ${text}`)));
    });
    browser.address = `http://127.0.0.1:${port}/session`;
    const args = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync', `--user-data-dir=${browser.profile}`];
    const { sessionId } = await browser.call('POST', '', {
      capabilities: { alwaysMatch: { browserName: 'chrome', 'goog:chromeOptions': { binary: chromium, args }, 'goog:loggingPrefs': { browser: 'ALL' } } },
    });
    browser.address += `/${sessionId}`;
    return browser;
  }

  async call(method, path, body) {
    const answer = await fetch(this.address + path, { method, ...(body && { body: JSON.stringify(body) }) });
    const { value } = await answer.json();
    if (!answer.ok) throw new Error(`${method} ${path}: ${value.message}`);
    return value;
  }

  open(url) { return this.call('POST', '/url', { url }); }
  size(width, height) { return this.call('POST', '/window/rect', { width, height }); }
  run(script, ...args) { return this.call('POST', '/execute/sync', { script, args }); }
  async find(selector) { return (await this.call('POST', '/element', { using: 'css selector', value: selector }))[elementKey]; }
  async click(selector) { return this.call('POST', `/element/${await this.find(selector)}/click`, {}); }
  async text(selector) { return this.call('GET', `/element/${await this.find(selector)}/text`); }
  // Keys as a person presses them, to whatever has the focus.
  keys(text) {
    const actions = [...text].flatMap(value => [{ type: 'keyDown', value }, { type: 'keyUp', value }]);
    return this.call('POST', '/actions', { actions: [{ type: 'key', id: 'keys', actions }] });
  }
  // Until a script gives something: the page answers on its next turn.
  async until(script) {
    for (let turn = 0; turn < 200; ++turn) {
      const value = await this.run(script);
      if (value) return value;
      await wait(25);
    }
    throw new Error(`never: ${script}`);
  }
  async picture() { return Buffer.from(await this.call('GET', '/screenshot'), 'base64'); }
  errors() { return this.call('POST', '/se/log', { type: 'browser' }); }

  async stop() {
    await this.call('DELETE', '').catch(() => {});
    this.process.kill();
    rmSync(this.profile, { recursive: true, force: true });
  }
}

export const enter = '\uE007';
export const escape = '\uE00C';
