// Prints medians of what a player waits for, beside the budgets: node web/test/measured.js
import { Player, englishFiles, played } from "./player.js";

const middle = (numbers) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const tell = (what, found, most, unit) => console.log(`${what}: ${Math.round(found)} ${unit} (at most ${most})${found > most ? " TOO MUCH" : ""}`);

/** All that a first visit asks for but sounds and packs, in bytes. */
function transferred(player) {
    return player.page.evaluate(() =>
        performance
            .getEntries()
            .filter((each) => each.encodedBodySize && !/packs\.json$|\.wav$/.test(each.name))
            .reduce((sum, each) => sum + each.encodedBodySize, 0),
    );
}

/** Until the first screen is seen, in milliseconds. */
async function firstScreen(player) {
    const times = [];
    for (let i = 0; i < 9; ++i) {
        await player.page.reload();
        await player.started();
        await player.until(() => performance.getEntriesByName("first-contentful-paint").length > 0);
        times.push(await player.page.evaluate(() => performance.getEntriesByName("first-contentful-paint")[0].startTime));
    }
    return middle(times);
}

/** From a key to the frame that shows what it does, in milliseconds: of each kind of key. */
async function keysToPaint(player) {
    await player.openGame();
    await player.page.evaluate(() => {
        window.took = [];
        document.addEventListener("keydown", () => {
            const start = performance.now();
            requestAnimationFrame(() => {
                const { port1, port2 } = new MessageChannel();
                port1.onmessage = () => window.took.push(performance.now() - start);
                port2.postMessage(0);
            });
        }, { capture: true });
    });
    for (const key of [..."efghi", ...Array.from({ length: 40 }, (_, i) => (i % 2 ? "Tab" : "ArrowRight"))]) {
        await player.press(key);
        await new Promise((resolve) => setTimeout(resolve, 80));
    }
    return middle(await player.page.evaluate(() => window.took));
}

await played({ files: englishFiles }, async (player) => {
    // At the first visit: later ones come from the worker, which keeps all as it is.
    tell("transferred", (await transferred(player)) / 1000, 450, "kB");
    tell("first screen", await firstScreen(player), 1000, "ms");
    tell("key to paint", await keysToPaint(player), 16, "ms");
});
await Player.closeBrowsers();
