// How large a text is drawn, and where: measured once in sizes of its font, whatever the scale.
// @ts-check

/** @typedef {{caption: string, face: string, size: number, bold: boolean, wrap: boolean}} Words */

const nominal = 100; // pixels
const smallest = 6; // pixels: smaller text is clipped instead
const families = /** @type {Record<string, string>} */ ({
    display: '"Quillor Rounded", sans-serif',
    comic: '"Quillor Comic", cursive',
    plain: "system-ui, sans-serif",
});
const sheet = /** @type {CanvasRenderingContext2D} */ (
    document.createElement("canvas").getContext("2d")
);

/** @type {Map<string, {width: number, up: number, down: number}>} */
const widths = new Map();
/** @type {Map<string, {up: number, down: number, inkUp: number, inkDown: number}>} */
const fonts = new Map();

/** @param {string} face @param {boolean} bold */
function fontOf(face, bold) {
    const weight = face === "display" ? "700" : bold ? "700" : "400";
    return `${weight} ${nominal}px ${families[face] ?? families.plain}`;
}

/** @param {string} font @param {string} text */
function measured(font, text) {
    const key = font + text;
    let found = widths.get(key);
    if (!found) {
        sheet.font = font;
        const metrics = sheet.measureText(text);
        found = {
            width: metrics.width / nominal,
            up: metrics.actualBoundingBoxAscent / nominal,
            down: metrics.actualBoundingBoxDescent / nominal,
        };
        if (widths.size > 5000) widths.clear();
        widths.set(key, found);
    }
    return found;
}

/** @param {string} font */
function lineOf(font) {
    let found = fonts.get(font);
    if (!found) {
        sheet.font = font;
        const metrics = sheet.measureText("ÁÑQ");
        found = {
            up: metrics.fontBoundingBoxAscent / nominal,
            down: metrics.fontBoundingBoxDescent / nominal,
            inkUp: metrics.actualBoundingBoxAscent / nominal,
            inkDown: metrics.actualBoundingBoxDescent / nominal,
        };
        fonts.set(font, found);
    }
    return found;
}

/** Into how many lines words break in that width.
 * @param {string} font @param {string} text @param {number} width */
function brokenLines(font, text, width) {
    let lines = 0;
    for (const line of text.split("\n")) {
        let filled = "";
        lines += 1;
        for (const word of line.split(" ")) {
            const longer = filled ? `${filled} ${word}` : word;
            if (filled && measured(font, longer).width > width) {
                lines += 1;
                filled = word;
            } else {
                filled = longer;
            }
        }
    }
    return lines;
}

/** Text that does not fit is drawn smaller; a line that is taller than its place is moved, so
 * that neither an accent nor the tail of a Q is cut off.
 * @param {Words} words
 * @param {number} width in twips
 * @param {number} height in twips
 * @param {number} twip pixels
 * @returns {{size: number, high: number, rise: number}} the size in points, the height of a
 *   line and how far the text moves down, both in sizes of the font */
export function fitted(words, width, height, twip) {
    const font = fontOf(words.face, words.bold);
    const line = lineOf(font);
    const high = line.up + line.down;
    const lines = words.caption.split("\n");
    const single = !words.wrap && lines.length === 1;
    const ink = single ? measured(font, words.caption) : { up: 0, down: 0 };
    const up = Math.max(line.inkUp, ink.up);
    const down = Math.max(line.inkDown, ink.down);
    const least = Math.min(smallest / twip / 20, words.size);
    const half = 0.5 / twip;
    /** @param {number} points */
    const fits = (points) => {
        const em = points * 20;
        if (words.wrap)
            return (
                Math.max(...words.caption.split(/[ \n]/).map((word) => measured(font, word).width)) *
                    em <=
                    width + half &&
                brokenLines(font, words.caption, (width + half) / em) * high * em <= height + half
            );
        const widest = Math.max(...lines.map((each) => measured(font, each).width));
        const tall = single ? up + down : lines.length * high;
        return widest * em <= width + half && tall * em <= height + half;
    };
    let size = words.size;
    while (size > least && !fits(size)) size = Math.max(least, size * 0.97);
    const over = single && high * size * 20 > height;
    const rise = over ? -((line.up - line.down) / 2 + (down - up) / 2) : 0;
    return { size, high, rise };
}

/** How wide a text is, in sizes of its font.
 * @param {string} face @param {boolean} bold @param {string} text */
export function widthOf(face, bold, text) {
    return measured(fontOf(face, bold), text).width;
}

/** Until the fonts are there nothing can be measured. */
export async function fontsReady() {
    await Promise.all(
        [fontOf("display", true), fontOf("comic", true)].map((font) =>
            document.fonts.load(font, "AÑ-").catch(() => []),
        ),
    );
}
