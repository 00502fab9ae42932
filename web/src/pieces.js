// The message itself: each piece coloured by what becomes of it.
import { h, visibleBytes } from "./dom.js";

const portion = 2000; // pieces shown at a time; more on demand

const encoder = new TextEncoder();

/** An element's tags and the value between them, told apart where it has both. */
function content(bytes, piece) {
  if (piece.form !== "element") return [h("span", { class: "tag" }, visibleBytes(bytes))];
  const begin = encoder.encode(piece.element).length + 2;
  const end = bytes.length - begin - 1;
  const tag = (from, to) => h("span", { class: "tag" }, visibleBytes(bytes.subarray(from, to)));
  const value = h("span", { class: "value" }, visibleBytes(bytes.subarray(begin, end)));
  return [tag(0, begin), value, tag(end)];
}

function pieceElement({ explanation, places, text }, fates, index) {
  const piece = explanation.pieces[index];
  const bytes = text.subarray(piece.offset, piece.offset + piece.size);
  const [fate, path] = places[index];
  return h("span", { class: `piece fate-${fates[fate].name}`, role: "button", tabindex: "-1",
                     "data-piece": index, "data-path": path || null }, content(bytes, piece));
}

const isBlank = (piece) => piece.form === "text" && /^\s*$/.test(piece.raw);

/** A line for each piece that has bytes; white space goes behind the piece that it follows. */
export function renderPieces(container, shown, fates) {
  const { pieces } = shown.explanation;
  const lines = h("div", { class: "lines" });
  const more = h("button", { type: "button", class: "more", onclick: () => add() });
  let next = 0;
  const add = (upTo = next + portion) => {
    const fragment = document.createDocumentFragment();
    for (const end = Math.min(upTo, pieces.length); next < end; next++) {
      const piece = pieces[next];
      if (piece.size === 0) continue;
      const element = pieceElement(shown, fates, next);
      if (isBlank(piece) && fragment.lastChild) fragment.lastChild.append(element);
      else fragment.append(h("div", { class: `line depth-${piece.depth}` }, element));
    }
    lines.append(fragment);
    more.textContent = `Show more of ${pieces.length} pieces`;
    more.hidden = next >= pieces.length;
  };
  add();
  lines.querySelector(".piece")?.setAttribute("tabindex", "0");
  container.replaceChildren(lines, more);
  return {
    /** The element of a piece, rendered if it is not yet. */
    elementOf(index) {
      if (index >= next) add(index + portion);
      return lines.querySelector(`[data-piece="${index}"]`);
    },
  };
}
