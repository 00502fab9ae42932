// One message: its records, its pieces, its findings, its JSON, and how it differs from another.
import { h, plural, roving, textOf, visible } from "./dom.js";
import { renderPieces } from "./pieces.js";
import { Records } from "./records.js";

const find = (id) => document.getElementById(id);

export class MessageView {
  /** @param vocabulary the engine's rules, fates and logs */
  constructor(client, vocabulary) {
    this.client = client;
    this.fates = vocabulary.fates;
    this.rules = new Map(vocabulary.rules.map((rule) => [rule.rule, rule]));
    this.base = null; // index of the message that others are compared with
    roving(find("pieces"), ".piece");
    roving(find("records"), ".field");
    find("pieces").addEventListener("click", ({ target }) => {
      const piece = target.closest(".piece");
      if (piece) this.#choosePiece(Number(piece.dataset.piece), find("records"));
    });
    find("records").addEventListener("click", ({ target }) => {
      const field = target.closest(".field");
      if (field) this.#chooseField(field.dataset.path);
    });
    find("json").addEventListener("toggle", () => this.#fillJson());
    find("copy").addEventListener("click", () => this.#copy());
    find("keep").addEventListener("click", () => this.#keep());
    find("log").append(...vocabulary.logs.map((log, at) => h("option", { value: at }, log)));
    find("log").addEventListener("change", ({ target }) =>
      this.show(this.summary, Number(target.value)));
    find("close-detail").addEventListener("click", () => this.#unmark());
    document.addEventListener("keydown", (event) => {
      if (event.key === "Escape") this.#unmark();
    });
    this.#legend();
  }

  #legend() {
    find("legend").append(...this.fates.slice(1).map(({ name, what }) =>
      h("li", {}, h("span", { class: `fate-${name}` }, name), what === name ? "" : `: ${what}`)));
  }

  clear() {
    this.base = null;
    this.summary = null;
    find("message").hidden = true;
  }

  async show(summary, log = -1) {
    if (this.summary !== summary) find("log").value = "-1";
    this.summary = summary;
    this.#unmark();
    find("message").hidden = false;
    find("title").textContent = `${summary.index + 1}: ${summary.method || summary.kind}`;
    try {
      const shown = await this.client.ask("show", { ...summary, log });
      if (this.summary === summary) this.#render(shown);
    } catch (error) {
      find("facts").textContent = error.message;
      find("parts").hidden = true;
    }
    await this.#compare();
  }

  #render(shown) {
    const { explanation, decoded } = shown;
    this.shown = shown;
    find("parts").hidden = false;
    find("which-log").hidden = !(explanation.kind === "entry" && !this.summary.log);
    find("facts").textContent = this.#facts(explanation);
    this.#indexPlaces();
    this.pieces = renderPieces(find("pieces"), shown, this.fates);
    const fateOf = (path) => this.fates[shown.places[this.pieceAt.get(path)]?.[0]]?.name;
    this.records = new Records(find("records"), decoded, fateOf, explanation);
    this.#renderFindings(explanation.findings);
    find("json").open = false;
    find("json-text").textContent = "";
  }

  #facts({ kind, code, log }) {
    const { offset, line, bytes, handle } = this.summary;
    return [kind, `code ${code}`, log && `${log} calls`, handle !== null && `handle ${handle}`,
            plural(bytes, "byte"), `at offset ${offset}, line ${line}`].filter(Boolean).join(" · ");
  }

  /** The piece whose value is stored at a path, or the first that could be. */
  #indexPlaces() {
    this.pieceAt = new Map();
    const { pieces } = this.shown.explanation;
    this.shown.places.forEach(([, path], index) => {
      const has = this.pieceAt.get(path);
      const isStored = pieces[index].stored !== undefined;
      if (path && (has === undefined || (isStored && pieces[has].stored === undefined)))
        this.pieceAt.set(path, index);
    });
  }

  #renderFindings(findings) {
    const items = findings.slice(0, 1000).map((finding) => this.#finding(finding));
    if (findings.length > 1000) items.push(h("li", {}, `and ${findings.length - 1000} more`));
    find("findings").replaceChildren(...items);
    find("no-findings").hidden = findings.length > 0;
  }

  #finding({ offset, severity, rule, element, what, text, instead }) {
    const { pieces } = this.shown.explanation;
    const index = pieces.findIndex((piece) =>
      piece.offset <= offset && offset < piece.offset + piece.size);
    const quoted = (value) => `“${visible(textOf(value)).slice(0, 200)}”`;
    const choose = () => this.#choosePiece(index, find("pieces"));
    const button = h("button", { type: "button", onclick: choose },
      `${element ? `${visible(textOf(element))}: ` : ""}${what}`);
    return h("li", {},
      h("span", { class: `badge ${severity}` }, severity), " ",
      index < 0 ? button.textContent : button,
      text === "" ? null : h("span", {}, ` ${quoted(text)}`),
      instead === "" || instead === text ? null : h("span", {}, `, readers get ${quoted(instead)}`),
      h("p", { class: "why" },
        `${this.rules.get(rule).why} `, h("code", {}, rule), ` at offset ${offset}`));
  }

  // ---- A piece and its field

  #choosePiece(index, scrollTo) {
    this.#mark(index, this.shown.places[index][1], scrollTo);
  }

  #chooseField(path) {
    this.#mark(this.pieceAt.get(path), path, find("pieces"));
  }

  #unmark() {
    for (const marked of document.querySelectorAll(".marked")) marked.classList.remove("marked");
    find("detail").hidden = true;
  }

  #mark(index, path, scrollTo) {
    this.#unmark();
    const piece = index === undefined ? null : this.pieces.elementOf(index);
    const field = path ? this.records.elementOf(path) : null;
    piece?.classList.add("marked");
    field?.classList.add("marked");
    find("detail-text").replaceChildren(...this.#explain(index, path));
    find("detail").hidden = false;
    const target = scrollTo === find("pieces") ? piece : field;
    target?.scrollIntoView({ block: "nearest" });
  }

  #explain(index, path) {
    const heading = (text) => h("p", { class: "what" }, text);
    if (index === undefined)
      return [heading(path), h("p", {}, "The message has no such element: this is the default.")];
    const piece = this.shown.explanation.pieces[index];
    const [fate, field] = this.shown.places[index];
    const { name, what } = this.fates[fate];
    const reasons = piece.reasons.map((id) => this.rules.get(id));
    return [
      heading([visible(textOf(piece.element)) || piece.form, field].filter(Boolean).join(" → ")),
      h("p", {}, h("span", { class: `fate-${name}` }, name), what === name ? "" : `: ${what}`),
      piece.stored === undefined ? null
        : h("p", {}, "stored: ", h("code", {}, visible(textOf(piece.stored)) || "empty")),
      ...reasons.map((rule) => h("p", {}, h("b", {}, rule.what), `. ${rule.why}`)),
    ].filter(Boolean);
  }

  // ---- JSON

  #json() {
    return JSON.stringify(this.shown.decoded, null, 2);
  }

  #fillJson() {
    if (find("json").open && this.shown) find("json-text").textContent = this.#json();
  }

  async #copy() {
    try {
      await navigator.clipboard.writeText(this.#json());
      find("copied").textContent = "Copied.";
    } catch {
      find("json").open = true;
      find("json-text").textContent = this.#json();
      getSelection().selectAllChildren(find("json-text"));
      find("copied").textContent = "Selected: copy it with the keyboard.";
    }
    setTimeout(() => (find("copied").textContent = ""), 4000);
  }

  // ---- Comparing

  #keep() {
    this.base = this.base === null ? this.summary : null;
    this.#compare();
  }

  async #compare() {
    const { base, summary } = this;
    find("keep").textContent = base === null ? "Compare with another message"
      : `Stop comparing with ${base.index + 1}`;
    find("differences").hidden = base === null;
    find("differences-table").hidden = true;
    find("differences-title").textContent = "Differences";
    find("differences-text").textContent = "Choose the other message from the list.";
    if (base === null || base === summary) return;
    const differences =
      await this.client.ask("compare", { left: base.index, right: summary.index });
    if (this.base === base && this.summary === summary) this.#renderDifferences(differences);
  }

  #renderDifferences(differences) {
    const [left, right] = [this.base, this.summary].map(({ index }) => index + 1);
    find("differences-title").textContent = `Differences between ${left} and ${right}`;
    find("differences-text").textContent = differences.length === 0 ? "The two hold the same."
      : plural(differences.length, "difference");
    find("left").textContent = `Message ${left}`;
    find("right").textContent = `Message ${right}`;
    const side = (value) => h("td", {}, value === null ? "–" : visible(textOf(value)));
    const what = ({ entry, field }) => [visible(textOf(entry)), field].filter(Boolean).join(": ");
    find("differences-rows").replaceChildren(...differences.slice(0, 1000).map((difference) =>
      h("tr", {}, h("th", { scope: "row" }, what(difference)),
        side(difference.left), side(difference.right))));
    find("differences-table").hidden = differences.length === 0;
  }
}
