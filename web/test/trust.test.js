// Whatever stands in a file is text, and the page asks nobody but its own address.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { readFileSync, readdirSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { fileURLToPath } from "node:url";
import { serve } from "../serve.js";
import { englishFiles, folder, played, topicOf } from "./player.js";

const rightToLeft = "\u202e";
const hostile = {
    markup: "<img src=x onerror=alert(1)>",
    percent: "%s%n%00 {0} ${x}",
    quotes: "\"'`\\",
    controls: "a\u0001b\u0007c\u001bd",
};

for (const [kind, title] of Object.entries(hostile))
    test(`a topic is played whose title and phrases are ${kind}`, () =>
        played({ files: { ...englishFiles, "Topics/A.txt": topicOf(title, `${title} cat`) } }, async (player) => {
            await player.openGame("");
            await player.says("lblStatus", "PLAYING");
            const shown = await player.textOf("lblTopic");
            assert.ok(shown.length > 0 && shown.length <= title.length + 10, shown);
            assert.equal(await player.page.$(".screen img, .screen script"), null);
            await player.guess("cat");
        }));

test("a title that would turn the line around it turns itself alone", () =>
    played({ files: { ...englishFiles, "Topics/A.txt": `\ufeff${topicOf(`AB${rightToLeft}CD`, "cat")}` } }, async (player) => {
        await player.openGame("");
        const isolated = await player.page.evaluate(() =>
            [...document.querySelectorAll(".text, .option")].every((each) => getComputedStyle(each).unicodeBidi === "isolate"),
        );
        assert.ok(isolated);
        const [title, status] = await player.page.evaluate(() =>
            ["lblTopic", "lblStatus"].map((id) => [...document.querySelectorAll(`[data-id='${id}']`)].find((each) => each.checkVisibility()).textContent),
        );
        assert.ok(title.startsWith("AB"), title);
        assert.ok(!status.includes(rightToLeft));
    }));

test("lines of a megabyte do not hold the page up", () =>
    played({ files: { ...englishFiles, "Topics/A.txt": ["A".repeat(1_000_000), ...Array(9).fill("cat"), "b".repeat(1_000_000)].join("\r\n") } }, async (player) => {
        await player.openGame("");
        await player.says("lblStatus", "PLAYING");
        await player.guess("b");
        const lengths = await player.page.evaluate(() => [...document.querySelectorAll(".text, .option, .spoken")].map((each) => each.textContent.length));
        assert.ok(Math.max(...lengths) < 10_000, String(Math.max(...lengths)));
    }));

test("no script or style but the page's own is let in, and no other host", () =>
    played({ files: englishFiles }, async (player) => {
        const policy = await player.page.$eval("meta[http-equiv='Content-Security-Policy']", (each) => each.content);
        assert.match(policy, /^default-src 'none';/);
        assert.doesNotMatch(policy, /'unsafe-|https?:|\*/);
        const refused = await player.page.evaluate(async () => {
            const found = [];
            document.addEventListener("securitypolicyviolation", (event) => found.push(event.effectiveDirective));
            const script = document.createElement("script");
            script.textContent = "window.wasRun = true";
            document.body.append(script);
            await fetch("https://example.invalid/").catch(() => {});
            await new Promise((resolve) => setTimeout(resolve, 300));
            return [window.wasRun ?? false, found.sort()];
        });
        player.troubles.length = 0; // they are what was asked for
        assert.deepEqual(refused, [false, ["connect-src", "script-src-elem"]]);
    }));

test("no address of another host stands in the page, but the search's and those of names", () => {
    const own = readdirSync(folder, { recursive: true }).filter((name) => /\.(js|mjs|css|html|svg|webmanifest)$/.test(name));
    assert.ok(own.length > 20);
    for (const name of own)
        for (const [address] of readFileSync(join(folder, name), "utf8").matchAll(/https?:\/\/[\w.-]+/g))
            assert.ok(["http://www.w3.org", "http://localhost"].includes(address), `${name}: ${address}`);
});

test("the server answers what is no address, or leads out of its folder, with nothing", async () => {
    const server = await serve(folder);
    const { port } = server.address();
    for (const path of ["%", "%2e%2e/%2e%2e/README.md", "none.txt"])
        assert.equal((await fetch(`http://127.0.0.1:${port}/${path}`)).status, 404, path);
    assert.equal((await fetch(`http://127.0.0.1:${port}/`)).status, 200);
    server.close();
    server.closeAllConnections();
});

test("the program that serves the page says where it is, and has it opened where a browser can be", async () => {
    const program = fileURLToPath(new URL("../serve.js", import.meta.url));
    for (const opener of ["", "/bin/echo"]) {
        const running = spawn(process.execPath, [program, folder, "0"], { env: { ...process.env, QUILLOR_OPENER: opener } });
        let said = "";
        for await (const words of running.stdout) {
            said += words;
            if (said.includes(opener ? "\n" : "none can be opened")) break;
        }
        running.kill();
        assert.match(said, /^Quillor is at http:\/\/localhost:\d+\/ until you press Ctrl\+C\.\n/);
        assert.equal(said.includes("Open that address in a browser"), !opener);
    }
});

test("no browser offers to translate the page, whose letters are the game", () =>
    played({ files: englishFiles }, async (player) => {
        await player.screen("frmMenu");
        assert.equal(await player.page.evaluate(() => document.documentElement.translate), false);
    }));
