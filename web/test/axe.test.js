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

/** From screen to screen, beside the games. */
async function visitScreens(player) {
    await player.screen("frmMenu");
    await expectNothing(player, "menu");
    await player.press("F10");
    await menu(player, "menu View");
    await player.press("s");
    await player.screen("frmOptions");
    await expectNothing(player, "settings");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.click("lblView");
    await player.choose("mProgress");
    await player.screen("frmProgress");
    await expectNothing(player, "progress");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.press("i");
    await player.screen("frmInventor");
    await expectNothing(player, "inventor");
    await player.click("lblOpen");
    await player.screen("frmOpen");
    await expectNothing(player, "topics to open");
    await player.press("Escape");
    await player.screen("frmInventor");
    await player.press("Escape");
    await player.screen("frmMenu");
    await player.press("c");
    await player.screen("frmGame");
    await expectNothing(player, "game");
    await player.press("Enter");
    await player.screen("frmWord1");
    await expectNothing(player, "classic entry");
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
    await player.screen("frmWord2");
    await expectNothing(player, "topics");
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
    await player.screen("frmGame");
    await expectNothing(player, "a game that is over");
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
