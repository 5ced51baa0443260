// Pictures of the page in the states in which the window's tour leaves its own:
// node web/test/pictures.js FOLDER
import { mkdirSync } from "node:fs";
import { join } from "node:path";
import { played } from "./player.js";

const folder = process.argv[2];
mkdirSync(folder, { recursive: true });

const corner = ["ROUND THE CORNER", "a small cafe", "a small café"].join("\r\n") + "\r\n";
// Only that topic: the packs count as laid out already.
const packs = await played({ files: {} }, async (player) => {
    await player.screen("frmMenu");
    await player.settled();
    return (await player.getFiles())["Quillor-Packs.txt"];
});
const files = { "English.txt": "", "Topics/": "", "Quillor-Packs.txt": packs, "Topics/CORNER.txt": corner };

await played({ files }, async (player) => {
    const picture = async (name) => {
        // What moves comes to rest, and the mouse is nowhere.
        await player.page.mouse.move(1319, 809);
        await new Promise((resolve) => setTimeout(resolve, 900));
        await player.page.screenshot({ path: join(folder, `${name}.png`) });
    };
    await player.screen("frmMenu");
    await picture("02-menu");
    await player.press("c");
    await player.screen("frmGame");
    await picture("05-game-idle");
    await player.press("Enter");
    await player.screen("frmWord1");
    await player.type("Route 66 tour");
    await player.press("Enter");
    await player.type("Journeys");
    await picture("06-classic-entry");
    await player.press("Enter");
    await player.screen("frmGame");
    await picture("07-game-with-first-letter");
    await player.guess("oute6r");
    await player.says("lblStatus", "VICTORY");
    await player.press("F2");
    await player.screen("frmMenu");
    await player.press("a");
    await player.screen("frmGame");
    await player.press("Enter");
    await player.screen("frmWord2");
    await picture("12-topic-selection");
    await player.press("Enter");
    await player.says("lblTopic", "ROUND THE CORNER");
    await player.press("!");
    await player.page.waitForSelector("dialog[data-box='input']");
    await picture("17-answer-box");
    await player.answer("input", 2);
    await player.press("F2");
    await player.answer("question", 2);
    await player.screen("frmMenu");
    await player.press("i");
    await player.screen("frmInventor");
    await player.type("fruits");
    await player.click("txtWord");
    for (const phrase of ["pear", "green grape", "peach"]) {
        await player.type(phrase);
        await player.press("Enter");
    }
    await picture("22-inventor");
    await player.press("Escape");
    await player.answer("question");
    await player.screen("frmMenu");
    await player.press("s");
    await player.screen("frmOptions");
    await picture("23-settings-design-1");
});
