// Starts the program: its files, what the browser says of the player, and what it shows.
// @ts-check
import { openBox } from "./boxes.js";
import { Input } from "./input.js";
import { fontsReady } from "./lettering.js";
import { openMenu } from "./menus.js";
import { decoded } from "./photo.js";
import { Program, happening } from "./program.js";
import { Screens } from "./screens.js";
import { Sounds } from "./sounds.js";
import { Storage } from "./storage.js";
import { chooseFiles, fillTopics, watchDrops } from "./topics.js";
import { keepVersion } from "./version.js";

const here = new URL(".", import.meta.url).href;
const kFolder = "/files/";
const kBrought = "/brought/";

/** @type {import("./controls.js").Surroundings} */
const around = { colors: {}, pictures: here, photo: "", close: "", textSize: 1, reducedMotion: false };
/** @type {Program} */
let program;
/** @type {Screens} */
let screens;
/** @type {Input} */
let input;
const sounds = new Sounds(here);
/** The program's files as storage has them. @type {Map<string, Uint8Array>} */
let files = new Map();
let lostEarly = false;
const storage = new Storage({
    lost: () => {
        if (program && input) program.happen(happening.lost);
        else lostEarly = true;
    },
    changed: (path, bytes) => {
        if (bytes) files.set(path, bytes);
        else files.delete(path);
        if (bytes) program?.put(kFolder + path, bytes);
        else program?.forget(kFolder + path);
    },
});

/** @type {number | undefined} */
let alarm;
/** @param {number} after milliseconds; negative: no timer runs */
function setAlarm(after) {
    clearTimeout(alarm);
    alarm = after < 0 ? undefined : window.setTimeout(() => program.happen(happening.tick), after);
}

function isEnglish() {
    const known = navigator.languages.map((tag) => tag.slice(0, 2)).find((tag) => tag === "es" || tag === "en");
    return known !== "es";
}
/** Whether the program speaks English, by its marker. */
function speaksEnglish() {
    return files.has("English.txt");
}

const asked = {
    contrast: matchMedia("(prefers-contrast: more), (forced-colors: active)"),
    dark: matchMedia("(prefers-color-scheme: dark)"),
    reduced: matchMedia("(prefers-reduced-motion: reduce)"),
};
function tellPreferences() {
    const probe = document.createElement("div");
    probe.style.width = "1rem";
    probe.style.position = "absolute";
    document.body.append(probe);
    around.textSize = Math.min(2, Math.max(1, probe.getBoundingClientRect().width / 16));
    probe.remove();
    around.reducedMotion = asked.reduced.matches;
    document.documentElement.classList.toggle("dark", asked.dark.matches);
    document.documentElement.style.setProperty("--text-size", String(around.textSize));
    const bits = (asked.contrast.matches ? 1 : 0) + (asked.dark.matches ? 2 : 0) + (asked.reduced.matches ? 4 : 0);
    program.happen(happening.preferences, 0, -1, bits, Math.round(around.textSize * 100));
}
const room = { width: 0, height: 0 };
function tellRoom() {
    const { clientWidth, clientHeight } = document.documentElement;
    if (clientWidth <= 0 || clientHeight <= 0) return;
    // The keyboard of a phone comes and goes over the page.
    const typing = document.activeElement instanceof HTMLInputElement;
    if (typing && clientWidth === room.width && clientHeight < room.height) return;
    room.width = clientWidth;
    room.height = clientHeight;
    program.happen(happening.room, 0, -1, clientWidth, clientHeight);
    screens.fitAll();
}

/** @param {any} request @returns {{left: number, top: number}} */
function menuSpot(request) {
    const screen = screens.open.get(request.screen);
    const under = screen?.controls[request.under];
    if (under) {
        const place = under.element.getBoundingClientRect();
        return { left: place.left, top: place.bottom };
    }
    if (!input.byKey) return input.pointer;
    const focused = screen?.controls[screen.focused]?.element ?? screen?.root;
    const place = focused?.getBoundingClientRect() ?? new DOMRect();
    return { left: place.left + place.width / 2, top: place.top + place.height / 2 };
}

/** The files of the topics, in the program's language. @returns {Map<string, Uint8Array>} */
function topicFiles() {
    const folder = speaksEnglish() ? "Topics/" : "Temas/";
    return new Map(
        [...files]
            .filter(([path]) => path.startsWith(folder) && path.length > folder.length)
            .map(([path, bytes]) => [path.slice(folder.length), bytes]),
    );
}
/** Lets the player choose files to bring along. @param {(number: number) => void} close of the box that it is asked in */
function choose(close) {
    chooseFiles((chosen) => {
        close(0);
        setTimeout(() => bringFiles(chosen));
    });
}

/** What the player has brought along, by its whole path. @type {Map<string, Uint8Array>} */
const brought = new Map();
/** Puts files where the program reads them, and has it take them in. @param {File[]} chosen */
async function bringFiles(chosen) {
    const screen = screens.active();
    const names = [];
    for (const file of chosen) {
        const name = /^pic\.jpe?g$/i.test(file.name) ? "Pic.jpg" : file.name.replaceAll("/", "_");
        const bytes = new Uint8Array(await file.arrayBuffer());
        brought.set(kBrought + name, bytes);
        program.put(kBrought + name, bytes);
        names.push(name);
    }
    if (screen && names.length > 0) program.happen(happening.files, screen.number, -1, 0, 0, names.join("\n"));
}

/** @param {string} path @param {(number: number, text?: string) => void} answered */
function openPhoto(path, answered) {
    const bytes = path.startsWith(kFolder) ? files.get(path.slice(kFolder.length)) : brought.get(path);
    decoded(bytes ?? new Uint8Array()).then(
        ({ address, range }) => {
            URL.revokeObjectURL(around.photo);
            around.photo = address;
            answered(1, range.join(" "));
        },
        () => answered(0),
    );
}

/** A handler waits for a box, a menu, a sound or a picture.
 * @param {any} request @param {(number: number, text?: string) => void} answered */
function open(request, answered) {
    switch (request.box) {
        case "sound":
            return sounds.play(request.sound, () => answered(0));
        case "menu":
            openMenu(request, menuSpot(request), input.byKey, answered);
            return true;
        case "picture":
            openPhoto(request.path, answered);
            return true;
        case "clipboard":
            navigator.clipboard.readText().then(
                (text) => answered(1, text),
                () => answered(0),
            );
            return true;
        default:
            openBox(request, answered, {
                low: !screens.active()?.dialog && request.box !== "topics",
                icon: `${here}quillor.svg`,
                byKey: input?.byKey ?? false,
                fill: request.box === "topics" ? (form, close) => fillTopics(request, form, topicFiles(), () => choose(close)) : undefined,
            });
            return true;
    }
}

/** @param {any} request */
function command(request) {
    switch (request.command) {
        case "copy":
            navigator.clipboard.writeText(request.text).catch(() => {});
            break;
        case "manual":
            window.open(`${here}manual.html#${speaksEnglish() ? "en" : "es"}`, "_blank", "noopener");
            break;
        case "address":
            window.open(request.page + encodeURIComponent(request.sought), "_blank", "noopener");
            break;
        case "fullscreen":
            if (request.on) document.documentElement.requestFullscreen?.().catch(() => {});
            else if (document.fullscreenElement) document.exitFullscreen().catch(() => {});
            break;
        case "end":
        case "restart":
            storage.settled().then(() => {
                if (request.command === "end") window.close();
                location.reload();
            });
            break;
    }
}

/** What the compiled program calls. */
const called = {
    show: (/** @type {string} */ messages) => screens.show(JSON.parse(messages)),
    wait: (/** @type {string} */ text, /** @type {(answer: number) => void} */ wake, /** @type {any} */ stacks) => {
        const request = JSON.parse(text);
        program.wait(wake, stacks, ["sound", "picture"].includes(request.box), (answered) => open(request, answered));
    },
    get answer() {
        return program.answer;
    },
    copyOut: (/** @type {string} */ text) => program.copyOut(text),
    command: (/** @type {string} */ text) => command(JSON.parse(text)),
    keep: (/** @type {string} */ path, /** @type {Uint8Array} */ bytes, /** @type {boolean} */ isNew) => {
        files.set(path, bytes);
        storage.keep({ path, bytes, isNew });
    },
    drop: (/** @type {string} */ path) => {
        files.delete(path);
        storage.keep({ path, bytes: null, isNew: false });
    },
};

/** The topics that come with the game. @returns {Promise<Record<string, string>>} */
async function fetchPacks() {
    const answer = await fetch(`${here}packs.json`);
    return answer.ok ? answer.json() : {};
}

async function start() {
    const [{ default: compiled }, kept, packs] = await Promise.all([
        import(/** @type {string} */ ("./quillor.mjs")),
        storage.load(),
        fetchPacks().catch(() => ({})),
        fontsReady(),
    ]);
    files = kept;
    const module = await compiled({ page: called, locateFile: (/** @type {string} */ name) => here + name });
    program = new Program(module);
    screens = new Screens(around, {
        alarm: setAlarm,
        close: (screen) => program.happen(happening.close, screen.number),
    });
    for (const [path, bytes] of files) program.put(kFolder + path, bytes);
    for (const [path, text] of Object.entries(packs)) program.put(`${kBrought}packs/${path}`, Uint8Array.from(text, (byte) => byte.charCodeAt(0)));
    module._page_prepare(isEnglish() ? 1 : 0);
    tellPreferences();
    tellRoom();
    module._page_start();
    input = new Input(program, screens);
    for (const query of Object.values(asked)) query.addEventListener("change", tellPreferences);
    window.addEventListener("resize", tellRoom);
    watchDrops(() => screens.active() !== undefined && !input.boxIsOpen(), bringFiles);
    if (lostEarly) program.happen(happening.lost);
    document.documentElement.dataset.started = "true";
    keepVersion(here);
}

start();
