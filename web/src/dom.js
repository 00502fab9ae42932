// Elements and texts.

/** An element with attributes, listeners (onclick ...) and children; null ones are left out. */
export function h(tag, attributes = {}, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (value === undefined || value === null || value === false) continue;
    if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
    else element.setAttribute(name, value === true ? "" : value);
  }
  element.append(...children.flat().filter((child) => child !== null && child !== undefined));
  return element;
}

/** The engine writes a text that is no UTF-8 as {hex}. */
export function textOf(value) {
  if (value !== null && typeof value === "object" && typeof value.hex === "string")
    return value.hex.replace(/../g, (byte) => "\\x" + byte);
  return String(value);
}

const names = { "\0": "␀", "\n": "⏎", "\r": "␍", "\t": "⇥" };

/** With control characters made visible. */
export function visible(text) {
  return text.replace(/[\x00-\x1f\x7f\u202a-\u202e\u2066-\u2069]/g, (c) => {
    return names[c] ?? "\\x" + c.codePointAt(0).toString(16).padStart(2, "0");
  });
}

const decoder = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });

/** Bytes of a message, visible, even where they are no UTF-8. */
export function visibleBytes(bytes) {
  try {
    return visible(decoder.decode(bytes));
  } catch {
    const hex = (byte) => "\\x" + byte.toString(16).padStart(2, "0");
    const shown = (byte) => (byte < 0x80 ? visible(String.fromCharCode(byte)) : hex(byte));
    return Array.from(bytes, shown).join("");
  }
}

export function plural(count, noun, nouns = noun + "s") {
  return `${count.toLocaleString("en")} ${count === 1 ? noun : nouns}`;
}

/**
 * One tab stop for many elements: arrow keys, Home and End move between them.
 * @param selector of the elements in the container
 */
export function roving(container, selector) {
  const items = () => [...container.querySelectorAll(selector)];
  const focus = (item) => {
    if (!item) return;
    container.querySelector(selector + "[tabindex='0']")?.setAttribute("tabindex", "-1");
    item.setAttribute("tabindex", "0");
    item.focus();
  };
  const steps = { ArrowDown: 1, ArrowRight: 1, ArrowUp: -1, ArrowLeft: -1 };
  container.addEventListener("keydown", (event) => {
    const all = items();
    const at = all.indexOf(event.target.closest(selector));
    if (at < 0) return;
    if (event.key in steps) focus(all[at + steps[event.key]]);
    else if (event.key === "Home") focus(all[0]);
    else if (event.key === "End") focus(all.at(-1));
    else if (event.key === "Enter" || event.key === " ") event.target.click();
    else return;
    event.preventDefault();
  });
}
