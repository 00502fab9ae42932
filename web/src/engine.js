// The engine in WebAssembly: bytes in, JSON out.

const unused = () => 0;

/** The engine calls nothing of its host; it has the imports of a system all the same. */
function importsOf(module) {
  const imports = {};
  for (const { module: from, name } of WebAssembly.Module.imports(module))
    (imports[from] ??= {})[name] = unused;
  imports.wasi_snapshot_preview1.proc_exit = () => {
    throw new Error("The engine ran out of memory.");
  };
  return imports;
}

export async function loadEngine(bytes) {
  const module = await WebAssembly.compile(bytes);
  const { exports: wasm } = await WebAssembly.instantiate(module, importsOf(module));
  wasm._initialize();
  const decoder = new TextDecoder();

  const outputBytes = () =>
    new Uint8Array(wasm.memory.buffer, wasm.journal_output() >>> 0, wasm.journal_output_size());
  const input = (bytes) => {
    const at = wasm.journal_input(bytes.length) >>> 0;
    new Uint8Array(wasm.memory.buffer, at, bytes.length).set(bytes);
  };
  const output = () => JSON.parse(decoder.decode(outputBytes()));

  return {
    /** Starts a capture. */
    open: ({ redact = false } = {}) => wasm.journal_open(redact ? 1 : 0),

    /** Takes the next bytes of the capture: {messages, capture, tooLarge}. */
    push(chunk) {
      input(chunk);
      wasm.journal_push();
      return output();
    },
    finish() {
      wasm.journal_finish();
      return output();
    },

    /** Takes one message that was found before; answers as push does. */
    add(text, offset, line) {
      input(text);
      wasm.journal_add(offset, line);
      return output();
    },

    /** A message: {explanation, decoded, places}, and its bytes. */
    show(index, log = -1) {
      wasm.journal_text(index);
      const text = outputBytes().slice();
      wasm.journal_show(index, log);
      return { ...output(), text };
    },
    compare(left, right) {
      wasm.journal_compare(left, right);
      return output();
    },
    /** The answer of the last operation, byte for byte. */
    lastAnswer: () => decoder.decode(outputBytes()),

    vocabulary() {
      wasm.journal_vocabulary();
      return output();
    },
  };
}
