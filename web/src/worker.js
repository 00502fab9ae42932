// The worker: owns the engine, reads captures in chunks and answers questions in between.
import { loadEngine } from "./engine.js";
import wasm from "journal_web.wasm";

const chunkSize = 256 * 1024;
const textLimit = 4 * 1024 * 1024; // most bytes of a message that is shown piece by piece

const engine = loadEngine(wasm);
let cancelled = false;

const nextTask = () => new Promise((resolve) => setTimeout(resolve));
const bytesOf = (base64) => Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));

/** The bytes of a file in chunks, each with the bytes of the file read by then. */
async function* chunksOf(blob) {
  for (let at = 0; at < blob.size; at += chunkSize) {
    const chunk = blob.slice(at, at + chunkSize);
    yield { bytes: new Uint8Array(await chunk.arrayBuffer()), end: at + chunk.size };
  }
}

async function* unzippedChunksOf(blob) {
  let end = 0;
  const count = new TransformStream({
    transform(chunk, controller) {
      end += chunk.length;
      controller.enqueue(chunk);
    },
  });
  const stream = blob.stream().pipeThrough(count).pipeThrough(new DecompressionStream("gzip"));
  const reader = stream.getReader();
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    yield { bytes: part.value, end };
    await nextTask(); // lets questions and the request to cancel in
  }
}

/** Reads a capture file, gzip too; yields {done} and what the engine answers to each chunk. */
async function* readBlob({ push, finish }, blob) {
  const head = new Uint8Array(await blob.slice(0, 2).arrayBuffer());
  const isGzip = head[0] === 0x1f && head[1] === 0x8b;
  for await (const { bytes, end } of isGzip ? unzippedChunksOf(blob) : chunksOf(blob))
    yield { done: end / blob.size, ...push(bytes) };
  yield finish();
}

/** Reads what a report holds, a message a line: OFFSET LINE BASE64. */
async function* readReport({ add }, report) {
  let messages = [];
  let bytes = 0;
  for (let at = 0, end; at < report.length; at = end + 1) {
    end = report.indexOf("\n", at);
    if (end < 0) end = report.length;
    const [offset, line, base64] = report.slice(at, end).split(" ");
    if (base64 === undefined) continue;
    messages.push(...add(bytesOf(base64), Number(offset), Number(line)).messages);
    bytes += base64.length;
    if (bytes < chunkSize) continue;
    yield { done: at / report.length, messages };
    messages = [];
    bytes = 0;
    await nextTask();
  }
  yield { messages };
}

async function read({ blob, report, redact }) {
  const opened = await engine;
  opened.open({ redact });
  cancelled = false;
  let last = {};
  try {
    for await (const found of blob ? readBlob(opened, blob) : readReport(opened, report)) {
      postMessage({ progress: found.done ?? 1, ...found });
      last = found;
      if (cancelled || found.tooLarge) break;
    }
  } catch (error) { // the file cannot be read on, or is damaged gzip
    last.error = error.message;
  }
  postMessage({ ...last, progress: 1, finished: true, cancelled, messages: [] });
}

const answers = {
  vocabulary: async () => (await engine).vocabulary(),
  show: async ({ index, log, bytes }) => {
    if (bytes > textLimit) throw new Error("This message is too large to be shown.");
    return (await engine).show(index, log);
  },
  compare: async ({ left, right }) => (await engine).compare(left, right),
};

onmessage = async ({ data: { id, question, ...rest } }) => {
  try {
    if (question === "read") await read(rest);
    else if (question === "cancel") cancelled = true;
    else postMessage({ id, answer: await answers[question](rest) });
  } catch (error) {
    postMessage({ id, error: error.message });
  }
};
