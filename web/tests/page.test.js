// The page as a person uses it, opened from a file in a real browser.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync, rmSync } from "node:fs";
import { gzipSync } from "node:zlib";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, afterEach, before, beforeEach, test } from "node:test";
import { finished, golden, inspect, launch, openPage, pagePath, root, until } from "./browser.js";

const list = readFileSync(join(root, "examples/data/missed.xml"), "utf8");
const request = readFileSync(join(root, "tests/golden/reqDeleteMissedCallList.xml"), "utf8");
const damaged = readFileSync(join(root, "web/samples/damaged.txt"), "utf8");

let browser;
let page;
before(async () => (browser = await launch()));
after(() => browser.close());
beforeEach(async () => (page = await openPage(browser)));
afterEach(async () => {
  assert.deepEqual(page.errors, []);
  const sent = page.requests.filter((url) => !/^(file|blob|data):/.test(url));
  assert.deepEqual(sent, []);
  await page.context().close();
});

const openFile = (name, buffer) =>
  page.setInputFiles("#file", { name, mimeType: "application/octet-stream", buffer });
const rows = () => page.$$eval(".row .title", (all) => all.map((row) => row.textContent));
const fieldText = (path) => page.textContent(`[data-path="${path}"].field`);
const decoded = async () => {
  await page.click("#json > summary");
  await until(page, () => document.querySelector("#json-text").textContent !== "");
  return JSON.parse(await page.textContent("#json-text"));
};
const shownTitle = (title) =>
  until(page, (t) => document.querySelector("#title").textContent === t, title);

test("a pasted message is listed and its records are shown", async () => {
  assert.match(await inspect(page, request), /^1 message in the pasted text\.$/);
  assert.deepEqual(await rows(), ["1 deleteMissedCallList"]);
  await page.waitForSelector(".field");
  assert.equal(await fieldText("entryIds[2]"), "a&b");
  assert.deepEqual(await decoded(), {
    kind: "request", method: "deleteMissedCallList", entryIds: ["10", "9", "a&b"],
  });
});

test("a text without messages says so", async () => {
  assert.match(await inspect(page, "no message here"), /^0 messages in the pasted text\.$/);
  assert.ok(await page.isHidden("#message"));
});

test("samples open", async () => {
  const options = "#sample option[value]:not([hidden])";
  const titles = await page.$$eval(options, (all) => all.map((option) => option.label));
  assert.ok(titles.length >= 7);
  for (const label of titles) {
    await page.selectOption("#sample", { label });
    assert.ok((await finished(page)).includes(label));
    await page.waitForSelector(".piece");
    assert.ok((await rows()).length >= 1);
  }
});

test("a capture file: every golden message is found and shown in full", async () => {
  const texts = golden().map((path) => readFileSync(path));
  const capture = Buffer.concat(texts.flatMap((text) => [text, Buffer.from("\n")]));
  await openFile("golden.log", capture);
  assert.equal(await finished(page), `${texts.length} messages in golden.log.`);
  for (let at = 0; at < texts.length; at++) {
    await page.click(`.row[data-index="${at}"]`);
    await until(page, (text) => {
      const pieces = [...document.querySelectorAll(".piece")];
      return pieces.map((piece) => piece.textContent).join("") === text;
    }, texts[at].toString("utf8").replace(/\n/g, "⏎"));
    assert.ok((await page.textContent("#title")).startsWith(`${at + 1}: `));
  }
});

test("a capture as a hexadecimal dump, and one that is dropped", async () => {
  await inspect(page, Buffer.from(request).toString("hex"));
  assert.match(await page.textContent("#status"), /^1 message in the pasted text \(hex\)\.$/);
  const transfer = await page.evaluateHandle((text) => {
    const data = new DataTransfer();
    data.items.add(new File([text], "dropped.log"));
    return data;
  }, list);
  await page.dispatchEvent("body", "drop", { dataTransfer: transfer });
  assert.equal(await finished(page), "1 message in dropped.log.");
});

test("a compressed capture is unpacked", async () => {
  const buffer = gzipSync((list + "\n").repeat(50));
  await openFile("capture.gz", buffer);
  assert.equal(await finished(page), "50 messages in capture.gz.");
  await openFile("twice.gz", Buffer.concat([buffer, buffer]));
  assert.match(await finished(page), / in twice\.gz\. Junk found after end/);
  await openFile("cut.gz", buffer.subarray(0, buffer.length / 2));
  assert.match(await finished(page), / in cut\.gz\. .*truncated/);
});

test("elements and fields are linked both ways", async () => {
  await inspect(page, list);
  await page.click('.piece[data-path="entries[0].callInfoList[0].number"]');
  const marked = () =>
    page.$$eval(".marked", (all) => all.map((m) => `${m.classList[0]} ${m.dataset.path}`));
  const path = "entries[0].callInfoList[0].number";
  assert.deepEqual(await marked(), [`piece ${path}`, `field ${path}`]);
  assert.match(await page.textContent("#detail"), /Number → .*kept: read and stored/);
  await page.click('.field[data-path="entries[0].surname"]');
  assert.deepEqual(await marked(), ["piece entries[0].surname", "field entries[0].surname"]);
  await page.click('.field[data-path="entries[0].callInfoList[0].connectedNumber"]');
  assert.match(await page.textContent("#detail"), /no such element/);
  await page.keyboard.press("Escape");
  assert.ok(await page.isHidden("#detail"));
});

test("elements of the message itself are linked, by the kind of the message", async () => {
  const declaration = '<?xml version="1.0" encoding="utf-8"?>';
  const messages = [
    ["<Value>Success</Value>", "ok", "true"],
    [`${declaration}<Method><missedCallsCountUpdate></Method><Value>3</Value>`, "value", "3"],
    ["<CallLogEnabled>false</CallLogEnabled>", "callLogEnabled", "false"],
  ];
  for (const [message, path, value] of messages) {
    await inspect(page, message);
    await page.click(`.piece[data-path="${path}"]`);
    assert.equal(await page.textContent(".field.marked"), value);
  }
});

test("colours say what becomes of each element", async () => {
  await inspect(page, damaged);
  const fates = () => page.$$eval(".piece", (all) => Object.fromEntries(
    all.filter((p) => /^<\w+>./.test(p.textContent) && p.querySelector(".value"))
      .map((p) => [p.textContent.slice(1).split(">")[0], p.className.replace(/.*fate-/, "")])));
  await page.waitForSelector(".piece");
  const first = await fates();
  assert.equal(first.EntryId, "kept");
  assert.equal(first.UniqueId, "order");
  assert.equal(first.Ringtone, "unknown");
  assert.equal(first.Viewed, "default");
  assert.equal(first.NumberType, "default");
  await page.click('.row[data-index="5"]');
  await shownTitle("6: receivedCallsUpdate");
  await page.waitForSelector(".fate-dropped.piece");
  assert.equal((await fates()).ConnectedSurname, "dropped");
  await page.click('.row[data-index="3"]');
  await shownTitle("4: deleteMissedCallList");
  await page.waitForSelector('.piece:has-text("EntryId")');
  const lost = ".piece.fate-dropped .value, .piece.fate-damaged .value";
  assert.equal(await page.textContent(lost), "");
});

test("findings carry their rules and lead to the element", async () => {
  await inspect(page, damaged);
  await page.waitForSelector("#findings li");
  const texts = await page.$$eval("#findings li", (all) => all.map((item) => item.textContent));
  const expected = /warning.*NumberType: an unknown word.*SATELLITE.*NO_ICON.*not-a-member/;
  assert.ok(texts.some((text) => expected.test(text)));
  await page.click('#findings button:has-text("an unknown element")');
  assert.equal(await page.textContent(".piece.marked"), "<Ringtone>bell</Ringtone>");
  await inspect(page, list);
  await page.waitForSelector("#no-findings:not([hidden])");
});

test("two messages are compared", async () => {
  await inspect(page, list + "\n" + list.replace("Brandt", "Brand"));
  await page.click("#keep");
  assert.match(await page.textContent("#differences-text"), /Choose the other message/);
  await page.click('.row[data-index="1"]');
  await page.waitForSelector("#differences-rows tr");
  assert.equal(await page.textContent("#differences-rows"), "1187: surnameBrandtBrand");
  await page.click("#keep");
  assert.ok(await page.isHidden("#differences"));
});

test("JSON is copied", async () => {
  await page.context().grantPermissions(["clipboard-read", "clipboard-write"]);
  await inspect(page, request);
  await page.click("#json > summary");
  await page.click("#copy");
  await until(page, () => document.querySelector("#copied").textContent !== "");
  assert.equal(await page.textContent("#copied"), "Copied.");
  const copied = await page.evaluate(() => navigator.clipboard.readText());
  assert.deepEqual(JSON.parse(copied).entryIds, ["10", "9", "a&b"]);
});

test("a bare entry is read as one of the log that is chosen", async () => {
  await inspect(page, "<UniqueId>1</UniqueId><EntryId>2</EntryId><Surname>Berg</Surname>");
  await page.selectOption("#log", "received");
  await page.waitForSelector('.field[data-path="entry.surname"]');
  assert.equal(await fieldText("entry.surname"), "Berg");
});

test("numbers and names are masked on demand", async () => {
  await page.check("#redact");
  await inspect(page, list);
  await page.waitForSelector(".field");
  assert.equal(await fieldText("entries[0].surname"), "xxxxxx");
  assert.ok(!(await page.textContent("#pieces")).includes("Brandt"));
});

test("markup and scripts in a message stay text", async () => {
  const evil = `<Method><getMissedCallList></Method><Entry>` +
    `<UniqueId>&lt;img src=x onerror=alert(1)></UniqueId>` +
    `<Surname><script>alert(1)</script></Surname></Entry><Handle>1</Handle>`;
  await inspect(page, evil);
  await page.waitForSelector(".field");
  assert.equal(await fieldText("entries[0].uniqueId"), "<img src=x onerror=alert(1)>");
  assert.equal(await page.$("#parts script, #parts img"), null);
});

test("the policy forbids the network and foreign scripts", async () => {
  const policy = await page.getAttribute("meta[http-equiv]", "content");
  assert.equal(policy.replace(/sha256-[^']+/g, "HASH"),
    "default-src 'none'; script-src 'HASH' 'wasm-unsafe-eval'; style-src 'HASH'; " +
    "worker-src blob:; base-uri 'none'; form-action 'none'");
  const tried = await page.evaluate(async () => {
    const fetched = await fetch("http://127.0.0.1:9/").then(() => "sent", () => "refused");
    const script = document.createElement("script");
    script.textContent = "window.intruded = true";
    document.body.append(script);
    return [fetched, window.intruded];
  });
  assert.deepEqual(tried, ["refused", undefined]);
  assert.ok(page.errors.length >= 2);
  assert.ok(page.errors.every((text) => /Content Security Policy/.test(text)));
  page.errors.length = page.requests.length = 0;
});

test("a report by journalmsg opens its messages", async () => {
  const path = join(tmpdir(), `journal-report-${process.pid}.html`);
  const source = join(root, "web/samples/damaged.txt");
  const report = async (...options) => {
    execFileSync(join(root, "build/web-native/tools/journalmsg/journalmsg"),
                 ["report", "--page", pagePath, "-o", path, ...options, source]);
    const opened = await openPage(browser, { path });
    assert.equal(await finished(opened), "6 messages in damaged.txt.");
    await opened.waitForSelector(".piece");
    assert.deepEqual(opened.errors, []);
    return opened;
  };
  const plain = await report();
  assert.match(await plain.textContent("#pieces"), /Brandt & Sons/);
  assert.match(await plain.textContent("#facts"), /at offset 0, line 1$/);
  await plain.click('.row[data-index="1"]');
  await until(plain, () =>
    document.querySelector("#facts").textContent.endsWith("at offset 707, line 2"));
  await plain.context().close();
  const masked = await report("--redact");
  assert.ok(!(await masked.textContent("#pieces")).includes("Brandt"));
  await masked.context().close();
  rmSync(path);
});
