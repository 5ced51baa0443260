// Nothing is found wrong by axe-core on any screen, box or menu, in either language and layout.
import { test } from "node:test";
import { expectNothing } from "./findings.js";
import { englishFiles, played, topicOf } from "./player.js";

const spanishFiles = { "Temas/": "", "Temas/Aardvark.txt": topicOf("AARDVARK", "cat nap") };
const kinds = [
    ["wide, in English", { files: englishFiles }],
    ["tall, in English", { files: englishFiles, width: 360, height: 640 }],
    ["wide, in Spanish", { files: spanishFiles, languages: "es" }],
    ["tall, in Spanish", { files: spanishFiles, languages: "es", width: 600, height: 1000 }],
];

/** Waits for a box, looks at it, and answers it. */
async function box(player, kind, button = 1) {
    await player.page.waitForSelector(`dialog[data-box="${kind}"]`, { visible: true });
    await expectNothing(player, kind);
    await player.answer(kind, button);
}
async function menu(player, name) {
    await player.page.waitForSelector("dialog.menu-room .menu", { visible: true });
    await expectNothing(player, name);
    await player.press("Escape");
    await player.page.waitForSelector("dialog.menu-room", { hidden: true });
}

/** Waits for a screen, and looks at it. */
async function look(player, screen, name) {
    await player.screen(screen);
    await expectNothing(player, name);
}

/** From screen to screen, beside the games. */
async function visitScreens(player) {
    await look(player, "frmMenu", "menu");
    await player.press("F10");
    await menu(player, "menu View");
    await player.press("s");
    await look(player, "frmOptions", "settings");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.click("lblView");
    await player.choose("mProgress");
    await look(player, "frmProgress", "progress");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.press("i");
    await look(player, "frmInventor", "inventor");
    await player.click("lblOpen");
    await look(player, "frmOpen", "topics to open");
    await player.press("Escape");
    await player.screen("frmInventor");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.press("c");
    await look(player, "frmGame", "game");
    await player.press("Enter");
    await look(player, "frmWord1", "classic entry");
    await player.press("Escape");
    await player.screen("frmGame");
    await player.press("Escape");
    await player.screen("frmMenu");
}

/** A game, with what opens over it. */
async function visitGame(player) {
    await player.press("a");
    await player.screen("frmGame");
    await player.press("Enter");
    await look(player, "frmWord2", "topics");
    await player.press("Enter");
    await player.says("lblTopic", "AARDVARK");
    await player.guess("ae");
    await expectNothing(player, "playing");
    await player.rightClick("lblStatus");
    await menu(player, "menu of the game");
    await player.rightClick("lblStatus");
    await player.choose("mAbout");
    await box(player, "about");
    await player.press("!");
    await box(player, "input", 2);
    await player.click("lblView");
    await player.choose("mKeys");
    await box(player, "information");
    await player.click("lblView");
    await player.choose("mTopics");
    await box(player, "topics");
    await player.press("F2");
    await box(player, "question", 2);
    await player.guess("tnp");
    await look(player, "frmGame", "a game that is over");
}

for (const [name, options] of kinds)
    test(`nothing is found: ${name}`, () =>
        played(options, async (player) => {
            await visitScreens(player);
            await visitGame(player);
        }));

test("nothing is found on the start screen, and on the box about a storage that is refused", () =>
    played({ before: () => {
        Object.defineProperty(window, "indexedDB", { value: { open: () => { throw new Error("refused"); } } });
        // The start screen goes by its timers.
        const wait = window.setTimeout;
        window.setTimeout = (act, ...rest) => (String(act).includes("happening.tick") ? 0 : wait(act, ...rest));
    } }, async (player) => {
        await box(player, "critical");
        await player.screen("frmStart");
        await expectNothing(player, "start");
    }));
