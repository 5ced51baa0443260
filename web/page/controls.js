// An element for each control, and how it looks.
// @ts-check
import { paintLine, paintPicture, paintShape } from "./drawings.js";
import { paintField, paintList } from "./entries.js";
import { fitted } from "./lettering.js";
import { drawn, symbol } from "./symbols.js";

/** What is told of a control; what has not changed is missing.
 * @typedef {{place?: number[], visible?: boolean, enabled?: boolean, name?: string, tip?: string,
 *   said?: number, checked?: boolean, look?: any, motion?: string}} Told */

/** From twips to pixels: of a twip, of the screen's corner, and of the window.
 * @typedef {{twip: number, left: number, top: number, width: number, height: number,
 *   screen: number[]}} Scale */

/** @typedef {{colors: Record<string, string>, pictures: string, photo: string, close: string, textSize: number,
 *   reducedMotion: boolean}} Surroundings */

const svgKinds = new Set(["shape", "line", "picture"]);
const buttonKinds = new Set(["button", "checkbox", "radio"]);

/** @param {any} known what the program has told of its kind */
function makeElement(known) {
    if (svgKinds.has(known.kind)) return drawn("svg", { "aria-hidden": "true" });
    if (buttonKinds.has(known.kind) && known.tab) return document.createElement("button");
    return document.createElement(known.kind === "field" ? "input" : "div");
}

export class Control {
    /** @param {any} known @param {number} index @param {Control | null} parent
     * @param {Surroundings} around */
    constructor(known, index, parent, around) {
        this.kind = /** @type {string} */ (known.kind);
        this.id = /** @type {string} */ (known.id);
        this.index = index;
        this.parent = parent;
        this.around = around;
        /** @type {any} */
        this.look = null;
        this.place = [0, 0, 0, 0];
        this.name = "";
        this.visible = false;
        this.shownSaid = 0;
        this.isButton = buttonKinds.has(this.kind);
        this.element = /** @type {HTMLElement & SVGElement} */ (makeElement(known));
        const { element } = this;
        element.classList.add("control", this.className());
        element.dataset.id = this.id;
        element.dataset.control = String(index);
        element.style.setProperty("--z", String(index + 1));
        element.toggleAttribute("hidden", true);
        this.giveRole(known);
    }

    className() {
        if (svgKinds.has(this.kind)) return this.kind === "picture" ? "picture" : "drawn";
        if (this.isButton) return "button";
        return { field: "field", list: "list", frame: "frame" }[this.kind] ?? "caption";
    }

    /** @param {any} known */
    giveRole(known) {
        const { element } = this;
        if (this.isButton) {
            if (known.tab) element.setAttribute("type", "button");
            else element.setAttribute("aria-hidden", "true");
            if (known.tab && this.kind !== "button") element.setAttribute("role", this.kind);
            if (known.menu) element.setAttribute("aria-haspopup", "menu");
        } else if (this.kind === "notification") {
            element.className = "spoken";
            element.setAttribute("role", "status");
            element.setAttribute("aria-live", "assertive");
            element.hidden = false;
        } else if (this.kind === "reader") {
            element.tabIndex = 0;
            element.setAttribute("role", "group");
        } else if (this.kind === "list") {
            element.tabIndex = 0;
            element.setAttribute("role", "listbox");
        } else if (this.kind === "field") {
            for (const [key, value] of Object.entries({
                type: "text",
                autocomplete: "off",
                autocapitalize: "characters",
                autocorrect: "off",
                spellcheck: "false",
                enterkeyhint: "done",
            }))
                element.setAttribute(key, value);
        }
    }

    /** Whether it fills its place with a ground of its own. */
    hasGround() {
        if (this.kind === "picture") return true;
        return !svgKinds.has(this.kind) || this.kind === "shape" ? Boolean(this.look?.back) : false;
    }
    /** Its place on the screen, in twips: left, top, right, bottom. @returns {number[]} */
    onScreen() {
        const [x, y] = this.parent ? this.parent.onScreen() : [0, 0];
        const [left, top, width, height] = this.place;
        return [x + left, y + top, x + left + width, y + top + height];
    }
    /** Where it goes on to the window's edges: across, and up and down. @param {Scale} scale */
    reaches(scale) {
        if (this.kind === "line" || !this.hasGround() || ["field", "list"].includes(this.kind))
            return [false, false];
        const [left, top, right, bottom] = this.onScreen();
        return [left <= 0 && right >= scale.screen[0], top <= 0 && bottom >= scale.screen[1]];
    }
    /** Its edges on whole pixels of the window. @param {Scale} scale @returns {number[]} */
    edges(scale) {
        const [left, top, right, bottom] = this.onScreen();
        const [across, down] = this.reaches(scale);
        const x = (/** @type {number} */ twips) => Math.round(scale.left + twips * scale.twip);
        const y = (/** @type {number} */ twips) => Math.round(scale.top + twips * scale.twip);
        return [
            across ? 0 : x(left),
            down ? 0 : y(top),
            across ? scale.width : x(right),
            down ? scale.height : y(bottom),
        ];
    }
    /** The corner of what it stands on, in pixels of the window. @param {Scale} scale */
    corner(scale) {
        if (!this.parent) return [0, 0];
        const [left, top] = this.parent.onScreen();
        const [across, down] = this.parent.reaches(scale);
        return [
            across ? 0 : scale.left + left * scale.twip,
            down ? 0 : scale.top + top * scale.twip,
        ];
    }

    /** Takes what has changed. @param {Told} told @param {Scale | null} scale */
    take(told, scale) {
        const { element } = this;
        if (told.place) this.setPlace(told.place);
        if (told.name !== undefined) this.name = told.name;
        if (told.tip !== undefined) this.setTip(told.tip.trim());
        if (told.look) this.look = told.look;
        if (told.visible !== undefined) {
            this.visible = told.visible;
            if (this.kind !== "notification") element.toggleAttribute("hidden", !told.visible);
        }
        if (told.enabled !== undefined) this.setEnabled(told.enabled);
        if (told.checked !== undefined && ["checkbox", "radio"].includes(this.kind))
            element.setAttribute("aria-checked", String(told.checked));
        if (scale && this.look) this.paint(scale);
        if (told.said !== undefined && this.kind === "notification") this.say(told.said);
        if (told.motion && scale && !this.around.reducedMotion) this.move(told.motion, scale);
    }

    /** @param {number[]} place */
    setPlace(place) {
        this.place = place;
        ["--x", "--y", "--w", "--h"].forEach((name, i) =>
            this.element.style.setProperty(name, String(place[i])),
        );
    }
    /** @param {string} tip */
    setTip(tip) {
        if (tip) this.element.setAttribute("title", tip);
        else this.element.removeAttribute("title");
    }
    /** @param {boolean} enabled */
    setEnabled(enabled) {
        const { element } = this;
        if (element instanceof HTMLButtonElement || element instanceof HTMLInputElement)
            element.disabled = !enabled;
        else if (this.kind === "frame") element.toggleAttribute("inert", !enabled);
    }

    /** @param {Scale} scale */
    paint(scale) {
        const [across, down] = this.reaches(scale);
        const [cornerX, cornerY] = across || down ? this.corner(scale) : [0, 0];
        this.element.classList.toggle("reaches-x", across);
        this.element.classList.toggle("reaches-y", down);
        this.element.style.setProperty("--reach-x", `${-cornerX}px`);
        this.element.style.setProperty("--reach-y", `${-cornerY}px`);
        switch (this.kind) {
            case "shape":
                return paintShape(this, scale);
            case "line":
                return paintLine(this, scale);
            case "picture":
                return paintPicture(this, scale);
            case "frame":
                this.element.style.backgroundColor = this.look.back ?? "";
                return undefined;
            case "field":
                return paintField(this, scale);
            case "list":
                return paintList(this);
            case "notification":
                return undefined;
            default:
                return this.paintLabel(scale);
        }
    }

    /** @param {Scale} scale */
    paintLabel(scale) {
        const { element, look } = this;
        const symbolic = look.face === "web" || look.face === "wing";
        element.classList.toggle("left", look.align === 0);
        element.classList.toggle("right", look.align === 2);
        element.classList.toggle("wrap", look.wrap);
        element.classList.toggle("faded", look.faded);
        element.style.backgroundColor = look.back ?? "";
        element.style.setProperty("--radius", String(look.radius));
        /** @type {Element[]} */
        const parts = [];
        if (look.caption && symbolic) parts.push(this.symbolOf(look));
        else if (look.caption) parts.push(this.wordsOf(look, scale));
        this.setSpoken(parts, look.caption && !symbolic ? look.caption : "");
        element.replaceChildren(...parts);
    }

    // A name that differs from what is seen is told in its place.
    /** @param {Element[]} parts @param {string} seen */
    setSpoken(parts, seen) {
        const { element, name } = this;
        const hidden = element.getAttribute("aria-hidden") === "true";
        if (this.isButton || this.kind === "reader") {
            if (!name || hidden) return element.removeAttribute("aria-label");
            // Who commands by voice says what is seen.
            const told = name.toUpperCase().includes(seen.toUpperCase()) ? name : `${seen}, ${name}`;
            return element.setAttribute("aria-label", told);
        }
        for (const part of parts) part.toggleAttribute("aria-hidden", false);
        if (!name || name === seen) return undefined;
        for (const part of parts) part.setAttribute("aria-hidden", "true");
        const spoken = document.createElement("span");
        spoken.className = "spoken";
        spoken.textContent = name;
        parts.push(spoken);
        return undefined;
    }

    /** @param {any} look */
    symbolOf(look) {
        const picture = symbol(look.face, look.caption, look.ink);
        picture.classList.add("symbol");
        const size = Math.min(look.size * 20, this.place[2], this.place[3]);
        picture.style.setProperty("--symbol", String(size));
        return picture;
    }

    /** @param {any} look @param {Scale} scale */
    wordsOf(look, scale) {
        const text = document.createElement("span");
        text.className = `text ${look.face}`;
        const fit = fitted(look, this.place[2], this.place[3], scale.twip);
        text.style.setProperty("--size", String(fit.size));
        text.style.setProperty("--high", String(fit.high));
        text.style.setProperty("--rise", String(fit.rise));
        text.style.fontWeight = look.bold ? "700" : "400";
        text.style.color = look.ink;
        if (look.share > 0) {
            const reach = Math.max(1.5, (fit.size * 20 * scale.twip) / 13);
            const strength = Math.round(look.share * 255).toString(16).padStart(2, "0");
            text.style.setProperty("-webkit-text-stroke", `${2 * reach}px ${look.edge}${strength}`);
        }
        if (look.access < 0) {
            text.textContent = look.caption;
        } else {
            const mark = document.createElement("u");
            mark.textContent = look.caption.charAt(look.access);
            text.append(look.caption.slice(0, look.access), mark, look.caption.slice(look.access + 1));
        }
        return text;
    }

    // What a reader is told in the midst of other changes it drops: it is said behind them.
    /** @param {number} said */
    say(said) {
        if (said === this.shownSaid) return;
        this.shownSaid = said;
        const { element, name } = this;
        element.textContent = "";
        setTimeout(() => {
            element.textContent = name;
        }, 50);
    }

    /** A short movement that ends where the control stands.
     * @param {string} motion @param {Scale} scale */
    move(motion, scale) {
        const height = this.place[3] * scale.twip;
        /** @type {Keyframe[]} */
        const frames = [];
        const steps = 18;
        for (let i = 0; i <= steps; ++i) {
            const left = 1 - i / steps;
            frames.push({
                transform:
                    motion === "shake"
                        ? `translateX(${0.14 * height * left * Math.sin((1 - left) * 6 * Math.PI)}px)`
                        : `translateY(${0.35 * height * left * left}px)`,
            });
        }
        this.element.animate(frames, { duration: motion === "shake" ? 300 : 180 });
    }
}
