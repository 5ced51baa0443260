// Whole games, by each of the ways in which a person can play them.
import assert from "node:assert/strict";
import { test } from "node:test";
import { englishFiles, played } from "./player.js";

test("a game is won by the keyboard alone", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.guess("atnp");
        await player.says("lblStatus", "VICTORY");
    }));

test("a game is lost by the mouse alone", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblOption(4)");
        await player.screen("frmGame");
        await player.click("lblPlay(0)");
        await player.screen("frmWord2");
        await player.click("lblOk(0)");
        await player.says("lblTopic", "AARDVARK");
        await player.guess("efghij", "click");
        await player.says("lblStatus", "DEAD");
    }));

test("a phrase of one's own is played by touch on a phone", () =>
    played({ files: englishFiles, width: 360, height: 640, touch: true }, async (player) => {
        await player.screen("frmMenu");
        await player.tap("lblOption(5)");
        await player.screen("frmGame");
        await player.tap("lblPlay(0)");
        await player.screen("frmWord1");
        await player.tap("txtWord");
        await player.type("Sea");
        await player.tap("lblOk(0)");
        await player.screen("frmGame");
        const key = await player.placeOf("lblKey(1)");
        assert.ok(key.width >= 40 && key.height >= 40, `${key.width} x ${key.height}`);
        await player.guess("ea", "tap");
        await player.says("lblStatus", "VICTORY");
    }));

test("the answer typed at once ends the game", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.press("!");
        await player.page.waitForSelector("dialog[data-box='input'] input:focus");
        await player.type("cat nap");
        await player.press("Enter");
        await player.says("lblStatus", "VICTORY");
    }));

test("a held key plays once", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("a");
        await player.screen("frmGame");
        await player.page.keyboard.down("Enter");
        await player.page.keyboard.down("Enter");
        await player.screen("frmWord2");
        await player.page.keyboard.down("Enter");
        await player.page.keyboard.up("Enter");
        await player.screen("frmWord2");
    }));

test("titles and phrases are text, never markup", () =>
    played({ files: { ...englishFiles, "Topics/Aaa.txt": ["<b id=x>a&amp;</b>", ...Array(50).fill("cat")].join("\r\n") } }, async (player) => {
        await player.screen("frmMenu");
        await player.press("a");
        await player.screen("frmGame");
        await player.press("Enter");
        await player.screen("frmWord2");
        await player.says("lstTopics", "<B ID=X>A&AMP;</B>");
        assert.equal(await player.page.$("#x"), null);
    }));
