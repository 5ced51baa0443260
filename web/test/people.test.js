// Usable by everybody: what assistive technology finds on every screen and box, and what a
// person has asked the browser for.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { browserName, englishFiles, played } from "./player.js";

const axe = readFileSync(new URL("../node_modules/axe-core/axe.min.js", import.meta.url), "utf8");

/** What is wrong with the page as it is now. */
async function findings(player) {
    // By the debugger, which the page's own policy does not bind.
    await player.page.evaluate(axe);
    return player.page.evaluate(async () => {
        const { violations } = await window.axe.run(document, { resultTypes: ["violations"] });
        return violations.map((each) => `${each.id}: ${each.nodes.map((node) => node.html.slice(0, 160)).join(" | ")}`);
    });
}
async function expectNothing(player, where) {
    assert.deepEqual(await findings(player), [], where);
}

test("nothing is found on any screen", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await expectNothing(player, "menu");
        await player.press("s");
        await player.screen("frmOptions");
        await expectNothing(player, "settings");
        await player.press("Escape");
        await player.screen("frmMenu");
        await player.press("i");
        await player.screen("frmInventor");
        await expectNothing(player, "inventor");
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
    }));

test("nothing is found during a game, its menus and its boxes", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblView");
        await expectNothing(player, "menu View");
        await player.press("Escape");
        await player.press("a");
        await player.screen("frmGame");
        await player.press("Enter");
        await player.screen("frmWord2");
        await expectNothing(player, "topics");
        await player.press("Enter");
        await player.says("lblTopic", "AARDVARK");
        await player.guess("ae");
        await expectNothing(player, "playing");
        await player.press("!");
        await player.page.waitForSelector("dialog[data-box='input']");
        await expectNothing(player, "answer");
        await player.answer("input", 2);
        await player.click("lblView");
        await player.choose("mKeys");
        await player.page.waitForSelector("dialog[data-box='information']");
        await expectNothing(player, "keys");
        await player.answer("information");
        await player.click("lblView");
        await player.choose("mTopics");
        await player.page.waitForSelector("dialog[data-box='topics']");
        await expectNothing(player, "topic files");
    }));

test("what has happened is said", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.press("a");
        await player.until(() => {
            const spoken = document.querySelector(".screen[data-name='frmGame'] [role='status']");
            return spoken.getAttribute("aria-live") === "assertive" && /A/.test(spoken.textContent);
        });
    }));

test("Tab goes from button to button, and the focus is seen", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("Tab");
        const first = await player.page.evaluate(() => document.activeElement.dataset.id);
        await player.press("Tab");
        const [second, ring] = await player.page.evaluate(() => [
            document.activeElement.dataset.id,
            getComputedStyle(document.activeElement).boxShadow,
        ]);
        assert.notEqual(first, second);
        assert.match(ring, /inset/);
    }));

test("a dark scheme and high contrast change the paper", { skip: browserName !== "chrome" }, () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        const paper = () => player.page.evaluate(() => document.documentElement.style.getPropertyValue("--paper"));
        const usual = await paper();
        await player.page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: "dark" }]);
        await player.until((before) => document.documentElement.style.getPropertyValue("--paper") !== before, usual);
        await expectNothing(player, "dark");
        const client = await player.page.createCDPSession();
        await client.send("Emulation.setEmulatedMedia", { features: [{ name: "prefers-contrast", value: "more" }] });
        await player.until(() => /^#(ffffff|000000)$/.test(document.documentElement.style.getPropertyValue("--paper")));
        await expectNothing(player, "high contrast");
    }));

test("upright on a phone every key is 40 pixels wide and high at least", () =>
    played({ files: englishFiles, width: 360, height: 640 }, async (player) => {
        await player.openGame();
        const sizes = await player.page.$$eval(".screen[data-name='frmGame'] button[data-id^='lblKey(']", (keys) =>
            keys.filter((key) => key.checkVisibility()).map((key) => key.getBoundingClientRect()).map(({ width, height }) => Math.min(width, height)),
        );
        assert.ok(sizes.length > 20);
        assert.ok(Math.min(...sizes) >= 40, String(Math.min(...sizes)));
    }));

test("on a display of 4K all is larger, and nothing has to be scrolled", () =>
    played({ files: englishFiles, width: 3840, height: 2160 }, async (player) => {
        await player.screen("frmMenu");
        const place = await player.placeOf("lblOption(4)");
        assert.ok(place.height > 200, String(place.height));
        assert.ok(await player.page.evaluate(() => document.documentElement.scrollHeight <= window.innerHeight));
    }));

test("a window that is turned lays the game out anew and keeps it", () =>
    played({ files: englishFiles, width: 1000, height: 600 }, async (player) => {
        await player.openGame();
        await player.guess("t");
        const wide = await player.placeOf("lblPlay(0)");
        await player.page.setViewport({ width: 600, height: 1000 });
        await player.until((left) => {
            const button = [...document.querySelectorAll("[data-id='lblPlay(0)']")].find((each) => each.checkVisibility());
            return Math.abs(button.getBoundingClientRect().left - left) > 20;
        }, wide.x);
        await player.says("lblTopic", "AARDVARK");
        await player.guess("acnp");
        await player.says("lblStatus", "VICTORY");
    }));
