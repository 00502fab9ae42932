// The page's end of the worker.
import source from "journal_worker.txt";

const cancelTimeout = 700; // ms; then the worker is ended, whatever it is at

export class Client {
  #worker;
  #waiting = new Map();
  #nextId = 0;
  #cancelTimer;

  /** @param onProgress is told {progress, messages, ...} of the capture that is being read */
  constructor(onProgress) {
    this.onProgress = onProgress;
    this.#start();
  }

  #start() {
    const url = URL.createObjectURL(new Blob([source], { type: "text/javascript" }));
    this.#worker = new Worker(url);
    URL.revokeObjectURL(url);
    this.#worker.onmessage = ({ data }) => this.#receive(data);
    this.#worker.onerror = (event) => {
      event.preventDefault();
      this.#restart(event.message || "The worker failed.");
    };
  }

  #restart(error) {
    clearTimeout(this.#cancelTimer);
    this.#worker.terminate();
    for (const { reject } of this.#waiting.values()) reject(new Error(error));
    this.#waiting.clear();
    this.#start();
    this.onProgress({ lost: true, finished: true, error, messages: [] });
  }

  #receive(data) {
    if (data.id === undefined) {
      if (data.finished) clearTimeout(this.#cancelTimer);
      return this.onProgress(data);
    }
    const { resolve, reject } = this.#waiting.get(data.id) ?? {};
    this.#waiting.delete(data.id);
    if (data.error !== undefined) reject?.(new Error(data.error));
    else resolve?.(data.answer);
  }

  ask(question, details = {}) {
    const id = this.#nextId++;
    return new Promise((resolve, reject) => {
      this.#waiting.set(id, { resolve, reject });
      this.#worker.postMessage({ id, question, ...details });
    });
  }

  /** @param capture {blob} or {report} */
  read(capture, redact) {
    this.ask("read", { ...capture, redact }).catch((error) => this.#restart(error.message));
  }

  cancel() {
    this.#worker.postMessage({ question: "cancel" });
    const restart = () => this.#restart("The worker did not answer; its messages are lost.");
    this.#cancelTimer = setTimeout(restart, cancelTimeout);
  }
}
