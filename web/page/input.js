// The player's keys, mouse and touch become events of the screen that has the input.
// @ts-check
import { happening, rest } from "./program.js";

/** @typedef {import("./screens.js").Screen} Screen */
/** @typedef {import("./controls.js").Control} Control */

const kShift = 1;
const kControl = 2;
const kAlt = 4;
const kRepeat = 8;

/** Numbers for the keys of the keyboard. @type {Map<string, number>} */
const keyNumbers = new Map();

/** @param {KeyboardEvent} event */
function numberOf(event) {
    const name = event.code || event.key;
    let number = keyNumbers.get(name);
    if (number === undefined) {
        number = keyNumbers.size + 1;
        keyNumbers.set(name, number);
    }
    return number;
}

/** What the key types: text, Return or Backspace; nothing for a shortcut.
 * @param {KeyboardEvent} event */
function typed(event) {
    const graph = event.getModifierState("AltGraph");
    if ((event.ctrlKey !== event.altKey && !graph) || event.metaKey) return "";
    if (event.key === "Enter") return "\r";
    if (event.key === "Backspace") return "\b";
    return [...event.key].length === 1 ? event.key : "";
}

/** Whether an input method has the key. @param {KeyboardEvent} event */
function isComposed(event) {
    return event.isComposing || ["Process", "Unidentified", "Dead"].includes(event.key);
}

// What the browser itself is asked for by these stays the browser's, unless it was a command.
/** @param {KeyboardEvent} event */
function isBrowsers(event) {
    return event.ctrlKey || event.metaKey || event.altKey || /^F\d+$/.test(event.key);
}

export class Input {
    /** @param {import("./program.js").Program} program
     * @param {import("./screens.js").Screens} screens */
    constructor(program, screens) {
        this.program = program;
        this.screens = screens;
        this.byKey = false;
        this.pointer = { left: 0, top: 0 };
        /** @type {{screen: Screen, control: Control, pointer: number} | null} */
        this.down = null;
        /** What the latest press of a pointer was on. @type {Control | null} */
        this.pressed = null;
        /** @type {PointerEvent | null} */
        this.over = null;
        this.listen();
    }

    listen() {
        const listen = (/** @type {string} */ name, /** @type {(event: any) => void} */ handler) =>
            document.addEventListener(name, handler, { capture: false, passive: false });
        listen("keydown", (event) => this.keyDown(event));
        listen("keyup", (event) => this.keyUp(event));
        listen("pointerdown", (event) => this.pointerDown(event));
        listen("pointermove", (event) => this.pointerMove(event));
        listen("pointerup", (event) => this.pointerUp(event));
        listen("pointercancel", (event) => this.pointerUp(event));
        listen("mousedown", (event) => this.mouseDown(event));
        listen("click", (event) => this.click(event));
        listen("dblclick", (event) => this.doubleClick(event));
        listen("contextmenu", (event) => this.contextMenu(event));
        listen("beforeinput", (event) => this.beforeInput(event));
        listen("input", (event) => this.edited(event));
        listen("compositionstart", (event) => this.composing(event, true));
        listen("compositionend", (event) => this.composing(event, false));
        listen("selectionchange", () => this.selected());
        listen("focusin", (event) => this.focusIn(event));
        window.addEventListener("blur", () => this.program.happen(happening.letGo));
    }

    /** The control that an event is at, on the screen that takes input.
     * @param {EventTarget | null} target @returns {{screen: Screen, control: Control | null} | null} */
    at(target) {
        const screen = this.screens.active();
        if (!screen || !(target instanceof Element) || !screen.root.contains(target)) return null;
        const element = target.closest("[data-control]");
        const index = element instanceof HTMLElement || element instanceof SVGElement ? element.dataset.control : undefined;
        return { screen, control: index === undefined ? null : screen.controls[Number(index)] };
    }
    boxIsOpen() {
        return document.querySelector("dialog.box[open], dialog.menu-room[open]") !== null;
    }

    /** @param {KeyboardEvent} event */
    keyDown(event) {
        const screen = this.screens.active();
        if (!screen || this.boxIsOpen() || isComposed(event)) return;
        this.byKey = true;
        this.selected(); // the browser tells of a new caret only later
        if (event.key === "Tab") document.documentElement.classList.add("by-keys");
        const bits =
            (event.shiftKey ? kShift : 0) +
            (event.ctrlKey ? kControl : 0) +
            (event.altKey ? kAlt : 0) +
            (event.repeat ? kRepeat : 0);
        const sign = event.key.length === 1 ? event.key : " ";
        // The codes of old are what screens know keys by.
        const code = event.keyCode === 173 ? 189 : event.keyCode;
        const who = this.program.happen(happening.press, screen.number, code, bits, numberOf(event), sign + typed(event));
        if ((who & 3) === rest.list) this.moveInList(screen, event.key);
        else if ((who & 3) === rest.field) return;
        else if (!(who & rest.taken) && isBrowsers(event)) return;
        event.preventDefault();
    }
    /** @param {KeyboardEvent} event */
    keyUp(event) {
        if (event.key === " " && this.at(event.target)?.control?.isButton) event.preventDefault();
        this.program.happen(happening.release, 0, -1, 0, numberOf(event));
    }
    // With nothing selected, a key that moves the selection begins at the end that it comes from.
    /** @param {Screen} screen @param {string} key */
    moveInList(screen, key) {
        const list = screen.controls[screen.focused];
        const { items, index } = list.look;
        const last = items.length - 1;
        const page = Math.max(1, Math.floor(list.element.clientHeight / (list.element.firstElementChild?.clientHeight || 1)) - 1);
        const to = /** @type {Record<string, number>} */ ({
            ArrowDown: index < 0 ? 0 : index + 1,
            ArrowUp: index < 0 ? last : index - 1,
            Home: 0,
            End: last,
            PageDown: Math.max(0, index) + page,
            PageUp: Math.max(0, index) - page,
        })[key];
        if (to === undefined || last < 0) return;
        this.select(screen, list, Math.max(0, Math.min(last, to)));
    }
    /** @param {Screen} screen @param {Control} list @param {number} row */
    select(screen, list, row) {
        if (row !== list.look.index) this.program.happen(happening.select, screen.number, list.index, row);
    }

    // A click leaves the focus where it is, unless something is typed or listed there.
    /** @param {MouseEvent} event */
    mouseDown(event) {
        const found = this.at(event.target);
        if (found && !["field", "list"].includes(found.control?.kind ?? "")) event.preventDefault();
    }
    /** @param {PointerEvent} event */
    pointerDown(event) {
        this.byKey = false;
        document.documentElement.classList.remove("by-keys");
        this.pointer = { left: event.clientX, top: event.clientY };
        const found = this.at(event.target);
        if (!found?.control || event.button !== 0 || this.boxIsOpen()) return;
        const { screen, control } = found;
        if (control.kind === "field" || control.kind === "list") {
            this.program.happen(happening.focus, screen.number, control.index);
            return;
        }
        this.down = { screen, control, pointer: event.pointerId };
        this.pressed = control;
        this.program.happen(happening.down, screen.number, control.index);
    }
    /** @param {PointerEvent} event */
    pointerUp(event) {
        if (!this.down || this.down.pointer !== event.pointerId) return;
        const { screen, control } = this.down;
        this.down = null;
        if (event.type === "pointercancel") this.pressed = null;
        this.program.happen(happening.up, screen.number, control.index);
    }
    // Only the mouse hovers; once a frame is enough.
    /** @param {PointerEvent} event */
    pointerMove(event) {
        this.pointer = { left: event.clientX, top: event.clientY };
        if (event.pointerType !== "mouse") return;
        if (!this.over) requestAnimationFrame(() => this.program.later(() => this.hover()));
        this.over = event;
    }
    hover() {
        const latest = this.over;
        this.over = null;
        const found = latest && this.at(latest.target);
        if (found?.control && !this.boxIsOpen())
            this.program.happen(happening.over, found.screen.number, found.control.index);
    }
    // Not before the browser says so: what a click opens would get the end of a touch. Assistive
    // tools press without a pointer.
    /** @param {MouseEvent} event */
    click(event) {
        const found = this.at(event.target);
        if (!found?.control || this.boxIsOpen()) return;
        const { screen, control } = found;
        if (control.kind === "list") {
            const row = event.target instanceof Element ? event.target.closest("[data-row]") : null;
            if (row instanceof HTMLElement) this.select(screen, control, Number(row.dataset.row));
            return;
        }
        const pressed = this.pressed === control;
        this.pressed = null;
        if (pressed) this.program.happen(happening.click, screen.number, control.index);
        else if (event.detail === 0 && control.isButton)
            this.program.happen(happening.activate, screen.number, control.index);
    }
    /** @param {MouseEvent} event */
    doubleClick(event) {
        const found = this.at(event.target);
        const row = event.target instanceof Element && event.target.closest("[data-row]");
        if (found?.control?.kind === "list" && row)
            this.program.happen(happening.double, found.screen.number, found.control.index);
    }
    /** @param {MouseEvent} event */
    contextMenu(event) {
        const found = this.at(event.target);
        if (found?.control?.kind === "field") return;
        if (found || !this.boxIsOpen()) event.preventDefault();
        if (!found || this.boxIsOpen()) return;
        if (event.button === 2 || event.clientX || event.clientY) {
            this.pointer = { left: event.clientX, top: event.clientY };
            // A long touch is no press.
            const { down } = this;
            this.down = null;
            this.pressed = null;
            if (down) this.program.happen(happening.up, down.screen.number, down.control.index);
        }
        if (event.button === -1 || this.byKey) return; // by key: the screen has had it
        this.program.happen(happening.right, found.screen.number, found.control?.index ?? -1);
    }

    /** @param {Event} event @returns {{screen: Screen, control: Control, input: HTMLInputElement} | null} */
    fieldOf(event) {
        const found = this.at(event.target);
        if (found?.control?.kind !== "field" || !(event.target instanceof HTMLInputElement)) return null;
        return { screen: found.screen, control: found.control, input: event.target };
    }
    // What comes from a keyboard on the display, or from a menu of the browser.
    /** @param {InputEvent} event */
    beforeInput(event) {
        const field = this.fieldOf(event);
        if (!field || event.isComposing) return;
        const { screen, control } = field;
        const act = /** @type {Record<string, () => void>} */ ({
            insertText: () => this.program.happen(happening.commit, screen.number, -1, 0, 0, event.data ?? ""),
            insertLineBreak: () => this.press(screen, 13, "\r"),
            deleteContentBackward: () => this.press(screen, 8, "\b"),
            historyUndo: () => this.program.happen(happening.undo, screen.number, control.index),
            historyRedo: () => this.program.happen(happening.redo, screen.number, control.index),
        })[event.inputType];
        if (!act) return;
        event.preventDefault();
        act();
    }
    /** @param {Screen} screen @param {number} code @param {string} text */
    press(screen, code, text) {
        const number = 1000 + code;
        this.program.happen(happening.press, screen.number, code, 0, number, ` ${text}`);
        this.program.happen(happening.release, 0, -1, 0, number);
    }
    // What is being composed is the field's; what is handed over goes the way of keys.
    /** @param {CompositionEvent} event @param {boolean} begins */
    composing(event, begins) {
        const field = this.fieldOf(event);
        if (!field) return;
        if (begins) {
            field.input.dataset.composing = "true";
            return;
        }
        delete field.input.dataset.composing;
        const { screen, control, input } = field;
        input.value = control.look.text;
        input.setSelectionRange(control.look.caret, control.look.caret + control.look.selected);
        if (event.data) this.program.happen(happening.commit, screen.number, -1, 0, 0, event.data);
    }
    /** @param {InputEvent} event */
    edited(event) {
        const field = this.fieldOf(event);
        if (field && !event.isComposing && !field.input.dataset.composing) this.report(field);
    }
    selected() {
        const input = document.activeElement;
        const found = this.at(input);
        if (!(input instanceof HTMLInputElement) || found?.control?.kind !== "field") return;
        if (!input.dataset.composing) this.report({ screen: found.screen, control: found.control, input });
    }
    /** @param {{screen: Screen, control: Control, input: HTMLInputElement}} field */
    report({ screen, control, input }) {
        const start = input.selectionStart ?? 0;
        const length = (input.selectionEnd ?? start) - start;
        const { look } = control;
        if (input.value === look.text && start === look.caret && length === look.selected) return;
        this.program.happen(happening.edit, screen.number, control.index, start, length, input.value);
    }
    // Assistive tools, and a finger in a field, move the focus by themselves.
    /** @param {FocusEvent} event */
    focusIn(event) {
        const found = this.at(event.target);
        if (!found?.control || found.control.index === found.screen.focused || this.boxIsOpen()) return;
        this.program.happen(happening.focus, found.screen.number, found.control.index);
    }
}
