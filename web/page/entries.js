// Fields and lists.
// @ts-check
import { widthOf } from "./lettering.js";

/** @typedef {import("./controls.js").Control} Control */
/** @typedef {import("./controls.js").Scale} Scale */

// Smaller where its text would not fit, so that all of it is seen; also while it is typed.
/** @param {Control} control @param {Scale} scale */
export function paintField(control, scale) {
    const { look } = control;
    const field = /** @type {HTMLInputElement} */ (/** @type {unknown} */ (control.element));
    field.style.setProperty("--ink", look.ink);
    field.style.setProperty("--back", look.back);
    field.style.setProperty("--edge", look.edge);
    field.style.fontWeight = look.bold ? "700" : "400";
    field.classList.add(look.face);
    field.setAttribute("aria-label", control.name);
    fitField(control, scale);
    if (field.value !== look.text && !field.dataset.composing) field.value = look.text;
    const end = look.caret + look.selected;
    if (
        !field.dataset.composing &&
        document.activeElement === field &&
        (field.selectionStart !== look.caret || field.selectionEnd !== end)
    )
        field.setSelectionRange(look.caret, end);
}
/** @param {Control} control @param {Scale} scale */
function fitField(control, scale) {
    const { look } = control;
    const growth = look.face === "plain" ? control.around.textSize : 1;
    const room = control.place[2] - 180 - 6 / scale.twip - 30;
    const wide = widthOf(look.face, look.bold, look.text);
    const size = Math.min(look.size * growth, room / Math.max(wide, 0.01) / 20);
    control.element.style.setProperty("--size", String(size));
}

/** @param {Control} control */
export function paintList(control) {
    const { element, look } = control;
    const { colors } = control.around;
    element.style.setProperty("--chosen", look.chosen);
    element.style.setProperty("--ink", colors.whiteInk);
    element.style.setProperty("--back", colors.white);
    element.style.setProperty("--edge", colors.edge);
    const growth = look.face === "plain" ? control.around.textSize : 1;
    element.style.setProperty("--size", String(look.size * growth));
    element.style.fontWeight = look.bold ? "700" : "400";
    element.classList.add(look.face);
    element.setAttribute("aria-label", control.name);
    const rows = [...element.children];
    const same = rows.length === look.items.length;
    if (!same || look.items.some((/** @type {string} */ item, /** @type {number} */ i) => rows[i].textContent !== item))
        element.replaceChildren(...look.items.map((/** @type {string} */ item, /** @type {number} */ i) => rowOf(control, item, i)));
    [...element.children].forEach((row, i) =>
        row.setAttribute("aria-selected", String(i === look.index)),
    );
    const chosen = element.children[look.index];
    if (!chosen) return element.removeAttribute("aria-activedescendant");
    element.setAttribute("aria-activedescendant", chosen.id);
    chosen.scrollIntoView({ block: "nearest" });
}
/** @param {Control} control @param {string} item @param {number} i */
function rowOf(control, item, i) {
    const row = document.createElement("div");
    row.className = "option";
    row.id = `${control.id}-${i}`;
    row.dataset.row = String(i);
    row.setAttribute("role", "option");
    row.textContent = item;
    return row;
}
