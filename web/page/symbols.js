// The symbols that stand for letters of the symbol fonts: paths in the unit square.
// @ts-check

const loudspeaker = "M.06 .37 .22 .37 .46 .16 .46 .84 .22 .63 .06 .63Z";
const tick = { pen: 0.13, strokes: "M.13 .54 .4 .8 .87 .22" };
const cross = { pen: 0.13, strokes: "M.18 .18 .82 .82M.82 .18 .18 .82" };

/** An arc around the middle, so far to either side of the right.
 * @param {number} radius
 * @param {number} degrees */
function arc(radius, degrees) {
    const angle = (degrees * Math.PI) / 180;
    const x = 0.5 + radius * Math.cos(angle);
    const rise = radius * Math.sin(angle);
    return `M${x} ${0.5 + rise}A${radius} ${radius} 0 0 0 ${x} ${0.5 - rise}`;
}

/** @type {Record<string, {pen: number, strokes?: string, filled?: string}>} */
const symbols = {
    "web a": tick,
    "web U": { pen: 0.08, filled: loudspeaker, strokes: arc(0.19, 48) + arc(0.36, 48) },
    "web V": { pen: 0.08, filled: loudspeaker, strokes: "M.6 .36 .88 .64M.88 .36 .6 .64" },
    "web r": cross,
    "web s": {
        pen: 0.13,
        strokes: "M.3 .34C.3 .04 .72 .04 .72 .32 .72 .5 .5 .46 .5 .66",
        filled: "M.44 .86a.06 .06 0 1 0 .12 0a.06 .06 0 1 0 -.12 0Z",
    },
    "web 3": { pen: 0.1, strokes: "M.7 .16 .26 .5 .7 .84Z", filled: "M.7 .16 .26 .5 .7 .84Z" },
    "web 4": { pen: 0.1, strokes: "M.3 .16 .74 .5 .3 .84Z", filled: "M.3 .16 .74 .5 .3 .84Z" },
    "web L": { pen: 0.11, strokes: "M.15 .42a.27 .27 0 1 0 .54 0a.27 .27 0 1 0 -.54 0M.63 .63 .88 .88" },
    "wing ß": { pen: 0.13, strokes: "M.9 .5 .12 .5M.44 .18 .12 .5 .44 .82" },
    "wing Ë": { pen: 0.13, strokes: "M.5 .14 .5 .86M.14 .5 .86 .5" },
    "wing û": {
        pen: 0.08,
        strokes:
            "M.16 .26 .84 .26M.38 .24 .4 .12 .6 .12 .62 .24M.24 .28 .3 .88 .7 .88 .76 .28" +
            "M.42 .42 .43 .72M.58 .42 .57 .72",
    },
};

export const svgSpace = "http://www.w3.org/2000/svg";

/** An element of a drawing, with these attributes.
 * @param {string} name
 * @param {Record<string, string | number>} [attributes]
 * @returns {SVGElement} */
export function drawn(name, attributes = {}) {
    const element = document.createElementNS(svgSpace, name);
    for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, String(value));
    return element;
}

/** The picture of a symbol font's letter, in the unit square.
 * @param {string} face "web" or "wing"
 * @param {string} letter
 * @param {string} color */
export function symbol(face, letter, color) {
    const picture = drawn("svg", { viewBox: "0 0 1 1", "aria-hidden": "true" });
    const known = symbols[`${face} ${letter}`];
    if (!known) return picture;
    if (known.filled) picture.append(drawn("path", { d: known.filled, fill: color }));
    if (known.strokes)
        picture.append(
            drawn("path", {
                d: known.strokes,
                fill: "none",
                stroke: color,
                "stroke-width": known.pen,
                "stroke-linecap": "round",
                "stroke-linejoin": "round",
            }),
        );
    return picture;
}
