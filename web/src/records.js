// The records as tables. Their members are those of the JSON, whatever they are.
import { h, textOf, visible } from "./dom.js";

const portion = 50; // entries shown at a time; more on demand

/** A name that may be broken between its words. */
const breakable = (name) =>
  name.split(/(?=[A-Z])/).flatMap((word, at) => (at === 0 ? [word] : [h("wbr"), word]));

const isText = (value) => value?.hex !== undefined;
const isRecord = (value) => value !== null && typeof value === "object" && !isText(value);

/** callInfoList[0] as "callInfoList 1": people count from one. */
function headingOf(path) {
  const [, name, index] = /([^.[]+)(?:\[(\d+)\])?$/.exec(path);
  return index === undefined ? name : `${name} ${Number(index) + 1}`;
}

export class Records {
  /**
   * @param fateOf   gives the name of what became of the piece at a path; undefined for none
   * @param identity an object with the members that recognition gives, not an element
   */
  constructor(container, decoded, fateOf, identity) {
    this.container = container;
    this.fateOf = fateOf;
    this.identity = identity;
    this.waiting = new Map(); // functions that render records up to a number, by their list's path
    container.replaceChildren(this.#object(decoded, ""));
    container.querySelector(".field")?.setAttribute("tabindex", "0");
  }

  /** The field at a path, rendered if it is not yet. */
  elementOf(path) {
    for (const [prefix, showUpTo] of this.waiting)
      if (path.startsWith(prefix)) showUpTo(parseInt(path.slice(prefix.length), 10) + 1);
    return this.container.querySelector(`[data-path="${CSS.escape(path)}"]`);
  }

  #object(object, path) {
    const members = Object.entries(object).map(([name, value]) => ({
      value, path: path ? `${path}.${name}` : name, name,
    }));
    const rows = members.flatMap((member) => this.#rows(member));
    const parts = members.filter(({ name, value }) => isRecord(value) && name !== "written");
    return h("div", { class: "record" },
      rows.length > 0
        ? h("table", {}, path ? h("caption", {}, headingOf(path)) : null, h("tbody", {}, rows))
        : null,
      parts.map(({ value, path: at }) => this.#part(value, at)));
  }

  /** The rows of a member: one for a value, one for each value of a list or of what was written. */
  #rows({ name, value, path }) {
    if (!isRecord(value)) return [this.#row(name, value, path)];
    if (name === "written")
      return Object.entries(value).map(([field, text]) =>
        this.#row(`${field}, as written`, text, null));
    if (!Array.isArray(value)) return [];
    return value.flatMap((item, index) =>
      isRecord(item) ? [] : [this.#row(`${name} ${index + 1}`, item, `${path}[${index}]`)]);
  }

  #row(name, value, path) {
    const text = value === null ? "–" : visible(textOf(value));
    const isField = path !== null && !(path in this.identity);
    const fate = isField ? this.fateOf(path) ?? "default" : null;
    const field = { class: `field fate-${fate}`, role: "button", tabindex: "-1", "data-path": path,
                    "aria-label": `${name}: ${text || "empty"}` };
    return h("tr", {}, h("th", { scope: "row" }, breakable(name)),
      h("td", {}, isField ? h("span", field, text || h("i", {}, "empty")) : text));
  }

  #part(value, path) {
    if (!Array.isArray(value)) return this.#object(value, path);
    const items = h("div", { class: "items" });
    const more = h("button", { type: "button", class: "more" });
    const records = value.map((item, index) => [item, `${path}[${index}]`])
      .filter(([item]) => isRecord(item));
    let next = 0;
    const add = (upTo = next + portion) => {
      items.append(...records.slice(next, upTo).map(([item, at]) => this.#object(item, at)));
      next = Math.min(upTo, records.length);
      more.textContent = `Show more of ${records.length}`;
      more.hidden = next >= records.length;
    };
    more.addEventListener("click", () => add());
    this.waiting.set(`${path}[`, (count) => count > next && add(count));
    add();
    return h("div", {}, items, more);
  }
}
