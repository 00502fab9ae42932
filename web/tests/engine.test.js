// The engine in the browser answers exactly as the native build of the same operations does.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { filesIn, golden, launch, nativeAnswers, openPage, root } from "./browser.js";

let browser;
let page;
before(async () => {
  browser = await launch();
  page = await openPage(browser);
  const wasm = readFileSync(join(root, "build/web/web/journal_web.wasm")).toString("base64");
  const source = readFileSync(join(root, "web/src/engine.js"), "utf8").replace("export ", "");
  await page.evaluate(`(async () => {
    ${source}
    const bytesOf = (base64) => Uint8Array.from(atob(base64), (c) => c.charCodeAt(0));
    window.engine = await loadEngine(bytesOf("${wasm}"));
    window.answersFor = (files) => files.flatMap((base64) => {
      const answers = [];
      const ask = (question) => answers.push((question(), engine.lastAnswer()));
      engine.open();
      let count = 0;
      ask(() => count += engine.push(bytesOf(base64)).messages.length);
      ask(() => count += engine.finish().messages.length);
      for (let index = 0; index < count; index++) {
        ask(() => engine.show(index));
        ask(() => engine.compare(0, index));
      }
      return answers;
    });
  })()`);
});
after(() => browser.close());

async function compare(paths) {
  const native = nativeAnswers(paths);
  const inBrowser = [];
  for (let at = 0; at < paths.length; at += 100) {
    const files = paths.slice(at, at + 100).map((path) => readFileSync(path).toString("base64"));
    inBrowser.push(...(await page.evaluate((all) => answersFor(all), files)));
  }
  assert.equal(inBrowser.length, native.length);
  for (let at = 0; at < native.length; at++) assert.equal(inBrowser[at], native[at]);
  return native.length;
}

test("every golden message", async () => {
  const paths = golden();
  assert.ok(paths.length >= 35);
  assert.ok((await compare(paths)) >= 4 * paths.length);
});

test("the fuzz corpus", async () => {
  const paths = filesIn("fuzz/corpus");
  assert.ok(paths.length >= 2000);
  assert.ok((await compare(paths)) > 3 * paths.length); // most files hold a message
});

test("the page's own samples", async () => {
  assert.ok((await compare(filesIn("web/samples"))) > 20);
});
