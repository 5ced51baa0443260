// Usable by everybody: what is said, where the focus is, and what a person has asked the browser
// for.
import assert from "node:assert/strict";
import { test } from "node:test";
import { expectNothing } from "./findings.js";
import { browserName, englishFiles, played } from "./player.js";

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

/** As a person does who has set the system to it. */
async function askForContrast(player) {
    const client = await player.page.createCDPSession();
    await client.send("Emulation.setEmulatedMedia", { features: [{ name: "prefers-contrast", value: "more" }] });
    await player.until(() => /^#(ffffff|000000)$/.test(document.documentElement.style.getPropertyValue("--paper")));
}

test("a dark scheme and high contrast change the paper", { skip: browserName !== "chrome" }, () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        const paper = () => player.page.evaluate(() => document.documentElement.style.getPropertyValue("--paper"));
        const usual = await paper();
        await player.page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: "dark" }]);
        await player.until((before) => document.documentElement.style.getPropertyValue("--paper") !== before, usual);
        await expectNothing(player, "dark");
        await askForContrast(player);
        await expectNothing(player, "high contrast");
    }));

test("a box keeps its contrast under the mouse", { skip: browserName !== "chrome" }, () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await askForContrast(player);
        await player.press("F2");
        await player.page.waitForSelector('dialog[data-box="question"]', { visible: true });
        const buttons = await player.page.$$('dialog[data-box="question"] .push');
        assert.equal(buttons.length, 2);
        for (const button of buttons) {
            await button.hover();
            await expectNothing(player, "a button under the mouse", true);
        }
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

test("a whole game is played on a display of 4K, by the mouse", () =>
    played({ files: englishFiles, width: 3840, height: 2160 }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblOption(4)");
        await player.screen("frmGame");
        await player.click("lblPlay(0)");
        await player.screen("frmWord2");
        await player.click("lblOk(0)");
        await player.says("lblTopic", "AARDVARK");
        await player.guess("atnp", "click");
        await player.says("lblStatus", "VICTORY");
        const key = await player.placeOf(`lblKey(${await player.keyOf("z")})`);
        assert.ok(key.width >= 200 && key.height >= 150, `${key.width} x ${key.height}`);
    }));

test("a window that is lower than a dialog's bar shows it again once it is larger", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("c");
        await player.screen("frmGame");
        await player.press("Enter");
        await player.screen("frmWord1");
        const before = await player.placeOf("lblOk(0)");
        // Whatever the page complains of meanwhile fails the test.
        await player.page.setViewport({ width: 500, height: 20 });
        await player.until(() => document.documentElement.clientHeight < 100);
        await player.page.setViewport({ width: 1320, height: 810 });
        await player.until((height) => document.querySelector("[data-id='lblOk(0)']").getBoundingClientRect().height === height, before.height);
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

test("a box that loses something when it is answered with Yes has No pressed by Return", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.press("F2");
        await player.page.waitForSelector("dialog[data-box='question']", { visible: true });
        const [buttons, focused, ring] = await player.page.evaluate(() => [
            [...document.querySelectorAll("dialog[open] .push")].map((each) => each.textContent),
            document.activeElement.textContent,
            getComputedStyle(document.activeElement).outlineStyle,
        ]);
        assert.deepEqual([buttons, focused, ring], [["Yes", "No"], "No", "solid"]);
        await player.press("Enter");
        await player.page.waitForSelector("dialog.box", { hidden: true });
        await player.says("lblStatus", "PLAYING");
    }));

test("an access key is underlined, also where its letter has an edge", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        const line = await player.page.evaluate(() => {
            const mark = document.querySelector("[data-id='lblOption(1)'] u");
            const { position, height, backgroundColor, content } = getComputedStyle(mark, "::after");
            return [mark.textContent, position, parseFloat(height) >= 1, backgroundColor === getComputedStyle(mark).color, content];
        });
        assert.deepEqual(line, ["C", "absolute", true, true, '""']);
    }));

test("the words of a box stand beside the middle of its sign, and edges are rounded to whole pixels", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.press("F2");
        await player.page.waitForSelector("dialog[data-box='question']", { visible: true });
        const [sign, words, edge, thirteenth] = await player.page.evaluate(() => {
            const middle = (each) => each.getBoundingClientRect().top + each.getBoundingClientRect().height / 2;
            const box = document.querySelector("dialog[data-box='question']");
            const { borderTopWidth, fontSize } = getComputedStyle(box);
            return [middle(box.querySelector(".sign")), middle(box.querySelector("p")), parseFloat(borderTopWidth), parseFloat(fontSize) / 13];
        });
        assert.ok(Math.abs(sign - words) <= 1, `${sign} beside ${words}`);
        assert.equal(edge, Math.round(thirteenth));
    }));

test("a field that has the focus has one ring, and no edge beside it", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("i");
        await player.screen("frmInventor");
        const edges = await player.page.evaluate(() => {
            const [focused, other] = ["txtTheme", "txtWord"].map((id) => getComputedStyle(document.querySelector(`[data-id='${id}']`)).borderTopColor);
            return [focused, focused === other];
        });
        assert.deepEqual(edges, ["rgb(255, 255, 255)", false]);
    }));
