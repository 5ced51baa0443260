// Plays the page in a real browser, as a person does: what cannot be seen cannot be pressed.
import { once } from "node:events";
import { after } from "node:test";
import { fileURLToPath } from "node:url";
import puppeteer from "puppeteer-core";
import { serve } from "../serve.js";

export const browserName = process.env.QUILLOR_BROWSER ?? "chrome";
const programs = { chrome: "/usr/bin/chromium", firefox: "/usr/bin/firefox-esr" };
export const folder = process.env.QUILLOR_PAGE ?? fileURLToPath(new URL("../../build/web", import.meta.url));
const patience = 20_000;
const mostPatience = 150_000; // for a whole test, unless it says otherwise

/** What the page looked like when a test failed, the latest of them. */
const failurePicture = fileURLToPath(new URL("../../build/web-failure.png", import.meta.url));

/** One browser for all tests of a file, and for each of them a context with a storage of its
 * own: by the language, which Firefox takes at its start alone. @type {Map<string, Promise<any>>} */
const browsers = new Map();
after(() => Player.closeBrowsers());

function browserFor(languages) {
    const known = browsers.get(languages);
    if (known) return known;
    const started = puppeteer.launch({
        browser: browserName,
        executablePath: programs[browserName],
        headless: true,
        args: browserName === "chrome" ? ["--no-sandbox", "--autoplay-policy=no-user-gesture-required"] : [],
        extraPrefsFirefox: { "intl.accept_languages": languages },
    });
    browsers.set(languages, started);
    return started;
}

/** What a letter of ours is found in: a topic of one phrase, fifty times. */
export function topicOf(title, phrase) {
    return [title, ...Array(50).fill(phrase)].join("\r\n") + "\r\n";
}

export class Player {
    /** Once no test follows. */
    static async closeBrowsers() {
        for (const browser of browsers.values()) await (await browser).close();
    }
    /** Starts a browser and a server. `options`: width, height, touch, languages, before (a
     * function that runs in each page before its script), files (by their paths, in storage
     * before the first start), folder (another build of the page), patience (for all of it, in
     * milliseconds). */
    static async start(options = {}) {
        const player = new Player();
        player.server = await serve(options.folder ?? folder);
        player.port = player.server.address().port;
        player.address = `http://127.0.0.1:${player.port}/`;
        const browser = await browserFor(options.languages ?? "en");
        player.context = await browser.createBrowserContext();
        player.options = options;
        player.troubles = [];
        await player.openTab();
        return player;
    }

    async openTab() {
        const { width = 1320, height = 810, touch = false, before, files, density = 1 } = this.options;
        this.page = await this.context.newPage();
        this.page.on("pageerror", (error) => this.troubles.push(String(error.stack ?? error)));
        this.page.on("console", (message) => {
            if (message.type() === "error") this.troubles.push(message.text());
        });
        this.page.on("request", (request) => {
            const url = new URL(request.url());
            if (["http:", "https:"].includes(url.protocol) && url.host !== `127.0.0.1:${this.port}`) this.troubles.push(`asked ${url.host}`);
        });
        if (browserName === "chrome") {
            await this.page.setViewport({ width, height, hasTouch: touch, deviceScaleFactor: density });
            const languages = this.options.languages ?? "en";
            await this.page.evaluateOnNewDocument((tag) => Object.defineProperty(navigator, "languages", { get: () => [tag] }), languages);
        } else {
            await this.page.setViewport({ width, height });
        }
        // Firefox keeps what its policy refuses from who listens to the console.
        await this.page.evaluateOnNewDocument(() =>
            document.addEventListener("securitypolicyviolation", (event) => console.error(`refused ${event.violatedDirective} ${event.blockedURI}`)),
        );
        if (before) await this.page.evaluateOnNewDocument(before);
        if (files) await this.putFiles(files);
        await this.page.goto(this.address);
        await this.started();
    }
    async started() {
        await this.until(() => document.documentElement.dataset.started === "true");
    }
    async reload() {
        await this.settled();
        await this.page.reload();
        await this.started();
    }
    /** The page's storage has taken all there was. */
    async settled() {
        await new Promise((resolve) => setTimeout(resolve, 300));
    }
    async stopServer() {
        this.server.close();
        this.server.closeAllConnections();
        await once(this.server, "close");
    }
    /** Also says what the page had to complain of. */
    async stop() {
        await this.context.close();
        if (this.server.listening) await this.stopServer();
        return this.troubles;
    }

    until(condition, ...values) {
        return this.page.waitForFunction(condition, { timeout: patience, polling: 20 }, ...values);
    }
    /** Waits until that screen takes input. */
    async screen(name) {
        await this.until(
            (wanted) =>
                [...document.querySelectorAll(".screen")].some(
                    (screen) => screen.dataset.name === wanted && screen.checkVisibility() && !screen.inert,
                ),
            name,
        );
    }
    /** Goes from the menu into a game of the arcade mode with the first topic. */
    async openGame(topic = "AARDVARK") {
        await this.screen("frmMenu");
        await this.press("a");
        await this.screen("frmGame");
        await this.press("Enter");
        await this.screen("frmWord2");
        await this.press("Enter");
        await this.says("lblTopic", topic);
    }
    /** Goes from the menu to the inventor and saves a topic there. */
    async invent(title, phrases) {
        await this.screen("frmMenu");
        await this.press("i");
        await this.screen("frmInventor");
        await this.type(title);
        await this.click("txtWord");
        for (const phrase of phrases) {
            await this.type(phrase);
            await this.press("Enter");
        }
        await this.click("lblSave(0)");
    }
    async element(id) {
        const handle = await this.page.waitForFunction(
            (wanted) =>
                [...document.querySelectorAll("[data-id]")].find(
                    (element) => element.dataset.id === wanted && element.checkVisibility() && !element.closest("[inert]"),
                ),
            { timeout: patience, polling: 20 },
            id,
        );
        return handle.asElement();
    }
    async click(id) {
        await (await this.element(id)).click();
    }
    async rightClick(id) {
        await (await this.element(id)).click({ button: "right" });
    }
    async tap(id) {
        const place = await this.placeOf(id);
        await this.page.touchscreen.tap(place.x + place.width / 2, place.y + place.height / 2);
    }
    async placeOf(id) {
        const element = await this.element(id);
        return element.evaluate((each) => {
            const { x, y, width, height } = each.getBoundingClientRect();
            return { x, y, width, height };
        });
    }
    async press(...keys) {
        for (const key of keys) await this.page.keyboard.press(key);
    }
    type(text) {
        return this.page.keyboard.type(text);
    }
    /** Waits until a control says something. */
    says(id, words) {
        return this.until(
            (wanted, text) =>
                [...document.querySelectorAll("[data-id]")].some(
                    (element) => element.dataset.id === wanted && element.checkVisibility() && element.textContent.includes(text),
                ),
            id,
            words,
        );
    }
    async textOf(id) {
        return (await this.element(id)).evaluate((element) => element.value ?? element.textContent);
    }
    /** Chooses an entry of the menu that opens, if need be once a sound is over. */
    async choose(entry) {
        const selector = `dialog.menu-room [data-entry="${entry}"]`;
        await (await this.page.waitForSelector(selector, { visible: true, timeout: patience })).click();
    }
    /** Waits for a box, and answers it with its first or a further button. */
    async answer(box, button = 1) {
        const selector = `dialog[data-box="${box}"] [data-answer="${button}"]`;
        await (await this.page.waitForSelector(selector, { visible: true, timeout: patience })).click();
        await this.page.waitForSelector(selector, { hidden: true, timeout: patience });
    }
    /** The letters of the keyboard on the screen, as they are on show. */
    async guess(text, how = "press") {
        for (const letter of text) {
            if (how === "press") await this.press(letter);
            else await this[how](`lblKey(${await this.keyOf(letter)})`);
        }
    }
    keyOf(letter) {
        return this.page.evaluate((wanted) => {
            const keys = [...document.querySelectorAll("[data-id^='lblKey(']")];
            const key = keys.find((each) => each.textContent === wanted && each.checkVisibility());
            return key.dataset.id.slice("lblKey(".length, -1);
        }, letter.toUpperCase());
    }

    // Files, in the browser's storage, by a page of ours that runs no script.
    async onQuietPage(work, value) {
        const quiet = await this.context.newPage();
        await quiet.goto(`${this.address}LICENSE.txt`);
        const result = await quiet.evaluate(work, value);
        await quiet.close();
        return result;
    }
    putFiles(files) {
        return this.onQuietPage(async (all) => {
            const request = indexedDB.open("quillor", 1);
            request.onupgradeneeded = () => request.result.createObjectStore("files");
            await new Promise((resolve, reject) => {
                request.onsuccess = resolve;
                request.onerror = reject;
            });
            const transaction = request.result.transaction("files", "readwrite");
            for (const [path, text] of Object.entries(all)) transaction.objectStore("files").put(new TextEncoder().encode(text), path);
            await new Promise((resolve, reject) => {
                transaction.oncomplete = resolve;
                transaction.onabort = reject;
            });
            request.result.close();
        }, files);
    }
    getFiles() {
        return this.onQuietPage(async () => {
            const request = indexedDB.open("quillor", 1);
            await new Promise((resolve) => {
                request.onsuccess = resolve;
            });
            const store = request.result.transaction("files").objectStore("files");
            const paths = store.getAllKeys();
            const all = store.getAll();
            await new Promise((resolve) => {
                all.onsuccess = resolve;
            });
            request.result.close();
            return Object.fromEntries(paths.result.map((path, i) => [path, new TextDecoder("latin1").decode(all.result[i])]));
        });
    }
}

/** A folder in which English is spoken and the first topic has one phrase. */
export const englishFiles = {
    "English.txt": "",
    "Topics/": "",
    "Topics/Aardvark.txt": topicOf("AARDVARK", "cat nap"),
};

/** Runs a test's body with a player of its own, and fails on whatever the page complains of. */
export async function played(options, body) {
    const player = await Player.start(options);
    let result;
    // Whatever the browser owes an answer then gets none any more, and says so.
    const alarm = setTimeout(() => player.context.close(), options.patience ?? mostPatience);
    try {
        result = await body(player);
    } catch (error) {
        error.message += `\n${player.troubles.join("\n")}`;
        await player.page.screenshot({ path: failurePicture }).catch(() => {});
        throw error;
    } finally {
        clearTimeout(alarm);
        await player.stop();
    }
    if (player.troubles.length > 0) throw new Error(player.troubles.join("\n"));
    return result;
}
