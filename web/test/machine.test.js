// What the page asks of the machine: the network, sounds, time.
import assert from "node:assert/strict";
import { test } from "node:test";
import { Player, englishFiles, played } from "./player.js";

const kMostBytes = 450_000;

test("the second visit needs no network", async () => {
    const player = await Player.start({ files: englishFiles });
    try {
        await player.screen("frmMenu");
        await player.page.evaluate(async () => {
            const { active } = await navigator.serviceWorker.ready;
            if (active.state !== "activated")
                await new Promise((resolve) => active.addEventListener("statechange", resolve));
        });
        await player.stopServer();
        await player.reload();
        await player.openGame();
        await player.guess("atnp");
        await player.says("lblStatus", "VICTORY");
    } finally {
        await player.stop();
    }
});

test("the worker keeps one version, and removes those before it", () =>
    played({ files: englishFiles }, async (player) => {
        await player.page.evaluate(() => caches.open("quillor of old"));
        await player.page.evaluate(async () => {
            const registration = await navigator.serviceWorker.ready;
            await registration.unregister();
        });
        await player.reload();
        await player.until(async () => (await caches.keys()).join() !== "" && !(await caches.keys()).includes("quillor of old"));
        const kept = await player.page.evaluate(() => caches.keys());
        assert.equal(kept.length, 1);
        assert.match(kept[0], /^quillor \d+\.\d+\.\d+-[0-9a-f]{12}$/);
    }));

test("the page is small: 450 kB at most, compressed, without sounds and packs", () =>
    played({ files: englishFiles }, async (player) => {
        const sizes = await player.page.evaluate(() =>
            performance
                .getEntries()
                .filter((entry) => entry.entryType === "resource" || entry.entryType === "navigation")
                .filter((entry) => !/packs\.json$|\.wav$/.test(entry.name))
                .map((entry) => [entry.name, entry.encodedBodySize]),
        );
        const all = sizes.reduce((sum, [, size]) => sum + size, 0);
        console.log(`# ${all} bytes`);
        assert.ok(sizes.length > 15);
        assert.ok(all > 100_000 && all <= kMostBytes, JSON.stringify(sizes));
    }));

// What a page may do by itself: timers, frames, requests, messages to other tabs.
function countedWork() {
    window.work = [];
    for (const name of ["setTimeout", "setInterval", "requestAnimationFrame", "fetch", "queueMicrotask"]) {
        const real = window[name];
        window[name] = (...all) => {
            window.work.push(name);
            return real.apply(window, all);
        };
    }
}

test("while nothing happens nothing is done", () =>
    played({ files: englishFiles, before: countedWork }, async (player) => {
        await player.screen("frmMenu");
        await player.settled();
        await player.page.evaluate(() => {
            new MutationObserver(() => window.work.push("change")).observe(document, { subtree: true, childList: true, attributes: true, characterData: true });
            window.work.length = 0;
        });
        await new Promise((resolve) => setTimeout(resolve, 1500));
        assert.deepEqual(await player.page.evaluate(() => window.work), []);
    }));

test("a game that is over and at rest changes nothing, and has its own timers alone", () =>
    played({ files: englishFiles, before: countedWork }, async (player) => {
        await player.openGame();
        await player.guess("atnp");
        await player.says("lblStatus", "VICTORY");
        await player.page.evaluate(() => {
            window.latest = performance.now();
            new MutationObserver(() => { window.latest = performance.now(); }).observe(document, { subtree: true, childList: true, attributes: true, characterData: true });
        });
        // The score has been counted, and the phrase has been kept.
        await player.until(() => performance.now() - window.latest > 2500);
        const work = await player.page.evaluate(async () => {
            window.work.length = 0;
            const before = window.latest;
            await new Promise((resolve) => setInterval(resolve, 1000));
            return [window.work.filter((each) => each !== "setInterval"), window.latest === before];
        });
        assert.deepEqual([...new Set(work[0])], ["setTimeout"]);
        // Of the two that never stop, ten and two in a second.
        assert.ok(work[0].length <= 14, String(work[0].length));
        assert.ok(work[1]);
    }));

// A player of sounds that ends them when the test says so.
function slowSounds() {
    window.playing = [];
    window.AudioContext = class {
        state = "running";
        destination = {};
        resume() {
            return Promise.resolve();
        }
        decodeAudioData() {
            return Promise.resolve({ duration: 1000 });
        }
        createBufferSource() {
            const source = { connect() {}, start() {}, onended: null };
            window.playing.push(source);
            return source;
        }
    };
}

test("a sound is played to its end before the next key counts", () =>
    played({ files: englishFiles, before: slowSounds }, async (player) => {
        await player.openGame();
        await player.page.evaluate(() => {
            for (const each of window.playing.splice(0)) each.onended();
        });
        await player.press("a");
        await player.until(() => window.playing.length === 1);
        await player.press("t");
        await new Promise((resolve) => setTimeout(resolve, 200));
        assert.ok(await player.keyOf("t"), "the key T is still there");
        await player.page.evaluate(() => window.playing[0].onended());
        await player.until(() => ![...document.querySelectorAll("[data-id^='lblKey(']")].some((key) => key.textContent === "T" && key.checkVisibility()));
    }));

test("a player without sound waits for nothing", () =>
    played({ files: englishFiles, before: () => { delete window.AudioContext; } }, async (player) => {
        await player.openGame();
        // All within one moment of the page, in which nothing can have been waited for.
        const status = await player.page.evaluate(() => {
            for (const key of "atnp") {
                const code = key.toUpperCase().charCodeAt(0);
                for (const name of ["keydown", "keyup"])
                    document.activeElement.dispatchEvent(new KeyboardEvent(name, { key, code: `Key${key.toUpperCase()}`, keyCode: code, bubbles: true, cancelable: true }));
            }
            return document.querySelector("[data-id='lblStatus']").textContent;
        });
        assert.match(status, /VICTORY/);
    }));

test("what the mouse is moved to while a sound is played is lit up afterwards", () =>
    played({ files: englishFiles, before: slowSounds }, async (player) => {
        await player.openGame();
        await player.page.evaluate(() => {
            for (const each of window.playing.splice(0)) each.onended();
        });
        const number = await player.keyOf("n");
        const face = () => player.page.evaluate((key) => document.querySelector(`[data-id='shpKey(${key})']`).firstElementChild.getAttribute("fill"), number);
        const before = await face();
        await player.press("a");
        await player.until(() => window.playing.length === 1);
        const place = await player.placeOf(`lblKey(${number})`);
        await player.page.mouse.move(place.x + 20, place.y + 20, { steps: 3 });
        await new Promise((resolve) => setTimeout(resolve, 200));
        assert.equal(await face(), before);
        await player.page.evaluate(() => window.playing[0].onended());
        await player.until((key, usual) => document.querySelector(`[data-id='shpKey(${key})']`).firstElementChild.getAttribute("fill") !== usual, number, before);
    }));

test("timers run on while a box is open", () =>
    played({ files: englishFiles }, async (player) => {
        await player.openGame();
        await player.press("!");
        await player.page.waitForSelector("dialog[data-box='input']");
        const dots = () => player.page.evaluate(() => document.querySelector("[data-id='lblStatus']").textContent);
        const before = await dots();
        await player.until((words) => document.querySelector("[data-id='lblStatus']").textContent !== words, before);
        await player.type("cat nap");
        await player.press("Enter");
        await player.says("lblStatus", "VICTORY");
    }));

test("the search opens another tab, and the manual too", () =>
    played({ files: englishFiles, before: () => { window.opened = []; window.open = (address) => { window.opened.push(address); return null; }; } }, async (player) => {
        await player.openGame();
        await player.guess("atnp");
        await player.says("lblStatus", "VICTORY");
        await player.click("lblFinder(0)");
        await player.until(() => window.opened.length === 1);
        await player.press("F1");
        await player.until(() => window.opened.length === 2);
        const [search, manual] = await player.page.evaluate(() => window.opened);
        assert.match(search, /^http:\/\/www\.bing\.com\/search\?q=.*cat/i);
        assert.match(manual, /manual\.html#en$/);
    }));

test("closing the page's window starts it anew", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.page.evaluate(() => {
            window.sameAsBefore = true;
            window.close = () => {};
        });
        await player.page.keyboard.down("Control");
        await player.press("q");
        await player.page.keyboard.up("Control");
        await player.until(() => !window.sameAsBefore && document.documentElement.dataset.started === "true");
        await player.screen("frmMenu");
    }));

test("a new start in the other language does not close the page", () =>
    played({ files: englishFiles, before: () => { window.close = () => sessionStorage.setItem("closed", "yes"); } }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblView");
        await player.choose("mLanguage");
        await player.answer("question");
        await player.says("lblOption(0)", "MODO ARCADE");
        assert.equal(await player.page.evaluate(() => sessionStorage.getItem("closed")), null);
    }));
