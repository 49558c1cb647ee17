// Takes the pictures of docs/report of the reports in the folder of modules: screenshots.mjs CHROMIUM MODULES FOLDER
import {openBrowser, pageOf} from './browser.mjs';

const [chromium, modules, folder] = process.argv.slice(2);
const report = `${modules}/sample.html`;
const changes = `${modules}/next.html`;
const findings = `${modules}/found.html`;
const browser = await openBrowser(chromium, modules);

const DESKTOP = {width: 1280, height: 900};
/** High enough for an article, so that its picture is not put together of several. */
const TALL = {width: 1280, height: 1500};
const PHONE = {width: 360, height: 740};

/** Takes the page as the user sees it, or the element alone. */
async function take(name, file, options, hash, element) {
    const {page, context} = await pageOf(browser, file, {deviceScaleFactor: 1, ...options}, hash);
    if (element) {
        // What is far away is laid out when it comes near, and moves everything below.
        await page.locator(element).scrollIntoViewIfNeeded();
        await page.waitForTimeout(300);
        await page.locator(element).screenshot({path: `${folder}/${name}.png`});
    } else {
        await page.screenshot({path: `${folder}/${name}.png`});
    }
    await context.close();
}

await take('overview', report, {viewport: DESKTOP});
await take('book', report, {viewport: TALL}, '', '#a7301');
await take('calendar', report, {viewport: TALL}, '', '#a4120');
await take('changes', changes, {viewport: DESKTOP});
await take('findings', findings, {viewport: TALL}, '', '#a7301');
await take('dark', report, {viewport: DESKTOP, colorScheme: 'dark'}, '#a7302');
await take('narrow', report, {viewport: PHONE}, '#articles');
await take('narrow-book', report, {viewport: PHONE}, '#a7301');
await browser.close();
