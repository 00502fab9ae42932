// The worker: owns the engine, reads captures in chunks and answers questions in between.
import { loadEngine } from "./engine.js";
import wasm from "journal_web.wasm";

const chunkSize = 256 * 1024;
const textLimit = 4 * 1024 * 1024; // most bytes of a message that the page shows in full

const engine = loadEngine(wasm);
let cancelled = false;

/** The bytes of a base64 text, chunk by chunk. */
function chunksOfBase64(text) {
  const size = (chunkSize / 3) | 0;
  return {
    total: text.length,
    async *[Symbol.asyncIterator]() {
      for (let at = 0; at < text.length; at += size * 4) {
        const bytes = Uint8Array.from(atob(text.slice(at, at + size * 4)), (c) => c.charCodeAt(0));
        yield { bytes, done: Math.min(at + size * 4, text.length) };
        await new Promise((resolve) => setTimeout(resolve));
      }
    },
  };
}

function chunksOfBlob(blob) {
  return {
    total: blob.size,
    async *[Symbol.asyncIterator]() {
      for (let at = 0; at < blob.size; at += chunkSize) {
        const chunk = blob.slice(at, at + chunkSize);
        yield { bytes: new Uint8Array(await chunk.arrayBuffer()), done: at + chunk.size };
      }
    },
  };
}

async function read({ blob, base64, redact }) {
  const { open, push, finish } = await engine;
  open({ redact });
  cancelled = false;
  const chunks = base64 === undefined ? chunksOfBlob(blob) : chunksOfBase64(base64);
  for await (const { bytes, done } of chunks) {
    const found = push(bytes);
    postMessage({ progress: done / chunks.total, ...found });
    if (cancelled || found.tooLarge) break;
  }
  postMessage({ progress: 1, finished: true, cancelled, ...finish() });
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
