// Each view, wide and narrow, light and dark: accessible, without horizontal scrolling, and usable
// by keyboard alone.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { axe, inspect, launch, openPage, root, screenshot } from "./browser.js";

const damaged = readFileSync(join(root, "web/samples/damaged.txt"), "utf8");

/** A sample log cut to its first entries: checking a page takes a while for each element. */
function log(name, entries) {
  const parts = readFileSync(join(root, "examples/data", name), "utf8").split("</Entry>");
  return [...parts.slice(0, entries), parts.at(-1)].join("</Entry>");
}
const missed = log("missed.xml", 2);
const dialled = log("dialled.xml", 1);
const bare = "<UniqueId>1</UniqueId><EntryId>2</EntryId><Surname>Berg</Surname>";
const longWord = "x".repeat(300);

/** A view is brought about by its function, which gives what a narrow screenshot starts with. */
const views = {
  empty: async () => "h1",
  log: async (page) => {
    await inspect(page, missed);
    await page.click('.piece[data-path="entries[0].callInfoList[0].number"]');
    return "#pieces-title";
  },
  damaged: async (page) => {
    await inspect(page, damaged);
    await page.click('.row[data-index="1"]');
    await page.waitForSelector(".piece.fate-damaged");
    return "#title";
  },
  compared: async (page) => {
    await inspect(page, missed + "\n" + missed.replace("Brandt", "Brand").replace("Zoë", "Zoe"));
    await page.click("#keep");
    await page.click('.row[data-index="1"]');
    await page.waitForSelector("#differences-rows tr");
    return "#keep";
  },
  json: async (page) => {
    await inspect(page, dialled);
    await page.click("#json > summary");
    return "#json";
  },
  "bare-entry": async (page) => {
    await inspect(page, bare.replace("Berg", longWord));
    await page.selectOption("#log", "missed");
    await page.waitForSelector(".field");
    return "#which-log";
  },
  reading: async (page) => {
    await page.evaluate(() => {
      document.querySelector("#reading").hidden = false;
      document.querySelector("#reading-name").textContent = "Reading capture.log";
      document.querySelector("#progress").value = 0.4;
    });
    return "h1";
  },
};

let browser;
before(async () => (browser = await launch()));
after(() => browser.close());

async function violations(page) {
  await page.evaluate(axe);
  const results = await page.evaluate(() => axe.run());
  assert.ok(results.passes.length > 15); // it did look
  return results.violations.map(({ id, nodes }) =>
    `${id}: ${nodes.map((node) => node.html).slice(0, 3).join(" ")}`);
}

/** How many pixels the page is wider than the window. */
const overflow = (page) =>
  page.evaluate(() => document.documentElement.scrollWidth - document.documentElement.clientWidth);

const sizes = { 1280: { width: 1280, height: 900 }, 390: { width: 390, height: 844 } };
for (const [view, show] of Object.entries(views))
  for (const colorScheme of ["light", "dark"])
    test(`${view}, ${colorScheme}`, async () => {
      const page = await openPage(browser, { colorScheme });
      const place = await show(page);
      for (const [name, size] of Object.entries(sizes)) {
        await page.setViewportSize(size);
        assert.equal(await overflow(page), 0, `at ${name} pixels`);
        assert.deepEqual(await violations(page), [], `at ${name} pixels`);
        const start = view === "json" || size.width < 1000 ? place : "h1";
        await page.$eval(start, (element) => element.scrollIntoView());
        if (colorScheme === "light" || view === "damaged")
          await screenshot(page, `${view}-${colorScheme}-${name}`);
      }
      assert.deepEqual(page.errors, []);
      await page.context().close();
    });

test("the keyboard alone is enough", async () => {
  const page = await openPage(browser);
  const focused = () => page.evaluate(() => {
    const { id, className, dataset } = document.activeElement;
    return id || dataset.path || dataset.index || className;
  });
  const tabTo = async (wanted) => {
    for (let tabs = 0; tabs < 30; tabs++) {
      await page.keyboard.press("Tab");
      if (await page.evaluate((s) => document.activeElement.matches(s), wanted)) return;
    }
    assert.fail(`${wanted} is not reached`);
  };
  await tabTo("#text");
  await page.keyboard.insertText(damaged);
  await tabTo("#inspect");
  await page.keyboard.press("Enter");
  await page.waitForSelector(".row");
  await tabTo(".row");
  await page.keyboard.press("ArrowDown");
  assert.equal(await focused(), "1");
  await page.keyboard.press("Home");
  assert.equal(await focused(), "0");
  await page.keyboard.press("Enter");
  await page.waitForSelector(".piece");
  await tabTo(".piece");
  for (let steps = 0; steps < 5; steps++) await page.keyboard.press("ArrowDown");
  assert.equal(await focused(), "entries[0].uniqueId");
  await page.keyboard.press("Enter");
  assert.equal(await page.getAttribute(".field.marked", "data-path"), "entries[0].uniqueId");
  await tabTo(".field");
  await page.keyboard.press(" ");
  assert.equal(await page.getAttribute(".piece.marked", "data-path"), "handle");
  assert.deepEqual(page.errors, []);
  await page.context().close();
});
