// The notebook page: the rules lie on whole pixels, so that they are sharp at any size.
// @ts-check
import { drawn } from "./symbols.js";

// In twips.
const pen = 15;
const pitch = 300;
const firstRule = 180;
const firstMargin = 150;

/** @typedef {{left: number, top: number, width: number, height: number}} Place */

/** Draws the page over `area`, in pixels. Its rules lie as on a page that begins at `top`.
 * @param {SVGElement} svg
 * @param {Place} area
 * @param {number} top
 * @param {number} twip pixels
 * @param {Record<string, string>} colors
 * @param {{name: string, place: Place} | null} drawing
 * @param {string} pictures where the drawings are */
export function drawPaper(svg, area, top, twip, colors, drawing, pictures) {
    const density = window.devicePixelRatio || 1;
    /** @param {number} value */
    const whole = (value) => Math.round(value * density) / density;
    const wide = Math.max(1 / density, whole(pen * twip));
    const parts = [drawn("rect", { x: 0, y: 0, width: area.width, height: area.height, fill: colors.paper })];
    if (colors.rule !== colors.paper) {
        const step = pitch * twip;
        const first = top + firstRule * twip;
        for (let y = first + Math.ceil((-wide - first) / step) * step; y < area.height; y += step)
            parts.push(drawn("rect", { x: 0, y: whole(y), width: area.width, height: wide, fill: colors.rule }));
        for (const [twips, color] of [
            [firstMargin, colors.margin],
            [firstMargin + 3 * pen, colors.margin2],
        ])
            parts.push(
                drawn("rect", {
                    x: whole(Number(twips) * twip),
                    y: 0,
                    width: wide,
                    height: area.height,
                    fill: color,
                }),
            );
    }
    if (drawing)
        parts.push(
            drawn("image", {
                href: `${pictures}${drawing.name}.svg`,
                x: drawing.place.left,
                y: drawing.place.top,
                width: drawing.place.width,
                height: drawing.place.height,
                preserveAspectRatio: "none",
            }),
        );
    svg.setAttribute("shape-rendering", "crispEdges");
    svg.replaceChildren(...parts);
}
