// The page: what is opened, what is found in it, and the message that is chosen.
import { Client } from "./client.js";
import { h, plural } from "./dom.js";
import { List } from "./list.js";
import { MessageView } from "./message.js";
import { samples } from "./samples.js";

const find = (id) => document.getElementById(id);

let list;
let view;
let name = "";

function onProgress({ progress, messages, capture, finished, cancelled, tooLarge, lost, error }) {
  if (!view) return;
  if (lost) {
    list.clear();
    view.clear();
  }
  list.add(messages);
  if (view.summary === null && list.messages.length > 0) list.select(0);
  find("progress").value = progress ?? 0;
  if (finished) find("reading").hidden = true;
  const found = `${plural(list.messages.length, "message")} in ${name}`;
  const how = capture && capture !== "plain" ? ` (${capture})` : "";
  const ending = error ?? (tooLarge ? "A message is too large; reading ended there."
    : cancelled ? "Cancelled; these are the messages up to there." : "");
  find("status").textContent = finished ? `${found}${how}. ${ending}`.trim() : "";
}

function open(capture, from) {
  name = from;
  list.clear();
  view.clear();
  find("status").textContent = "";
  find("results").hidden = false;
  find("reading").hidden = false;
  find("reading-name").textContent = `Reading ${from}`;
  find("progress").value = 0;
  if (matchMedia("(max-width: 60rem)").matches) find("status").scrollIntoView();
  client.read(capture, find("redact").checked);
}

const openFile = (file) => file && open({ blob: file }, file.name);
const openText = (text, from) => open({ blob: new Blob([text]) }, from);

function listenToInput() {
  find("inspect").addEventListener("click", () => openText(find("text").value, "the pasted text"));
  find("text").addEventListener("paste", () =>
    setTimeout(() => openText(find("text").value, "the pasted text")));
  find("file").addEventListener("change", ({ target }) => openFile(target.files[0]));
  find("sample").append(...samples.map(({ title }, at) => h("option", { value: at }, title)));
  find("sample").addEventListener("change", ({ target }) => {
    const { title, text } = samples[target.value];
    find("text").value = text;
    openText(text, `the sample “${title}”`);
  });
  find("cancel").addEventListener("click", () => client.cancel());
}

function listenToDrops() {
  const over = (isOver) => document.body.classList.toggle("is-dropping", isOver);
  addEventListener("dragover", (event) => {
    event.preventDefault();
    over(true);
  });
  addEventListener("dragleave", (event) => event.relatedTarget === null && over(false));
  addEventListener("drop", (event) => {
    event.preventDefault();
    over(false);
    const { files } = event.dataTransfer;
    if (files.length > 0) openFile(files[0]);
    else openText(event.dataTransfer.getData("text"), "the dropped text");
  });
}

/** A report has its capture inside. */
function openAttached() {
  const slot = find("capture");
  const report = slot.textContent.trim();
  if (report === "") return;
  find("input").open = false;
  open({ report }, slot.dataset.name || "this report");
}

const client = new Client((progress) => onProgress(progress));
client.ask("vocabulary").then((vocabulary) => {
  view = new MessageView(client, vocabulary);
  list = new List(find("list"), (index) => view.show(list.messages[index]));
  view.clear();
  listenToInput();
  listenToDrops();
  openAttached();
  document.body.dataset.ready = "true";
}, (error) => (find("status").textContent = `The page cannot work here: ${error.message}`));
