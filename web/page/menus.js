// Popup menus, by mouse, touch and keys.
// @ts-check
import { drawn, symbol } from "./symbols.js";

/** @typedef {{left: number, top: number}} Spot */

/** @param {any} known */
function check(known) {
    const box = drawn("svg", { viewBox: "0 0 1 1", class: "check", "aria-hidden": "true" });
    if (!known.checkable) return box;
    const round = known.radio ? 0.5 : 0.25;
    const ground = drawn("rect", { x: 0.037, y: 0.037, width: 0.926, height: 0.926, rx: round });
    ground.style.fill = known.checked ? "var(--accent)" : "var(--white)";
    ground.style.stroke = known.checked ? "var(--white)" : "var(--edge-color)";
    ground.setAttribute("stroke-width", "0.073");
    box.append(ground);
    if (known.checked && known.radio) {
        const dot = drawn("circle", { cx: 0.5, cy: 0.5, r: 0.19 });
        dot.style.fill = "var(--white)";
        box.append(dot);
    } else if (known.checked) {
        const mark = symbol("web", "a", "#fff");
        for (const [key, value] of Object.entries({ x: 0.125, y: 0.125, width: 0.75, height: 0.75 }))
            mark.setAttribute(key, String(value));
        box.append(mark);
    }
    return box;
}

class Menu {
    /** @param {any} known @param {HTMLElement} room @param {Menu | null} outer
     * @param {(number: number) => void} choose */
    constructor(known, room, outer, choose) {
        this.outer = outer;
        this.room = room;
        this.choose = choose;
        /** @type {Menu | null} */
        this.inner = null;
        this.element = document.createElement("ul");
        this.element.className = "menu";
        this.element.setAttribute("role", "menu");
        this.element.setAttribute("aria-label", known.caption);
        /** @type {HTMLButtonElement[]} */
        this.entries = [];
        for (const each of known.entries) this.add(each);
        room.append(this.element);
    }
    /** @param {any} known */
    add(known) {
        const row = document.createElement("li");
        this.element.append(row);
        if (!known.caption) {
            row.setAttribute("role", "separator");
            row.append(document.createElement("hr"));
            return;
        }
        row.setAttribute("role", "none");
        const entry = document.createElement("button");
        entry.type = "button";
        entry.className = "entry";
        entry.tabIndex = -1;
        entry.dataset.entry = known.id;
        const role = known.radio ? "menuitemradio" : known.checkable ? "menuitemcheckbox" : "menuitem";
        entry.setAttribute("role", role);
        if (known.checkable) entry.setAttribute("aria-checked", String(known.checked));
        if (!known.enabled) entry.setAttribute("aria-disabled", "true");
        const words = document.createElement("span");
        words.className = "words";
        words.textContent = known.caption;
        entry.append(check(known), words);
        if (known.shortcut) {
            const shortcut = document.createElement("span");
            shortcut.className = "shortcut";
            shortcut.setAttribute("aria-hidden", "true");
            shortcut.textContent = known.shortcut;
            entry.setAttribute("aria-keyshortcuts", known.shortcut.replace("Ctrl", "Control"));
            entry.append(shortcut);
        }
        if (known.entries) {
            const further = symbol("web", "4", "currentColor");
            further.classList.add("further");
            entry.append(further);
            entry.setAttribute("aria-haspopup", "menu");
        }
        const act = () => {
            if (!known.enabled) return;
            if (known.entries) this.openInner(known, entry);
            else this.choose(known.number);
        };
        entry.addEventListener("click", act);
        entry.addEventListener("pointerenter", (event) => {
            if (event.pointerType !== "mouse") return;
            entry.focus({ preventScroll: true });
            this.closeInner();
            if (known.entries && known.enabled) this.openInner(known, entry, false);
        });
        row.append(entry);
        this.entries.push(entry);
    }
    /** @param {Spot} spot */
    place(spot) {
        const { width, height } = this.element.getBoundingClientRect();
        const left = Math.max(0, Math.min(spot.left, window.innerWidth - width));
        const top = Math.max(0, Math.min(spot.top, window.innerHeight - height));
        this.element.style.left = `${left}px`;
        this.element.style.top = `${top}px`;
    }
    /** @param {any} known @param {HTMLButtonElement} entry @param {boolean} [enter] */
    openInner(known, entry, enter = true) {
        this.closeInner();
        this.inner = new Menu(known, this.room, this, this.choose);
        const at = entry.getBoundingClientRect();
        const room = this.inner.element.getBoundingClientRect().width;
        const beside = at.right + room <= window.innerWidth ? at.right : Math.max(0, at.left - room);
        this.inner.place({ left: beside, top: at.top - 6 });
        if (enter) this.inner.entries[0]?.focus();
    }
    closeInner() {
        this.inner?.closeInner();
        this.inner?.element.remove();
        this.inner = null;
    }
    /** @param {number} by */
    step(by) {
        const at = this.entries.indexOf(/** @type {HTMLButtonElement} */ (document.activeElement));
        const count = this.entries.length;
        const to = at < 0 ? (by > 0 ? 0 : count - 1) : (at + by + count) % count;
        this.entries[to]?.focus();
    }
}

/** Opens a menu and tells the number of the entry that was chosen, or 0.
 * @param {any} request @param {Spot} spot @param {boolean} byKey
 * @param {(number: number) => void} answered */
export function openMenu(request, spot, byKey, answered) {
    const before = document.activeElement;
    const room = document.createElement("dialog");
    room.className = "menu-room";
    room.setAttribute("aria-label", request.caption);
    document.body.append(room);
    let done = false;
    const finish = (/** @type {number} */ number) => {
        if (done) return;
        done = true;
        room.close();
        room.remove();
        if (before instanceof HTMLElement || before instanceof SVGElement) before.focus({ preventScroll: true });
        answered(number);
    };
    const menu = new Menu(request, room, null, finish);
    room.showModal();
    menu.place(spot);
    room.addEventListener("cancel", (event) => {
        event.preventDefault();
        finish(0);
    });
    room.addEventListener("pointerdown", (event) => {
        if (event.target === room) finish(0);
    });
    room.addEventListener("contextmenu", (event) => event.preventDefault());
    const deepest = () => {
        let found = menu;
        while (found.inner?.element.contains(document.activeElement)) found = found.inner;
        return found;
    };
    room.addEventListener("keydown", (event) => {
        event.stopPropagation();
        const at = deepest();
        const focused = /** @type {HTMLElement} */ (document.activeElement);
        const acts = /** @type {Record<string, () => void>} */ ({
            ArrowDown: () => at.step(1),
            ArrowUp: () => at.step(-1),
            Home: () => at.entries[0]?.focus(),
            End: () => at.entries[at.entries.length - 1]?.focus(),
            ArrowRight: () => focused.getAttribute("aria-haspopup") && focused.click(),
            ArrowLeft: () => at.outer && leave(at),
            Escape: () => (at.outer ? leave(at) : finish(0)),
            Tab: () => finish(0),
            F10: () => finish(0),
            Enter: () => focused.click(),
            " ": () => focused.click(),
        });
        const act = acts[event.key] ?? (() => seek(at, event.key));
        event.preventDefault();
        act();
    });
    room.addEventListener("keyup", (event) => event.stopPropagation());
    if (byKey) menu.entries[0]?.focus();
    else room.focus();
}

/** @param {Menu} inner */
function leave(inner) {
    const { outer } = inner;
    if (!outer) return;
    const opener = outer.entries.find((entry) => entry.getAttribute("aria-label") === inner.element.getAttribute("aria-label") ||
        entry.querySelector(".words")?.textContent === inner.element.getAttribute("aria-label"));
    outer.closeInner();
    opener?.focus();
}

/** The next entry that begins with that letter. @param {Menu} menu @param {string} key */
function seek(menu, key) {
    if (key.length !== 1) return;
    const at = menu.entries.indexOf(/** @type {HTMLButtonElement} */ (document.activeElement));
    const order = [...menu.entries.slice(at + 1), ...menu.entries.slice(0, at + 1)];
    order.find((entry) => entry.textContent?.trim().toUpperCase().startsWith(key.toUpperCase()))?.focus();
}
