// The open screens: each an element with its controls, the last of the large ones on show, and
// those that stand over another one as dialogs.
// @ts-check
import { Control } from "./controls.js";
import { drawPaper } from "./paper.js";
import { drawn } from "./symbols.js";

/** @typedef {import("./controls.js").Scale} Scale */
/** @typedef {import("./controls.js").Surroundings} Surroundings */

export class Screen {
    /** @param {any} told @param {Surroundings} around @param {(screen: Screen) => void} onClose */
    constructor(told, around, onClose) {
        this.number = /** @type {number} */ (told.screen);
        this.name = /** @type {string} */ (told.name);
        this.around = around;
        this.size = [0, 0];
        this.sheet = [1, 1];
        this.focused = -1;
        /** @type {Scale | null} */
        this.scale = null;
        this.root = document.createElement(told.over ? "div" : "main");
        this.root.className = "screen";
        this.root.dataset.screen = String(this.number);
        this.root.dataset.name = this.name;
        this.root.tabIndex = -1;
        this.root.style.outline = "none";
        this.heading = document.createElement("h1");
        this.heading.className = "spoken";
        this.paper = drawn("svg", { "aria-hidden": "true", class: "drawn" });
        this.root.append(this.heading, this.paper);
        this.dialog = told.over ? this.makeDialog(onClose) : null;
        /** @type {Control[]} */
        this.controls = [];
        told.controls.forEach((/** @type {any} */ known, /** @type {number} */ i) => {
            const parent = known.parent >= 0 ? this.controls[known.parent] : null;
            const control = new Control(known, i, parent, around);
            this.controls.push(control);
            (parent ? parent.element : this.root).append(control.element);
        });
    }

    /** @param {(screen: Screen) => void} onClose */
    makeDialog(onClose) {
        const dialog = document.createElement("dialog");
        dialog.className = "over";
        const bar = document.createElement("div");
        bar.className = "bar";
        this.barTitle = document.createElement("span");
        this.barTitle.setAttribute("aria-hidden", "true");
        this.closer = document.createElement("button");
        this.closer.type = "button";
        this.closer.textContent = "✕";
        this.closer.tabIndex = -1;
        this.closer.addEventListener("click", () => onClose(this));
        bar.append(this.barTitle, this.closer);
        dialog.append(bar, this.root);
        dialog.addEventListener("cancel", (event) => {
            event.preventDefault();
            onClose(this);
        });
        return dialog;
    }

    /** @param {any} told */
    takeScreen(told) {
        this.size = told.size;
        this.sheet = told.sheet;
        this.heading.textContent = told.title || "Quillor";
        this.title = told.title;
        this.root.toggleAttribute("inert", !told.enabled);
        if (this.dialog) {
            this.dialog.setAttribute("aria-label", told.title);
            if (this.barTitle) this.barTitle.textContent = told.title;
            this.closer?.setAttribute("aria-label", this.around.close);
        }
    }

    /** The largest scale at which its sheet fits: in the middle, unless it has a bar along its
     * top, which hangs from the window's.
     * @param {Screen | null} below the one that it stands over */
    fit(below) {
        const room = this.room(below);
        const twip = Math.min(room.width / this.sheet[0], room.height / this.sheet[1]);
        const [width, height] = this.dialog
            ? [this.sheet[0] * twip, this.sheet[1] * twip]
            : [room.width, room.height];
        this.scale = {
            twip,
            left: Math.floor((width - this.size[0] * twip) / 2),
            top: Math.floor((height - this.size[1] * twip) / 2),
            width,
            height,
            screen: this.size,
        };
        if (this.controls.some((control) => this.isHeadBar(control))) this.scale.top = 0;
        const { style } = this.root;
        for (const [name, value] of Object.entries({
            "--ox": this.scale.left,
            "--oy": this.scale.top,
            "--twip": twip,
            "--ww": width,
            "--wh": height,
        }))
            style.setProperty(name, `${value}px`);
        if (this.dialog) {
            style.width = `${width}px`;
            style.height = `${height}px`;
            this.dialog.style.setProperty("--twip", `${twip}px`);
        }
        drawPaper(this.paper, { left: 0, top: 0, width, height }, this.scale.top, twip, this.around.colors, null, "");
        for (const control of this.controls) if (control.look) control.paint(this.scale);
        this.order();
    }
    /** @param {Screen | null} below */
    room(below) {
        const width = document.documentElement.clientWidth;
        const height = document.documentElement.clientHeight;
        if (!this.dialog) return { width, height };
        const twip = below?.scale?.twip ?? 1;
        const bar = 2.5 * Math.max(14, 240 * twip);
        const edge = 2;
        // A window can be lower than the bar alone.
        return {
            width: Math.max(1, Math.min(width - edge, this.sheet[0] * twip)),
            height: Math.max(1, Math.min(height - bar - edge, this.sheet[1] * twip)),
        };
    }
    /** @param {Control} control */
    isHeadBar(control) {
        if (!control.visible || !control.hasGround() || control.kind === "field") return false;
        const [left, top, right, bottom] = control.onScreen();
        return top <= 0 && bottom < this.size[1] && left <= 0 && right >= this.size[0];
    }

    /** Elements follow each other as they are read; what is in front is told by their depth. */
    order() {
        const byParent = new Map();
        for (const control of this.controls) {
            const siblings = byParent.get(control.parent) ?? [];
            siblings.push(control);
            byParent.set(control.parent, siblings);
        }
        const focused = document.activeElement;
        for (const [parent, siblings] of byParent) {
            const wanted = inReadingOrder(siblings).map((control) => control.element);
            const room = parent ? parent.element : this.root;
            const now = [...room.children].filter((child) => child.classList.contains("control") || child.classList.contains("spoken"));
            const known = now.filter((child) => child !== this.heading);
            if (wanted.every((element, i) => element === known[i])) continue;
            room.append(...wanted);
        }
        if (focused instanceof HTMLElement && focused !== document.activeElement) focused.focus({ preventScroll: true });
    }

    /** @param {number} index */
    focus(index) {
        this.focused = index;
        const element = index < 0 ? this.root : this.controls[index].element;
        if (document.activeElement !== element) element.focus({ preventScroll: true });
        const control = this.controls[index];
        if (control?.kind === "field" && control.look) control.paint(/** @type {Scale} */ (this.scale));
    }
}

/** Row by row from the top, each row from the left.
 * @param {Control[]} controls */
function inReadingOrder(controls) {
    const top = (/** @type {Control} */ c) => (c.kind === "line" && c.look ? c.look.span[1] : c.place[1]);
    const left = (/** @type {Control} */ c) => c.place[0];
    const sorted = [...controls].sort((a, b) => top(a) - top(b) || left(a) - left(b) || a.index - b.index);
    /** @type {Control[]} */
    const ordered = [];
    while (sorted.length > 0) {
        const [first] = sorted;
        const row = sorted.filter(
            (each) => each === first || (each.place[3] > 0 && Math.abs(top(each) - top(first)) <= Math.min(each.place[3], first.place[3]) / 2),
        );
        row.sort((a, b) => left(a) - left(b) || a.index - b.index);
        for (const each of row) sorted.splice(sorted.indexOf(each), 1);
        ordered.push(...row);
    }
    return ordered;
}

export class Screens {
    /** @param {Surroundings} around
     * @param {{alarm: (after: number) => void, close: (screen: Screen) => void}} tell */
    constructor(around, tell) {
        this.around = around;
        this.tell = tell;
        /** @type {Map<number, Screen>} */
        this.open = new Map();
        /** @type {Map<number, number>} */
        this.below = new Map();
        this.front = 0;
    }

    /** The screen that takes the player's input. @returns {Screen | undefined} */
    active() {
        let found = this.open.get(this.front);
        for (const screen of this.open.values()) if (screen.dialog?.open) found = screen;
        return found;
    }
    /** @param {Screen} screen @returns {Screen | null} */
    under(screen) {
        return this.open.get(this.below.get(screen.number) ?? 0) ?? null;
    }

    /** Shows what the program tells of. @param {any[]} messages */
    show(messages) {
        /** @type {Set<Screen>} */
        const fresh = new Set();
        /** @type {Set<Screen>} */
        const moved = new Set();
        let focus = null;
        for (const told of messages) {
            const screen = this.open.get(told.screen);
            switch (told.tell) {
                case "colors":
                    this.setColors(told);
                    for (const each of this.open.values()) fresh.add(each);
                    break;
                case "language":
                    this.around.close = told.close;
                    document.documentElement.lang = told.english ? "en" : "es";
                    break;
                case "open":
                    fresh.add(this.add(told));
                    break;
                case "screen":
                    screen?.takeScreen(told);
                    if (screen) fresh.add(screen);
                    break;
                case "set":
                    screen?.controls[told.control].take(told, fresh.has(screen) ? null : screen.scale);
                    if (told.place && screen) moved.add(screen);
                    break;
                case "focus":
                    if (screen) screen.focused = told.control;
                    focus = told;
                    break;
                case "front":
                    this.front = told.screen;
                    break;
                case "close":
                    this.remove(told.screen);
                    break;
                case "alarm":
                    this.tell.alarm(told.after);
                    break;
            }
        }
        for (const screen of fresh) if (this.open.has(screen.number)) screen.fit(this.under(screen));
        for (const screen of moved) if (!fresh.has(screen)) this.repaintMoved(screen);
        this.turn();
        if (focus || fresh.size > 0 || !this.hasFocus()) this.giveFocus();
    }
    hasFocus() {
        return document.activeElement !== document.body && document.activeElement !== null;
    }
    giveFocus() {
        const screen = this.active();
        if (!screen || document.querySelector("dialog.box[open], dialog.menu-room[open]")) return;
        screen.focus(screen.focused);
    }

    // What is drawn by pixels moves with the frame that it stands on.
    /** @param {Screen} screen */
    repaintMoved(screen) {
        for (const control of screen.controls)
            if (control.parent && control.look && screen.scale && control.element instanceof SVGElement)
                control.paint(screen.scale);
    }

    /** @param {any} told */
    add(told) {
        const screen = new Screen(told, this.around, this.tell.close);
        this.open.set(screen.number, screen);
        this.below.set(screen.number, told.over);
        screen.root.hidden = !screen.dialog;
        document.body.append(screen.dialog ?? screen.root);
        return screen;
    }
    /** @param {number} number */
    remove(number) {
        const screen = this.open.get(number);
        if (!screen) return;
        this.open.delete(number);
        screen.dialog?.close();
        (screen.dialog ?? screen.root).remove();
    }
    turn() {
        for (const screen of this.open.values()) {
            if (screen.dialog) {
                if (!screen.dialog.open) screen.dialog.showModal();
            } else {
                screen.root.hidden = screen.number !== this.front;
            }
        }
        const title = this.active()?.title;
        if (title !== undefined && document.title !== (title || "Quillor")) document.title = title || "Quillor";
        const scale = this.open.get(this.front)?.scale;
        if (scale) document.documentElement.style.setProperty("--twip", `${scale.twip}px`);
    }
    fitAll() {
        for (const screen of this.open.values()) screen.fit(this.under(screen));
        this.turn();
    }

    /** @param {Record<string, string>} told */
    setColors(told) {
        Object.assign(this.around.colors, told);
        const names = /** @type {Record<string, string>} */ ({
            "--paper": told.paper,
            "--box-ink": told.boxInk,
            "--white": told.white,
            "--white-ink": told.whiteInk,
            "--quiet": told.quiet,
            "--edge-color": told.edge,
            "--fine-edge": told.fineEdge,
            "--hovered-row": told.hoveredRow,
            "--accent": told.accent,
            "--selection": told.selection,
        });
        for (const [name, value] of Object.entries(names))
            document.documentElement.style.setProperty(name, value);
    }
}
