// Pictures of the page in the states in which the window's tour leaves its own, by the same
// names: node web/test/pictures.js FOLDER [WIDTH HEIGHT]
import { mkdirSync } from "node:fs";
import { join } from "node:path";
import { Player, played } from "./player.js";

const [, , folder, width = "1320", height = "810"] = process.argv;
const size = { width: Number(width), height: Number(height) };
mkdirSync(folder, { recursive: true });

const corner = ["ROUND THE CORNER", "a small cafe", "a small café"].join("\r\n") + "\r\n";
// Only that topic: the packs count as laid out already.
const packs = await played({ files: {} }, async (player) => {
    await player.screen("frmMenu");
    await player.settled();
    return (await player.getFiles())["Quillor-Packs.txt"];
});
const files = { "English.txt": "", "Topics/": "", "Quillor-Packs.txt": packs, "Topics/CORNER.txt": corner };

async function take(player, name) {
    // What moves comes to rest.
    await new Promise((resolve) => setTimeout(resolve, 900));
    await player.page.screenshot({ path: join(folder, `${name}.png`) });
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

async function menuAndClassicGame(player) {
    await player.screen("frmMenu");
    await picture(player, "menu");
    await hovered(player, "lblOption(5)", "menu-hover", "menu-pressed");
    await player.press("c");
    await player.screen("frmGame");
    await picture(player, "game-idle");
    await player.press("Enter");
    await player.screen("frmWord1");
    await player.type("route 66 tour");
    await player.press("Enter");
    await player.type("journeys");
    await picture(player, "classic-entry");
    await player.press("Enter");
    await player.screen("frmGame");
    await picture(player, "game-with-first-letter");
    await hovered(player, "lblKey(19)", "key-hover", "key-pressed");
    await player.click("lblKey(38)");
    await picture(player, "game-digits");
    await player.guess("oute6r");
    await player.says("lblStatus", "VICTORY");
    await picture(player, "classic-victory");
    await player.press("F2");
}

async function startArcade(player) {
    // The button is there once the score has been counted.
    let before = "";
    for (let now = await player.textOf("lblScore"); now !== before; now = await player.textOf("lblScore")) {
        before = now;
        await new Promise((resolve) => setTimeout(resolve, 1500));
    }
    await player.press("Enter");
    await player.screen("frmWord2");
}

async function arcadeGames(player) {
    await player.screen("frmMenu");
    await player.press("a");
    await player.screen("frmGame");
    await startArcade(player);
    await picture(player, "topic-selection");
    await player.press("Enter");
    await player.says("lblTopic", "ROUND THE CORNER");
    await player.guess("lxyz");
    await picture(player, "game-three-mistakes");
    await player.rightClick("lblStatus");
    await player.page.waitForSelector("dialog.menu-room .menu");
    await picture(player, "game-menu");
    await player.press("Escape");
    await player.guess("wvk");
    await player.says("lblStatus", "DEAD");
    await picture(player, "low-score");
    await startArcade(player);
    await player.press("Enter");
    await player.says("lblTopic", "ROUND THE CORNER");
    await player.press("!");
    await player.page.waitForSelector("dialog[data-box='input']");
    await picture(player, "answer-box");
    await player.type("a small cafe");
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
    await startArcade(player);
    await player.press("Enter");
    await player.says("lblTopic", "ROUND THE CORNER");
    await player.press("F2");
    await player.page.waitForSelector("dialog[data-box='question']");
    await picture(player, "leave-question");
    await player.answer("question");
}

async function inventorAndSettings(player) {
    await player.screen("frmMenu");
    await player.press("i");
    await player.screen("frmInventor");
    await player.click("lblOpen");
    await player.screen("frmOpen");
    await picture(player, "open-topic");
    await player.press("Escape");
    await player.screen("frmInventor");
    await player.click("txtTheme");
    await player.type("fruits");
    await player.press("Enter");
    for (const phrase of ["pear", "green grape", "peach"]) {
        await player.type(phrase);
        await player.press("Enter");
    }
    await picture(player, "inventor");
    await player.press("Escape");
    await player.answer("question");
    await player.screen("frmMenu");
    await player.press("s");
    await player.screen("frmOptions");
    await picture(player, "settings-design-1");
}

await played({ files, ...size }, async (player) => {
    await menuAndClassicGame(player);
    await arcadeGames(player);
    await inventorAndSettings(player);
});
await Player.closeBrowsers();
