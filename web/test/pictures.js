// Pictures of the page in the states in which the window's tour leaves its own, by the same
// names: node web/test/pictures.js FOLDER LANGUAGE [WIDTH HEIGHT], of which "es" and "en" are
// spoken
import { mkdirSync } from "node:fs";
import { join } from "node:path";
import { Player, played } from "./player.js";

const [, , folder, language, width = "1320", height = "810"] = process.argv;
const size = { width: Number(width), height: Number(height) };
mkdirSync(join(folder, "over"), { recursive: true });

// What the tour types, and its one topic.
const spoken = {
    en: {
        phrase: "route 66 tour", rest: "oute6r", topic: "journeys", answer: "a small cafe", letters: "lm",
        ownTopic: "fruits", ownPhrases: ["pear", "green grape", "peach"],
        victory: "VICTORY", dead: "DEAD", title: "ROUND THE CORNER",
        files: { "English.txt": "", "Topics/": "", "Topics/CORNER.txt": ["ROUND THE CORNER", "a small cafe", "a small café"] },
    },
    es: {
        phrase: "ruta 66 al sur", rest: "arutls6", topic: "viajes", answer: "solo la luna", letters: "ln",
        ownTopic: "frutas", ownPhrases: ["pera", "uva verde", "durazno"],
        victory: "VICTORIA", dead: "MUERTO", title: "EN EL CIELO",
        files: { "Temas/": "", "Temas/LUNA.txt": ["\ufeffEN EL CIELO [español]", "solo la luna", "sólo la luna"] },
    },
};
const words = spoken[language];
const wrong = "xyzwvk";
// Only that topic: the packs count as laid out already.
const packs = await played({ files: {} }, async (player) => {
    await player.screen("frmMenu");
    await player.settled();
    return (await player.getFiles())["Quillor-Packs.txt"];
});
const files = { "Quillor-Packs.txt": packs };
for (const [path, lines] of Object.entries(words.files)) files[path] = lines && `${lines.join("\r\n")}\r\n`;

async function take(player, name) {
    // What moves comes to rest.
    await new Promise((resolve) => setTimeout(resolve, 900));
    await player.page.screenshot({ path: join(folder, `${name}.png`) });
    // What stands over a screen, again by itself: where a window's stands its desktop decides.
    const place = await player.page.evaluate(() => {
        const over = [...document.querySelectorAll(".over[open] > .screen, .box[open], .menu")].pop();
        return over ? over.getBoundingClientRect().toJSON() : null;
    });
    // A page's menu "View" has one more entry.
    if (place && name !== "view-menu") await player.page.screenshot({ path: join(folder, "over", `${name}.png`), clip: place, captureBeyondViewport: false });
}
/** A picture with the mouse nowhere. */
async function picture(player, name) {
    await player.page.mouse.move(size.width - 1, size.height - 1);
    await take(player, name);
}
/** Pictures with the mouse over a control and pressed on it, which is let go elsewhere. */
async function hovered(player, id, name, pressed) {
    const place = await player.placeOf(id);
    await player.page.mouse.move(place.x + place.width / 2, place.y + place.height / 2, { steps: 3 });
    await take(player, name);
    await player.page.mouse.down();
    await take(player, pressed);
    await player.page.mouse.move(size.width - 1, size.height - 1);
    await player.page.mouse.up();
}

// Its timers stand still once the line is where the tour waits for it.
function stopHalfway() {
    const half = 3860 - 1920;
    const wait = window.setTimeout;
    window.setTimeout = (act, ...rest) => {
        const line = document.querySelector("[data-id='lnGo'] line");
        const twip = line && parseFloat(line.closest(".screen").style.getPropertyValue("--twip"));
        const isThere = line && (line.x2.baseVal.value - line.x1.baseVal.value) / twip >= half;
        document.documentElement.dataset.halfway = String(Boolean(isThere));
        return isThere && String(act).includes("happening.tick") ? 0 : wait(act, ...rest);
    };
}

async function menuAndClassicGame(player) {
    await player.screen("frmMenu");
    await picture(player, "menu");
    await hovered(player, "lblOption(5)", "menu-hover", "menu-pressed");
    await player.press("c");
    await player.screen("frmGame");
    await picture(player, "game-idle");
    await player.press("Enter");
    await player.screen("frmWord1");
    await player.type(words.phrase);
    await player.press("Enter");
    await player.type(words.topic);
    await picture(player, "classic-entry");
    await player.press("Enter");
    await player.screen("frmGame");
    await picture(player, "game-with-first-letter");
    await hovered(player, "lblKey(19)", "key-hover", "key-pressed");
    await player.click("lblKey(38)");
    await picture(player, "game-digits");
    await player.guess(words.rest);
    await player.says("lblStatus", words.victory);
    await picture(player, "classic-victory");
    await player.press("F2");
}

async function openSelection(player) {
    // The button is there once the score has been counted.
    let before = "";
    for (let now = await player.textOf("lblScore"); now !== before; now = await player.textOf("lblScore")) {
        before = now;
        await new Promise((resolve) => setTimeout(resolve, 1500));
    }
    await player.press("Enter");
    await player.screen("frmWord2");
    await player.press("ArrowUp");
}
async function startArcade(player) {
    await openSelection(player);
    await player.press("Enter");
    await player.says("lblTopic", words.title);
}
async function withControl(player, key) {
    await player.page.keyboard.down("Control");
    await player.press(key);
    await player.page.keyboard.up("Control");
}
async function leave(player, name) {
    await player.press("F2");
    await player.page.waitForSelector("dialog[data-box='question']");
    if (name) await picture(player, name);
    await player.answer("question");
    await player.screen("frmMenu");
}

async function lostGame(player) {
    await player.screen("frmMenu");
    await player.press("a");
    await player.screen("frmGame");
    await withControl(player, "s");
    await openSelection(player);
    await picture(player, "topic-selection");
    await player.press("Enter");
    await player.says("lblTopic", words.title);
    await player.guess(`l${wrong.slice(0, 3)}`);
    await picture(player, "game-three-mistakes");
    await player.press("ContextMenu");
    await player.page.waitForSelector("dialog.menu-room .menu");
    await picture(player, "game-menu");
    await player.press("Escape");
    await player.guess(wrong.slice(3));
    await player.says("lblStatus", words.dead);
    await picture(player, "low-score");
}

async function wonGame(player) {
    await startArcade(player);
    await player.press("!");
    await player.page.waitForSelector("dialog[data-box='input']");
    await picture(player, "answer-box");
    await player.type(words.answer);
    await player.press("Enter");
    await picture(player, "victory");
    await player.click("lblView");
    await player.page.waitForSelector("dialog.menu-room .menu");
    await picture(player, "view-menu");
    await player.choose("mProgress");
    await player.screen("frmProgress");
    await picture(player, "progress");
    await player.press("Escape");
    await player.screen("frmGame");
}

async function hiddenLetters(player) {
    await withControl(player, "o");
    await startArcade(player);
    await player.guess(words.letters);
    await picture(player, "game-hidden-letters");
    await withControl(player, "o");
    await leave(player, "leave-question");
}

async function inventor(player) {
    await player.press("i");
    await player.screen("frmInventor");
    await player.click("lblOpen");
    await player.screen("frmOpen");
    await picture(player, "open-topic");
    await player.press("Escape");
    await player.screen("frmInventor");
    await player.click("txtTheme");
    await player.type(words.ownTopic);
    await player.press("Enter");
    for (const phrase of words.ownPhrases) {
        await player.type(phrase);
        await player.press("Enter");
    }
    await picture(player, "inventor");
    await player.press("Escape");
    await player.answer("question");
    await player.screen("frmMenu");
}

async function settings(player) {
    for (const design of ["1", "2", "3", "4"]) {
        await player.press("s");
        await player.screen("frmOptions");
        await player.press(design);
        if (design === "3") await player.press("c");
        await picture(player, `settings-design-${design}`);
        await player.press("Backspace");
        await player.screen("frmMenu");
        await player.press("a");
        await player.screen("frmGame");
        await startArcade(player);
        await player.guess(words.letters);
        await picture(player, `game-design-${design}`);
        await leave(player);
    }
}

const options = { files, languages: language, ...size };
await played({ ...options, before: stopHalfway }, async (player) => {
    await player.until(() => document.documentElement.dataset.halfway === "true");
    await picture(player, "start");
});
await played({ ...options, patience: 300_000 }, async (player) => {
    await menuAndClassicGame(player);
    await lostGame(player);
    await wonGame(player);
    await hiddenLetters(player);
    await inventor(player);
    await settings(player);
});
await Player.closeBrowsers();
