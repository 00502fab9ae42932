// A capture of 100 MB: the page answers while it is read, and reading can be cancelled.
import assert from "node:assert/strict";
import { readFileSync, rmSync, openSync, writeSync, closeSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { finished, golden, launch, openPage, until } from "./browser.js";

const megabytes = Number(process.env.JOURNAL_PAGE_MEGABYTES ?? 100);
const path = join(tmpdir(), `journal-capture-${process.pid}.log`);
const copies = [];

let browser;
before(async () => {
  browser = await launch();
  const texts = golden().flatMap((file) => [readFileSync(file), Buffer.from("\n")]);
  const block = Buffer.concat(texts);
  const file = openSync(path, "w");
  for (let size = 0; size < megabytes * 1e6; size += block.length) {
    writeSync(file, block);
    copies.push(texts.length / 2);
  }
  closeSync(file);
});
after(async () => {
  await browser.close();
  rmSync(path, { force: true });
});

/** Opens the capture and notes the tasks of the main thread over 50 ms from there on. */
async function openLarge() {
  const page = await openPage(browser);
  await page.evaluate(() => {
    window.longTasks = [];
    new PerformanceObserver((entries) =>
      window.longTasks.push(...entries.getEntries().map((entry) => entry.duration)),
    ).observe({ type: "longtask" });
  });
  await page.setInputFiles("#file", path);
  await until(page, () => document.querySelectorAll(".row").length > 10);
  return page;
}
const longest = (page) => page.evaluate(() => Math.max(0, ...window.longTasks));
const progress = (page) => page.$eval("#progress", (bar) => bar.value);

test("no task of the main thread takes over 100 ms meanwhile", async (t) => {
  const started = Date.now();
  const page = await openLarge();
  const early = await progress(page);
  await page.click('.row[data-index="5"]');
  await until(page, () => document.querySelector("#title").textContent.startsWith("6: "));
  assert.ok(early > 0 && early < 0.5);
  await until(page, (value) => document.querySelector("#progress").value > value, early);
  const status = await finished(page, 600000);
  const messages = copies.reduce((sum, count) => sum + count, 0);
  assert.ok(status.startsWith(`${messages.toLocaleString("en")} messages in `), status);
  const took = Date.now() - started;
  t.diagnostic(`${megabytes} MB in ${took} ms, longest task ${await longest(page)} ms`);
  assert.ok((await longest(page)) <= 100);
  assert.deepEqual(page.errors, []);
  await page.context().close();
});

test("cancelling takes less than a second and keeps what was found", async (t) => {
  const page = await openLarge();
  const started = Date.now();
  await page.click("#cancel");
  const status = await finished(page);
  const took = Date.now() - started;
  t.diagnostic(`cancelled in ${took} ms`);
  assert.ok(took < 1000);
  assert.match(status, /Cancelled; these are the messages up to there\.$/);
  await page.click('.row[data-index="3"]');
  await until(page, () => document.querySelector("#title").textContent.startsWith("4: "));
  await page.waitForSelector(".piece");
  assert.deepEqual(page.errors, []);
  await page.context().close();
});
