// Puts the page together: one HTML file with the style, the scripts and the engine inside, and a
// policy that allows these and nothing else.
//
// usage: node assemble.mjs ESBUILD ENGINE.wasm PAGE.html
import { execFileSync } from "node:child_process";
import { createHash } from "node:crypto";
import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

const [esbuild, engine, page] = process.argv.slice(2);
const web = dirname(fileURLToPath(import.meta.url));
const parts = join(dirname(page), "parts"); // what the sources import by name
mkdirSync(parts, { recursive: true });
copyFileSync(engine, join(parts, "journal_web.wasm"));

function bundle(source, output, ...loaders) {
  const options = ["--bundle", "--minify", "--format=iife", "--charset=utf8", "--target=es2022",
                   "--log-level=warning", `--outfile=${output}`, ...loaders];
  const env = { ...process.env, NODE_PATH: parts };
  execFileSync(esbuild, [join(web, "src", source), ...options], { stdio: "inherit", env });
}

bundle("worker.js", join(parts, "journal_worker.js"), "--loader:.wasm=binary");
writeFileSync(join(parts, "journal_worker.txt"), readFileSync(join(parts, "journal_worker.js")));
bundle("main.js", join(parts, "main.js"), "--loader:.xml=text", "--loader:.txt=text");

// An end tag inside the script would end it.
const script = readFileSync(join(parts, "main.js"), "utf8").replaceAll("</script", "<\\/script");
const style = readFileSync(join(web, "page.css"), "utf8");
const hash = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
const policy = [
  "default-src 'none'",
  `script-src ${hash(script)} 'wasm-unsafe-eval'`,
  `style-src ${hash(style)}`,
  "worker-src blob:",
  "base-uri 'none'",
  "form-action 'none'",
].join("; ");

const contents = { policy, style, script };
const html = readFileSync(join(web, "page.html"), "utf8");
writeFileSync(page, html.replace(/\{\{(\w+)\}\}/g, (_, part) => contents[part]));
