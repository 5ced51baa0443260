// How the controls that are only seen are drawn: by pixels of the window.
// @ts-check
import { drawPaper } from "./paper.js";
import { drawn } from "./symbols.js";

/** @typedef {import("./controls.js").Control} Control */
/** @typedef {import("./controls.js").Scale} Scale */

/** @param {Control} control @param {Scale} scale */
export function paintShape(control, scale) {
    const { oval, back, border, width, radius } = control.look;
    const [x, y] = control.corner(scale);
    const [left, top, right, bottom] = control.edges(scale);
    const pen = width * scale.twip;
    const box = {
        x: left - x + pen / 2,
        y: top - y + pen / 2,
        width: Math.max(0, right - left - pen),
        height: Math.max(0, bottom - top - pen),
    };
    const round = Math.min(radius * scale.twip, box.width / 2, box.height / 2);
    const figure = oval
        ? drawn("ellipse", {
              cx: box.x + box.width / 2,
              cy: box.y + box.height / 2,
              rx: box.width / 2,
              ry: box.height / 2,
          })
        : drawn("rect", { ...box, rx: round, ry: round });
    figure.setAttribute("fill", back ?? "none");
    if (pen > 0) {
        figure.setAttribute("stroke", border);
        figure.setAttribute("stroke-width", String(pen));
    }
    control.element.replaceChildren(figure);
}

// Upright and level lines lie on whole pixels; their right or lower edge is where other
// controls have theirs that end there.
/** @param {Control} control @param {Scale} scale */
export function paintLine(control, scale) {
    const { span, thickness, round, ink, edge, share } = control.look;
    const [atX, atY] = control.parent ? control.parent.onScreen() : [0, 0];
    const [x, y] = control.corner(scale);
    const px = (/** @type {number} */ twips) => scale.left + (atX + twips) * scale.twip - x;
    const py = (/** @type {number} */ twips) => scale.top + (atY + twips) * scale.twip - y;
    const line = { x1: px(span[0]), y1: py(span[1]), x2: px(span[2]), y2: py(span[3]) };
    const density = window.devicePixelRatio || 1;
    const thick = thickness * scale.twip;
    const whole = Math.max(1, Math.round(thick * density)) / density;
    const upright = span[0] === span[2];
    const level = span[1] === span[3];
    if (upright)
        line.x1 = line.x2 = Math.round(px(span[0] + thickness / 2) + x) - x - whole / 2;
    if (level) line.y1 = line.y2 = Math.round(py(span[1] + thickness / 2) + y) - y - whole / 2;
    if (level && !round) {
        line.x1 = Math.round(line.x1 + x) - x;
        line.x2 = Math.round(line.x2 + x) - x;
    }
    const width = upright || level ? whole : Math.max(thick, 1);
    const stroke = (/** @type {string} */ color, /** @type {number} */ pen) =>
        drawn("line", {
            ...line,
            stroke: color,
            "stroke-width": pen,
            "stroke-linecap": round ? "round" : "butt",
        });
    const strokes = [stroke(ink, width)];
    if (share > 0) {
        strokes.unshift(stroke(edge, 2 * width));
        strokes[0].setAttribute("stroke-opacity", String(share));
    }
    control.element.replaceChildren(...strokes);
}

/** @param {Control} control @param {Scale} scale */
export function paintPicture(control, scale) {
    const [left, top, right, bottom] = control.edges(scale);
    const [ownLeft, ownTop] = control.onScreen();
    const area = { left, top, width: right - left, height: bottom - top };
    const own = {
        x: scale.left + ownLeft * scale.twip - left,
        y: scale.top + ownTop * scale.twip - top,
    };
    const [x, y, w, h] = control.look.drawn;
    const t = scale.twip;
    const place =
        w > 0
            ? { left: own.x + x * t, top: own.y + y * t, width: w * t, height: h * t }
            : { left: own.x, top: own.y, width: control.place[2] * t, height: control.place[3] * t };
    if (control.look.photo) {
        const { width, height } = area;
        const photo = drawn("image", { href: control.around.photo, width, height, preserveAspectRatio: "xMidYMid slice" });
        control.element.replaceChildren(photo);
        return;
    }
    const drawing = control.look.drawing ? { name: control.look.drawing, place } : null;
    drawPaper(control.element, area, own.y, t, control.around.colors, drawing, control.around.pictures);
}
