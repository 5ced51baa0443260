// A new version takes the place of an old one: whole, and without loss.
import assert from "node:assert/strict";
import { cpSync, mkdtempSync, readFileSync, readdirSync, renameSync, rmSync, symlinkSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { englishFiles, folder, played } from "./player.js";

/** A copy of the page that calls itself by another name, and says so in each of its scripts. */
function versionOf(place, name) {
    const copy = join(place, name);
    cpSync(folder, copy, { recursive: true });
    const own = readdirSync(copy).find((each) => /^\d+\.\d+\.\d+-/.test(each));
    renameSync(join(copy, own), join(copy, `9.9.9-${name}`));
    for (const file of ["index.html", "sw.js", "manifest.webmanifest"])
        writeFileSync(join(copy, file), readFileSync(join(copy, file), "utf8").replaceAll(own, `9.9.9-${name}`));
    const main = join(copy, `9.9.9-${name}`, "main.js");
    writeFileSync(main, `document.documentElement.dataset.version = "${name}";\n${readFileSync(main, "utf8")}`);
    return copy;
}

/** Runs a test on two versions, of which `publish` puts one behind the address. */
async function withVersions(body) {
    const place = mkdtempSync(join(tmpdir(), "quillor-versions-"));
    const served = join(place, "served");
    const publish = (name) => {
        rmSync(served, { force: true });
        symlinkSync(join(place, name), served);
    };
    try {
        versionOf(place, "old");
        versionOf(place, "new");
        publish("old");
        await played({ files: englishFiles, folder: served }, async (player) => {
            await body(player, publish);
        });
    } finally {
        rmSync(place, { recursive: true });
    }
}

/** The versions that the page as it is now has come from. */
function versionsOf(player) {
    return player.page.evaluate(() => {
        const names = performance.getEntriesByType("resource").map((each) => each.name.match(/9\.9\.9-(\w+)/)?.[1]);
        return [...new Set([document.documentElement.dataset.version, ...names.filter(Boolean)])];
    });
}
const newIsFetched = (player) =>
    player.until(async () => Boolean((await navigator.serviceWorker.getRegistration())?.waiting));
const oldIsKept = (player) =>
    player.until(async () => (await navigator.serviceWorker.getRegistration())?.active?.state === "activated");

/** Leaves the page, and comes back once the new version has taken over. */
async function comeBack(player) {
    for (let i = 0; i < 20; ++i) {
        delete player.options.files;
        await player.page.close();
        await new Promise((resolve) => setTimeout(resolve, 500));
        await player.openTab();
        if ((await player.page.evaluate(() => document.documentElement.dataset.version)) === "new") return;
    }
}

test("a new version takes over as a whole, and settings and topics stay", () =>
    withVersions(async (player, publish) => {
        await player.screen("frmMenu");
        await oldIsKept(player);
        await player.invent("AAA MINE", ["owl", "owls"]);
        await player.page.waitForSelector("dialog.box", { visible: true });
        await player.settled();
        const before = await player.getFiles();
        publish("new");
        await player.reload();
        assert.deepEqual(await versionsOf(player), ["old"]);
        await newIsFetched(player);
        await comeBack(player);
        assert.deepEqual(await versionsOf(player), ["new"]);
        assert.deepEqual(await player.page.evaluate(() => caches.keys()), ["quillor 9.9.9-new"]);
        await player.settled();
        assert.deepEqual(await player.getFiles(), before);
        await player.openGame("AAA MINE");
    }));

test("while another tab shows the old version no tab shows the new one", () =>
    withVersions(async (player, publish) => {
        await player.screen("frmMenu");
        await oldIsKept(player);
        const first = player.page;
        delete player.options.files;
        await player.openTab();
        publish("new");
        await player.reload();
        await newIsFetched(player);
        await player.reload();
        assert.deepEqual(await versionsOf(player), ["old"]);
        await first.close();
        await comeBack(player);
        assert.deepEqual(await versionsOf(player), ["new"]);
    }));
