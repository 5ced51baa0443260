// What axe-core finds wrong with the page.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";

const axe = readFileSync(new URL("../node_modules/axe-core/axe.min.js", import.meta.url), "utf8");
const patience = 5000;

async function findings(player, enhanced) {
    // By the debugger, which the page's own policy does not bind.
    if (!(await player.page.evaluate(() => "axe" in window))) await player.page.evaluate(axe);
    return player.page.evaluate(async (enhanced) => {
        const numbers = (color) => color.match(/[\d.]+/g).map(Number);
        const hex = (color) => [1, 3, 5].map((at) => parseInt(color.slice(at, at + 2), 16));
        const light = (color) =>
            color
                .map((each) => each / 255)
                .map((each) => (each <= 0.03928 ? each / 12.92 : ((each + 0.055) / 1.055) ** 2.4))
                .reduce((sum, each, i) => sum + each * [0.2126, 0.7152, 0.0722][i], 0);
        // The edge around letters, which axe-core does not see, tells them from their ground.
        const hasEdge = (node) => {
            const { data } = node.any[0];
            const style = getComputedStyle(document.querySelector(node.target[0]));
            const [red, green, blue, share = 1] = numbers(style.webkitTextStrokeColor);
            if (parseFloat(style.webkitTextStrokeWidth) < 1) return false;
            const edge = hex(data.bgColor).map((each, i) => each * (1 - share) + [red, green, blue][i] * share);
            const [dark, bright] = [light(edge), light(numbers(style.color).slice(0, 3))].sort((a, b) => a - b);
            return (bright + 0.05) / (dark + 0.05) >= parseFloat(data.expectedContrastRatio) - 0.02;
        };
        const { violations } = await window.axe.run(document, {
            resultTypes: ["violations"],
            rules: { "color-contrast-enhanced": { enabled: enhanced } },
        });
        return violations
            .map(({ id, nodes }) => [id, id.startsWith("color-contrast") ? nodes.filter((node) => !hasEdge(node)) : nodes])
            .filter(([, nodes]) => nodes.length > 0)
            .map(([id, nodes]) => `${id}: ${nodes.map((node) => `${node.html.slice(0, 160)} ${JSON.stringify(node.any[0]?.data)}`).join(" | ")}`);
    }, enhanced);
}

/** Fails where anything is found on the page as it is; `enhanced`: contrast of 7:1 is asked for.
 * What is found amid a flash of colour or a movement has to be there still when that is over. */
export async function expectNothing(player, where, enhanced = false) {
    const end = Date.now() + patience;
    let found = await findings(player, enhanced);
    while (found.length > 0 && Date.now() < end) found = await findings(player, enhanced);
    assert.deepEqual(found, [], where);
}
