// Shared by the tests: the page as built, in Debian's Chromium, from a file.
import { execFileSync } from "node:child_process";
import { existsSync, mkdirSync, readdirSync, readFileSync, statSync } from "node:fs";
import { join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

export const root = fileURLToPath(new URL("../..", import.meta.url));
export const pagePath = join(root, "build/web/web/journal.html");

export const launch = () =>
  chromium.launch({ executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] });

/** The page, ready; fails the test on any error in it. */
export async function openPage(browser, { path = pagePath, ...options } = {}) {
  const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, ...options });
  const page = await context.newPage();
  page.errors = [];
  page.requests = [];
  page.on("pageerror", (error) => page.errors.push(error.message));
  page.on("console", (message) => message.type() === "error" && page.errors.push(message.text()));
  page.on("request", (request) => page.requests.push(request.url()));
  await page.goto(pathToFileURL(path).href);
  await page.waitForSelector("body[data-ready]");
  return page;
}

/** Waits for a condition in the page. Playwright's own way needs eval, which the policy forbids. */
export async function until(page, condition, argument, timeout = 30000) {
  for (const end = Date.now() + timeout; Date.now() < end; ) {
    if (await page.evaluate(condition, argument)) return;
    await new Promise((resolve) => setTimeout(resolve, 20));
  }
  throw new Error(`Waited in vain for ${condition}`);
}

/** Waits until the capture is read, and gives the status. */
export async function finished(page, timeout) {
  const isRead = () =>
    document.querySelector("#reading").hidden && document.querySelector("#status").textContent;
  await until(page, isRead, undefined, timeout);
  return page.textContent("#status");
}

export async function inspect(page, text) {
  await page.fill("#text", text);
  await page.click("#inspect");
  return finished(page);
}

export function filesIn(...folders) {
  return folders.flatMap((folder) =>
    readdirSync(join(root, folder), { recursive: true })
      .map((name) => join(root, folder, name))
      .filter((path) => statSync(path).isFile())
      .sort());
}
export const golden = () => filesIn("tests/golden").filter((path) => path.endsWith(".xml"));

/** What the native build of the page's operations answers for files, line by line. */
export function nativeAnswers(paths) {
  const program = join(root, "build/web-native/web/journal_web");
  const output = execFileSync(program, { input: paths.join("\n") + "\n", maxBuffer: 2 ** 30 });
  return output.toString("utf8").split("\n").slice(0, -1);
}

/** Takes a screenshot if they are wanted; the name says which view it is. */
export async function screenshot(page, name) {
  const folder = process.env.JOURNAL_SCREENSHOTS;
  if (!folder) return;
  if (!existsSync(folder)) mkdirSync(folder, { recursive: true });
  await page.screenshot({ path: join(folder, `${name}.png`) });
}

export const axe = readFileSync(fileURLToPath(import.meta.resolve("axe-core")), "utf8");
