// The list of the messages found, one page of it at a time.
import { h, plural, roving } from "./dom.js";

const pageSize = 100;
const severities = ["error", "warning", "note"];

function badges(message) {
  return severities
    .filter((severity) => message[severity] > 0)
    .map((severity) =>
      h("span", { class: `badge ${severity}` }, plural(message[severity], severity)));
}

export class List {
  messages = [];
  #shown = []; // indices of the messages that pass the filter
  #page = 0;
  #selected = -1;
  #isPending = false;

  /** @param onSelect is told the index of a message */
  constructor(container, onSelect) {
    this.onSelect = onSelect;
    this.rows = h("div", { role: "listbox", id: "rows", "aria-label": "Messages" });
    this.filter = h("select", { id: "filter", onchange: () => this.#refilter() });
    this.range = h("span", { class: "range" });
    this.back = h("button", { type: "button", onclick: () => this.#turn(-1) }, "Previous");
    this.forward = h("button", { type: "button", onclick: () => this.#turn(1) }, "Next");
    this.pager = h("p", { class: "pager" }, this.back, this.range, this.forward);
    container.append(
      h("p", {}, h("label", { for: "filter" }, "Show "), this.filter),
      this.pager,
      this.rows,
    );
    roving(this.rows, ".row");
    this.clear();
  }

  clear() {
    this.messages = [];
    this.#selected = -1;
    this.filter.replaceChildren(
      h("option", { value: "" }, "all messages"),
      ...severities.map((s) => h("option", { value: `has ${s}` }, `those with ${s}s`)),
    );
    this.#refilter();
  }

  add(messages) {
    for (const message of messages) {
      message.index = this.messages.length;
      this.messages.push(message);
      this.#offerKind(message.kind);
      if (this.#passes(message)) this.#shown.push(message.index);
    }
    if (messages.length > 0) this.#renderSoon();
  }

  #offerKind(kind) {
    const options = this.filter.options;
    for (let at = 0; at < options.length; at++) if (options[at].value === kind) return;
    this.filter.append(h("option", { value: kind }, `only ${kind}`));
  }

  #passes(message) {
    const wanted = this.filter.value;
    if (wanted.startsWith("has ")) return message[wanted.slice(4)] > 0;
    return wanted === "" || message.kind === wanted;
  }

  #refilter() {
    this.#shown = this.messages.filter((m) => this.#passes(m)).map((m) => m.index);
    this.#page = 0;
    this.#render();
  }

  #turn(pages) {
    this.#page += pages;
    this.#render();
  }

  #renderSoon() {
    if (this.#isPending) return;
    this.#isPending = true;
    requestAnimationFrame(() => {
      this.#isPending = false;
      this.#render();
    });
  }

  /** Renders the page; rows that are there already stay, so that the focus stays. */
  #render() {
    const first = this.#page * pageSize;
    const indices = this.#shown.slice(first, first + pageSize);
    const present = this.rows.children;
    const kept = indices.findIndex((index, at) => present[at]?.dataset.index !== String(index));
    const keep = kept < 0 ? indices.length : kept;
    while (present.length > keep) this.rows.lastChild.remove();
    this.rows.append(...indices.slice(keep).map((index) => this.#row(this.messages[index])));
    if (present.length > 0 && !this.rows.querySelector("[tabindex='0']"))
      present[0].setAttribute("tabindex", "0");
    this.rows.hidden = present.length === 0; // an empty list is no list
    const all = this.#shown.length.toLocaleString("en");
    this.range.textContent =
      indices.length === 0 ? "none" : `${first + 1}–${first + indices.length} of ${all}`;
    this.pager.hidden = this.#shown.length <= pageSize && this.#shown.length > 0;
    this.back.disabled = this.#page === 0;
    this.forward.disabled = first + pageSize >= this.#shown.length;
  }

  #row(message) {
    const { index, kind, method, entries, handle } = message;
    const facts = [method && kind, entries > 0 && plural(entries, "entry", "entries"),
                   handle !== null && `handle ${handle}`, plural(message.bytes, "byte")];
    return h("div", { class: "row", role: "option", tabindex: "-1", "data-index": index,
                      "aria-selected": String(index === this.#selected),
                      onclick: () => this.select(index) },
      h("span", { class: "title" },
        h("span", { class: "number" }, `${index + 1}`), ` ${method || kind}`),
      h("span", { class: "facts" }, facts.filter(Boolean).join(" · ")),
      h("span", { class: "badges" }, badges(message)));
  }

  select(index) {
    this.#selected = index;
    for (const row of this.rows.children)
      row.setAttribute("aria-selected", String(row.dataset.index === String(index)));
    this.onSelect(index);
  }
}
