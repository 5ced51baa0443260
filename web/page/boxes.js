// Boxes: a sign or a picture, texts, perhaps a field, and a row of buttons.
// @ts-check
import { drawn, symbol } from "./symbols.js";

/** @typedef {(number: number, text?: string) => void} Answered */

/** @param {string} kind */
function sign(kind) {
    const picture = drawn("svg", { viewBox: "0 0 1 1", class: "sign", "aria-hidden": "true" });
    const color = kind === "critical" ? "#e12323" : "var(--accent)";
    const ground = drawn("circle", { cx: 0.5, cy: 0.5, r: 0.49 });
    ground.style.fill = color;
    picture.append(ground);
    if (kind === "question") {
        const mark = symbol("web", "s", "#fff");
        for (const [key, value] of Object.entries({ x: 0.21, y: 0.2, width: 0.58, height: 0.58 }))
            mark.setAttribute(key, String(value));
        picture.append(mark);
        return picture;
    }
    const [from, to, dot] = kind === "critical" ? [0.27, 0.52, 0.73] : [0.48, 0.73, 0.27];
    const line = { stroke: "#fff", "stroke-linecap": "round" };
    picture.append(
        drawn("path", { d: `M.5 ${from}V${to}`, "stroke-width": 0.13, ...line }),
        drawn("path", { d: `M.5 ${dot}v0`, "stroke-width": 0.156, ...line }),
    );
    return picture;
}

/** @param {string} name @param {string} text */
function element(name, text) {
    const made = document.createElement(name);
    made.textContent = text;
    return made;
}

/** A caption whose access key is underlined. @param {string} caption @param {string} access */
function marked(caption, access) {
    const at = access ? caption.toUpperCase().indexOf(access.toUpperCase()) : -1;
    if (at < 0) return [caption];
    return [caption.slice(0, at), element("u", caption.charAt(at)), caption.slice(at + 1)];
}

let boxes = 0;

/** Opens a box, and tells which button it was answered with: 1 is the first one, 0 none.
 * @param {any} request @param {Answered} answered
 * @param {{low: boolean, icon: string, byKey: boolean, fill?: (form: HTMLFormElement, close: Answered) => void}} how */
export function openBox(request, answered, how) {
    const before = document.activeElement;
    const dialog = document.createElement("dialog");
    const form = document.createElement("form");
    boxes += 1;
    const words = element("p", request.text);
    words.id = `box-${boxes}`;
    dialog.className = how.byKey ? "box by-keys" : "box";
    dialog.dataset.box = request.box;
    dialog.setAttribute("role", request.box === "input" || request.box === "topics" ? "dialog" : "alertdialog");
    dialog.setAttribute("aria-label", request.title ?? "Quillor");
    dialog.setAttribute("aria-describedby", words.id);
    if (request.box === "about") {
        const icon = document.createElement("img");
        icon.className = "icon";
        icon.src = how.icon;
        icon.alt = "";
        form.append(icon, element("h2", request.title));
    } else if (request.box !== "input" && request.box !== "topics") {
        form.append(sign(request.box));
    } else {
        form.className = "plain";
    }
    form.append(words);
    const field = request.box === "input" ? document.createElement("input") : null;
    if (field) {
        field.autocomplete = "off";
        field.spellcheck = false;
        field.setAttribute("aria-labelledby", words.id);
        form.append(field);
    }
    /** @type {Answered} */
    const close = (number) => {
        if (!dialog.isConnected) return;
        dialog.close();
        dialog.remove();
        if (before instanceof HTMLElement || before instanceof SVGElement) before.focus({ preventScroll: true });
        answered(number, field?.value ?? "");
    };
    how.fill?.(form, close);
    const row = document.createElement("div");
    row.className = "buttons";
    /** @type {HTMLButtonElement[]} */
    const buttons = request.buttons.map((/** @type {any} */ known, /** @type {number} */ i) => {
        const button = /** @type {HTMLButtonElement} */ (element("button", ""));
        button.append(...marked(known.caption, known.access));
        button.type = i + 1 === request.main ? "submit" : "button";
        button.className = i + 1 === request.main ? "push main" : "push";
        button.dataset.answer = String(i + 1);
        button.addEventListener("click", (event) => {
            event.preventDefault();
            close(i + 1);
        });
        row.append(button);
        return button;
    });
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        close(request.main);
    });
    form.append(row);
    dialog.append(form);
    dialog.addEventListener("cancel", (event) => {
        event.preventDefault();
        close(0);
    });
    dialog.addEventListener("keydown", (event) => {
        event.stopPropagation();
        if (event.key === "Tab") document.documentElement.classList.add("by-keys");
        if (event.key === "Escape") {
            event.preventDefault();
            close(0);
        }
        const sought = request.buttons.findIndex(
            (/** @type {any} */ known) => known.access && event.altKey && event.key.toUpperCase() === known.access.toUpperCase(),
        );
        if (sought >= 0) {
            event.preventDefault();
            close(sought + 1);
        }
        const arrows = /** @type {Record<string, number>} */ ({ ArrowLeft: -1, ArrowRight: 1 });
        const at = buttons.indexOf(/** @type {HTMLButtonElement} */ (document.activeElement));
        if (at >= 0 && arrows[event.key]) {
            event.preventDefault();
            document.documentElement.classList.add("by-keys");
            buttons[(at + arrows[event.key] + buttons.length) % buttons.length].focus();
        }
    });
    // One that was open long enough to be read stands behind a key that is still held.
    dialog.addEventListener("keyup", (event) => event.stopPropagation());
    document.body.append(dialog);
    dialog.showModal();
    if (how.low) {
        dialog.style.setProperty("--tall", `${dialog.offsetHeight}px`);
        dialog.classList.add("low");
    }
    (field ?? buttons[request.main - 1]).focus();
}
