// What is kept in the browser: settings and topics, in one tab and in two, or nowhere.
import assert from "node:assert/strict";
import { test } from "node:test";
import { englishFiles, played, topicOf } from "./player.js";

test("the packs of topics are there from the start, in the browser's language", () =>
    played({ languages: "es" }, async (player) => {
        await player.screen("frmMenu");
        await player.says("lblOption(0)", "MODO ARCADE");
        await player.settled();
        const files = Object.keys(await player.getFiles());
        assert.ok(files.filter((name) => name.startsWith("Temas/")).length > 20);
        assert.ok(files.filter((name) => name.startsWith("Topics/")).length > 20);
        assert.ok(!files.includes("English.txt"));
    }));

test("another browser's language is answered in English", () =>
    played({ languages: "de" }, async (player) => {
        await player.screen("frmMenu");
        await player.says("lblOption(0)", "ARCADE MODE");
        await player.settled();
        assert.ok(Object.keys(await player.getFiles()).includes("English.txt"));
    }));

test("the language can be changed, and stays", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblView");
        await player.choose("mLanguage");
        await player.answer("question");
        await player.says("lblOption(0)", "MODO ARCADE");
        await player.reload();
        await player.screen("frmMenu");
        await player.says("lblOption(0)", "MODO ARCADE");
    }));

test("settings stay after a reload", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("s");
        await player.screen("frmOptions");
        await player.press("w");
        const before = await checks(player);
        assert.ok(before.includes("true"));
        await player.press("Escape");
        await player.screen("frmMenu");
        await player.reload();
        await player.screen("frmMenu");
        await player.press("s");
        await player.screen("frmOptions");
        assert.deepEqual(await checks(player), before);
    }));

function checks(player) {
    return player.page.$$eval(".screen[data-name='frmOptions'] [role='checkbox']", (boxes) =>
        boxes.map((box) => box.getAttribute("aria-checked")),
    );
}

test("an invented topic is played after a reload", () =>
    played({ files: { ...englishFiles, "Topics/Aardvark.txt": topicOf("ZZZ", "dog") } }, async (player) => {
        await player.screen("frmMenu");
        await player.invent("AAA MINE", ["owl", "owls"]);
        await player.page.waitForSelector("dialog.box", { visible: true });
        await player.press("Enter");
        await player.settled();
        const kept = await player.getFiles();
        assert.match(kept["Topics/AAA MINE.txt"] ?? "", /^AAA MINE.*\r\nowl\r\nowls\r\n$/);
        await player.reload();
        await player.screen("frmMenu");
        await player.press("a");
        await player.screen("frmGame");
        await player.press("Enter");
        await player.screen("frmWord2");
        await player.says("lstTopics", "AAA MINE");
    }));

test("what one tab saves the other one has", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        const first = player.page;
        delete player.options.files;
        await player.openTab();
        await player.screen("frmMenu");
        await player.invent("AAA MINE", ["owl", "owls"]);
        await player.page.waitForSelector("dialog.box", { visible: true });
        await player.settled();
        player.page = first;
        await player.page.bringToFront();
        await player.click("lblView");
        await player.choose("mTopics");
        await player.until(() => [...document.querySelectorAll(".files button")].some((row) => row.textContent === "AAA MINE.txt"));
    }));

test("a storage that is refused is told of, and the game goes on", () =>
    played({ before: () => Object.defineProperty(window, "indexedDB", { value: { open: () => { throw new Error("refused"); } } }) }, async (player) => {
        await player.answer("critical");
        await player.openGame("");
        await player.says("lblStatus", "PLAYING");
    }));

test("a storage that is full is told of once, and what was kept stays", () =>
    played({ files: englishFiles, before: () => {
        const put = IDBObjectStore.prototype.put;
        IDBObjectStore.prototype.put = function (value, key) {
            const request = put.call(this, value, key);
            this.transaction.abort();
            return request;
        };
    } }, async (player) => {
        await player.answer("critical");
        await player.screen("frmMenu");
        const kept = await player.getFiles();
        assert.deepEqual(Object.keys(kept).sort(), Object.keys(englishFiles).sort());
        await player.press("a");
        await player.screen("frmGame");
        assert.equal(await player.page.$("dialog.box"), null);
    }));

test("a topic is taken in from a file that is dropped", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.page.evaluate((text) => {
            const data = new DataTransfer();
            data.items.add(new File([text], "Dropped.txt", { type: "text/plain" }));
            document.body.dispatchEvent(new DragEvent("drop", { dataTransfer: data, bubbles: true, cancelable: true }));
        }, ["DROPPED", ...Array.from({ length: 50 }, (_, i) => `phrase ${"abcdefghij"[i % 10]}${"abcde"[Math.floor(i / 10)]}`)].join("\r\n"));
        await player.answer("question");
        await player.settled();
        assert.match((await player.getFiles())["Topics/Dropped.txt"] ?? "", /^DROPPED/);
    }));

test("all topics go out as one archive that holds their bytes", () =>
    played({ files: englishFiles, before: () => {
        const make = URL.createObjectURL;
        URL.createObjectURL = (blob) => {
            window.downloaded = blob;
            return make.call(URL, blob);
        };
        HTMLAnchorElement.prototype.click = function () {
            window.downloadedAs = this.download;
        };
    } }, async (player) => {
        await player.screen("frmMenu");
        await player.click("lblView");
        await player.choose("mTopics");
        await (await player.page.waitForSelector("[data-act='all']")).click();
        const [name, start, text] = await player.page.evaluate(async () => {
            const text = await window.downloaded.text();
            return [window.downloadedAs, text.slice(0, 2), text];
        });
        assert.equal(name, "Quillor.zip");
        assert.equal(start, "PK");
        assert.ok(text.includes("Aardvark.txtAARDVARK\r\ncat nap"));
    }));


test("a click into a field puts the caret there for the next key", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await player.press("i");
        await player.screen("frmInventor");
        await player.type("abc");
        await player.click("txtFile");
        await player.type("d");
        assert.equal(await player.textOf("txtFile"), "ABCd");
    }));

test("the browser is asked once to keep the files, when the player has done something", () =>
    played({ files: englishFiles, before: () => {
        window.asked = 0;
        navigator.storage.persist = () => { window.asked += 1; return Promise.resolve(true); };
        // What the debugger does counts as the player's doing.
        let active = false;
        document.addEventListener("keydown", () => { active = true; }, { capture: true });
        Object.defineProperty(navigator, "userActivation", { value: { get hasBeenActive() { return active; } } });
    } }, async (player) => {
        await player.screen("frmMenu");
        await player.settled();
        const asked = () => player.page.evaluate(() => window.asked);
        assert.equal(await asked(), 0);
        for (const way of ["w", "w"]) {
            await player.press("s");
            await player.screen("frmOptions");
            await player.press(way, "Escape");
            await player.screen("frmMenu");
            await player.settled();
        }
        assert.equal(await asked(), 1);
    }));

/** Drops a file on the page: a picture of one colour, or bytes that are none. */
function dropPicture(player, color) {
    return player.page.evaluate(async (fill) => {
        const canvas = new OffscreenCanvas(64, 40);
        const sheet = canvas.getContext("2d");
        sheet.fillStyle = fill || "#000";
        sheet.fillRect(0, 0, 64, 40);
        const bytes = fill ? await canvas.convertToBlob({ type: "image/jpeg" }) : new Blob(["no picture"]);
        const data = new DataTransfer();
        data.items.add(new File([bytes], "pic.JPG", { type: "image/jpeg" }));
        document.body.dispatchEvent(new DragEvent("drop", { dataTransfer: data, bubbles: true, cancelable: true }));
    }, color);
}
const hasPhoto = () => document.querySelector("[data-id='imgBack'] image")?.getAttribute("href")?.startsWith("blob:") ?? false;

test("a picture of the player's hangs behind the menu, stays, and can be taken down", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await dropPicture(player, "#203040");
        await player.until(hasPhoto);
        await player.reload();
        await player.screen("frmMenu");
        await player.until(hasPhoto);
        await player.until(() => document.querySelector("[data-id='lblWelcome'] .text").style.webkitTextStroke !== "");
        await player.click("lblView");
        await player.choose("mTopics");
        await player.answer("topics", 2);
        await player.until(() => document.querySelector("[data-id='imgBack'] image")?.getAttribute("href")?.endsWith("menu.svg"));
        await player.settled();
        assert.ok(!("Pic.jpg" in (await player.getFiles())));
    }));

test("what is no picture is not kept as one", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        await dropPicture(player, "");
        await player.answer("information");
        await player.settled();
        assert.ok(!("Pic.jpg" in (await player.getFiles())));
        assert.equal(await player.page.evaluate(hasPhoto), false);
    }));
