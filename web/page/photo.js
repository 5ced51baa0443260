// The player's own picture: decoded by the browser, and shown behind the menu.
// @ts-check

/** A picture as the page shows it.
 * @typedef {{address: string, range: [number, number]}} Photo */

const spots = 48; // across and down
const most = 64 * 1024 * 1024; // bytes
const mostPixels = 100e6;

/** How light a color is to the eye. @param {number[]} color of 255 each */
function luminance(color) {
    const [red, green, blue] = color.map((each) => {
        const share = each / 255;
        return share <= 0.03928 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
    });
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

/** The darkest and the lightest of its colors that can be seen from a distance.
 * @param {ImageBitmap} picture @returns {[number, number]} red, green and blue from the lowest byte on */
function rangeOf(picture) {
    const canvas = document.createElement("canvas");
    canvas.width = canvas.height = spots;
    const sheet = /** @type {CanvasRenderingContext2D} */ (canvas.getContext("2d", { willReadFrequently: true }));
    sheet.imageSmoothingQuality = "high";
    sheet.drawImage(picture, 0, 0, spots, spots);
    const { data } = sheet.getImageData(0, 0, spots, spots);
    let dark = [255, 255, 255];
    let light = [0, 0, 0];
    for (let i = 0; i < data.length; i += 4) {
        const color = [...data.subarray(i, i + 3)];
        if (luminance(color) <= luminance(dark)) dark = color;
        if (luminance(color) >= luminance(light)) light = color;
    }
    const number = (/** @type {number[]} */ [red, green, blue]) => red + 256 * green + 65536 * blue;
    return [number(dark), number(light)];
}

/** Decodes a picture. Fails when it is none, or larger than a page should show.
 * @param {Uint8Array} bytes @returns {Promise<Photo>} */
export async function decoded(bytes) {
    if (bytes.length > most) throw new Error("too large");
    const blob = new Blob([/** @type {BlobPart} */ (bytes)], { type: "image/jpeg" });
    const picture = await createImageBitmap(blob);
    try {
        if (picture.width * picture.height > mostPixels) throw new Error("too large");
        return { address: URL.createObjectURL(blob), range: rangeOf(picture) };
    } finally {
        picture.close();
    }
}
