// The scenarios that the windows are walked through, in the page.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { englishFiles, played } from "./player.js";

const keys = { Return: "Enter", Left: "ArrowLeft", Right: "ArrowRight", Up: "ArrowUp", Down: "ArrowDown" };
const modifiers = { shift: "Shift", ctrl: "Control" };
const nameOf = (key) => keys[key] ?? (key.length === 1 ? key.toLowerCase() : key);
const quoted = (rest) => rest.slice(rest.indexOf('"') + 1, rest.lastIndexOf('"'));

async function press(player, rest) {
    const words = rest.split(" ");
    const key = words.pop();
    for (const word of words) await player.page.keyboard.down(modifiers[word]);
    await player.press(nameOf(key));
    for (const word of words) await player.page.keyboard.up(modifiers[word]);
}
async function hold(player, rest) {
    const [key, repeats] = rest.split(" ");
    for (let i = 0; i <= Number(repeats); ++i) await player.page.keyboard.down(nameOf(key));
    await player.page.keyboard.up(nameOf(key));
}
async function access(player, letter) {
    await player.page.keyboard.down("Alt");
    await player.press(letter.toLowerCase());
    await player.page.keyboard.up("Alt");
}
// As an input method does it: what it hands over is not typed.
function compose(player, text) {
    return player.page.evaluate((data) => {
        for (const name of ["compositionstart", "compositionend"])
            document.activeElement.dispatchEvent(new CompositionEvent(name, { data, bubbles: true }));
    }, text.replaceAll("|", "\n"));
}
const focused = (player) => player.page.evaluate(() => document.activeElement.dataset.id);
async function tab(player, id) {
    for (let i = 0; i < 60 && (await focused(player)) !== id; ++i) await player.press("Tab");
    assert.equal(await focused(player), id);
}

const steps = {
    start: async (player, name) => {
        await player.screen("frmMenu");
        if (name === "Settings") await player.press("s");
        await player.screen({ Menu: "frmMenu", Settings: "frmOptions" }[name]);
    },
    press,
    hold,
    access,
    tab,
    type: (player, rest) => player.type(quoted(rest)),
    compose: (player, rest) => compose(player, quoted(rest)),
    click: (player, id) => player.click(id),
    front: (player, name) => player.screen(name),
    focus: (player, id) => player.until((wanted) => document.activeElement.dataset.id === wanted, id),
    field: async (player, rest) => assert.equal(await player.textOf(rest.split(" ")[0]), quoted(rest)),
};

for (const name of ["menu_and_settings", "inventor", "whole_games_by_keyboard", "settings_by_keyboard", "classic_game"])
    test(`scenario: ${name.replaceAll("_", " ")}`, () =>
        played({ files: englishFiles, before: () => { delete window.AudioContext; } }, async (player) => {
            const text = readFileSync(new URL(`../../tests/scenarios/${name}.txt`, import.meta.url), "utf8");
            for (const line of text.split("\n").filter((each) => each && !each.startsWith("#"))) {
                const verb = line.split(" ")[0];
                try {
                    await steps[verb](player, line.slice(verb.length + 1));
                } catch (error) {
                    error.message = `${line}: ${error.message}`;
                    throw error;
                }
            }
        }));
