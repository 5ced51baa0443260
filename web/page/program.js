// The program, compiled, as functions: every event goes in here, one after the other.
// @ts-check

/** What happens in the page, by the numbers that the program knows. */
export const happening = Object.freeze({
    room: 0,
    preferences: 1,
    tick: 2,
    press: 3,
    release: 4,
    commit: 5,
    letGo: 6,
    over: 7,
    down: 8,
    up: 9,
    click: 10,
    activate: 11,
    right: 12,
    edit: 13,
    undo: 14,
    redo: 15,
    focus: 16,
    select: 17,
    double: 18,
    close: 19,
    files: 20,
    lost: 21,
});

/** Who deals with a key that was pressed. */
export const rest = Object.freeze({ none: 0, field: 1, list: 2, taken: 4 });

/** A handler that waits for an answer: innermost last. Its stack has been put aside.
 * @typedef {{wake: (answer: number) => void, quiet: boolean, stack: unknown,
 *   answered: {number: number, text: string} | null}} Waiting */

export class Program {
    /** @param {any} module the compiled program */
    constructor(module) {
        this.module = module;
        this.answer = "";
        /** @type {Waiting[]} */
        this.waiting = [];
        /** @type {(() => void)[]} */
        this.kept = [];
        this.waits = 0;
        /** @type {{currData: unknown} | null} */
        this.stacks = null;
    }

    /** Whether a sound is played, during which no event is delivered. */
    get isBusy() {
        return this.waiting.length > 0 && this.waiting[this.waiting.length - 1].quiet;
    }

    /** Does something at once, or when the sound that is played is over. @param {() => void} act */
    later(act) {
        if (this.isBusy) this.kept.push(act);
        else act();
    }

    /** Delivers an event, at once or when the sound that is played is over.
     * @param {number} what @param {number} screen @param {number} [control]
     * @param {number} [a] @param {number} [b] @param {string} [text]
     * @returns {number} what the program answers; `rest.taken` where it does so later */
    happen(what, screen = 0, control = -1, a = 0, b = 0, text = "") {
        if (this.isBusy) {
            this.kept.push(() => this.happen(what, screen, control, a, b, text));
            return rest.taken;
        }
        const waits = this.waits;
        const copy = text ? this.copyOut(text) : 0;
        const answer = this.module._page_event(what, screen, control, a, b, copy);
        // A handler that waits comes back to its text.
        if (this.waits !== waits) return rest.taken;
        if (copy) this.module._free(copy);
        return answer;
    }

    /** A text in the program's memory. @param {string} text @returns {number} */
    copyOut(text) {
        const size = 2 * text.length + 2;
        const at = this.module._malloc(size);
        this.module.stringToUTF16(text, at, size);
        return at;
    }

    /** @param {string} path @param {Uint8Array} bytes */
    put(path, bytes) {
        const name = new TextEncoder().encode(`${path}\0`);
        const at = this.module._malloc(name.length + bytes.length);
        this.module.HEAPU8.set(name, at);
        this.module.HEAPU8.set(bytes, at + name.length);
        this.module._page_put(at, at + name.length, bytes.length);
        this.module._free(at);
    }
    /** @param {string} path */
    forget(path) {
        const name = new TextEncoder().encode(`${path}\0`);
        const at = this.module._malloc(name.length);
        this.module.HEAPU8.set(name, at);
        this.module._page_forget(at);
        this.module._free(at);
    }

    /** A handler waits until `answered` is called. The innermost one goes on first.
     * @param {(answer: number) => void} wake
     * @param {{currData: unknown}} stacks the compiler's own, which knows one stack at a time
     * @param {boolean} quiet whether no event may be delivered meanwhile
     * @param {(answered: (number: number, text?: string) => void) => boolean} open returns
     *   whether there is anything to wait for */
    wait(wake, stacks, quiet, open) {
        this.stacks = stacks;
        /** @type {Waiting} */
        const waiting = { wake, quiet, stack: undefined, answered: null };
        const isOpen = open((number, text = "") => {
            waiting.answered ??= { number, text };
            this.goOn();
        });
        if (!isOpen) {
            wake(0);
            return;
        }
        this.waits += 1;
        this.waiting.push(waiting);
        // By then the compiler has put it aside.
        queueMicrotask(() => {
            waiting.stack = stacks.currData;
            this.goOn();
        });
    }
    goOn() {
        for (;;) {
            const last = this.waiting[this.waiting.length - 1];
            if (!last?.answered || last.stack === undefined) break;
            this.waiting.pop();
            this.answer = last.answered.text;
            if (this.stacks) this.stacks.currData = last.stack;
            last.wake(last.answered.number);
        }
        while (!this.isBusy) {
            const next = this.kept.shift();
            if (!next) break;
            next();
        }
    }
}
