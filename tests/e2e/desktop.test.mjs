// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { existsSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { startDesktop } from './desktop.mjs';
import { colourAt, openBook, openPages, pathOf } from './support.mjs';

const BACKGROUND = '#2f6f4f';
const FIRST_PAGE_DRAWN = `!!document.querySelector('.side:not([hidden])[data-drawn="1"]')`;

describe('The desktop application', () => {
  let desktop;
  let browser;

  before(() => (desktop = startDesktop(pathOf('samples/magazine.pdf'))));
  after(async () => {
    await browser?.close();
    desktop.remove();
  });

  it('makes a book of a PDF that is handed to it, in another colour', async () => {
    const { act, home } = desktop;
    await act({ do: 'click', name: 'btnOK' });
    await act({ do: 'wait', name: 'btnOK', property: 'visible', value: false });
    await act({ do: 'script', code: `${FIRST_PAGE_DRAWN} && bookData.pages.length === 16` });

    await act({ do: 'edit', row: 'Background/Colour', text: BACKGROUND });
    await act({ do: 'click', name: 'toolBarItemApplyChange' });
    await act({ do: 'see', name: 'webView', colour: BACKGROUND });

    const folder = join(home, 'published');
    await act({ do: 'click', name: 'OnExportFlipBook' });
    await act({ do: 'type', name: 'txtOutputFolder', text: folder });
    await act({ do: 'type', name: 'txtOutputName', text: 'index' });
    await act({ do: 'click', name: 'btnPublish' });
    await act({ do: 'click', name: 'openQuestion', button: 'No' });

    browser = await launchBrowser();
    const page = await openBook(browser, folder);
    assert.deepEqual(await openPages(page), [1]);
    assert.deepEqual(await colourAt(page, 200, 200), [0x2f, 0x6f, 0x4f]);
    assert.deepEqual(page.troubles, []);
  });

  it('leaves no preview and no server when it is closed', async () => {
    const preview = join(desktop.home, 'data/LeafcastforiPad/preview');
    assert.ok(existsSync(preview));
    await desktop.act({ do: 'quit' });
    assert.equal(await desktop.ended, 0);
    assert.ok(!existsSync(preview));
  });
});
