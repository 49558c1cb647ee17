// What the test and the pictures share: the system's browser, and pages in it that reach nothing.
import {createRequire} from 'node:module';
import {pathToFileURL} from 'node:url';

/** Playwright from the folder of modules, with the browser that is installed. */
export async function openBrowser(executablePath, modules) {
    const {chromium} = createRequire(`${modules}/`)('playwright-core');
    // Without a user of its own, Chromium has no sandbox.
    const args = process.getuid() === 0 ? ['--no-sandbox'] : [];
    return chromium.launch({executablePath, args});
}

/** The file in a page of its own, and what went wrong in it: errors, requests, dialogs. */
export async function pageOf(browser, file, options = {}, hash = '') {
    const context = await browser.newContext(options);
    const page = await context.newPage();
    const url = pathToFileURL(file).href;
    const problems = [];
    page.on('console', message => problems.push(`${message.type()}: ${message.text()}`));
    page.on('pageerror', error => problems.push(`error: ${error}`));
    page.on('dialog', dialog => {
        problems.push(`dialog: ${dialog.message()}`);
        dialog.dismiss();
    });
    await context.route('**', route => {
        const request = route.request().url();
        if (request.split('#')[0] === url) {
            return route.continue();
        }
        problems.push(`request: ${request}`);
        return route.abort();
    });
    await page.goto(url + hash);
    return {page, context, problems};
}
