// Topics out of the page, as downloads, and into it, by choosing or dropping files; pictures too.
// @ts-check

const table = new Uint32Array(256).map((_, byte) => {
    let rest = byte;
    for (let i = 0; i < 8; ++i) rest = rest & 1 ? (rest >>> 1) ^ 0xedb88320 : rest >>> 1;
    return rest;
});

/** @param {Uint8Array} bytes */
function checksum(bytes) {
    let sum = 0xffffffff;
    for (const byte of bytes) sum = (sum >>> 8) ^ table[(sum ^ byte) & 0xff];
    return (sum ^ 0xffffffff) >>> 0;
}

/** @param {[number, number][]} fields each a value and its bytes */
function packed(fields) {
    const bytes = [];
    for (const [value, count] of fields) for (let i = 0; i < count; ++i) bytes.push((value >>> (8 * i)) & 0xff);
    return Uint8Array.from(bytes);
}

/** An archive of files as they are.
 * @param {Map<string, Uint8Array>} files
 * @returns {Blob} */
export function zipped(files) {
    const utf8 = 0x800;
    const day = (2020 - 1980) * 512 + 32 + 1;
    /** @type {Uint8Array[]} */
    const parts = [];
    /** @type {Uint8Array[]} */
    const entries = [];
    let at = 0;
    for (const [name, bytes] of files) {
        const label = new TextEncoder().encode(name);
        /** @type {[number, number][]} */
        const common = [[20, 2], [utf8, 2], [0, 2], [0, 2], [day, 2], [checksum(bytes), 4], [bytes.length, 4], [bytes.length, 4], [label.length, 2], [0, 2]];
        const head = packed([[0x04034b50, 4], ...common]);
        entries.push(packed([[0x02014b50, 4], [20, 2], ...common, [0, 2], [0, 2], [0, 2], [0, 4], [at, 4]]), label);
        parts.push(head, label, bytes);
        at += head.length + label.length + bytes.length;
    }
    const size = entries.reduce((sum, entry) => sum + entry.length, 0);
    const end = packed([[0x06054b50, 4], [0, 2], [0, 2], [files.size, 2], [files.size, 2], [size, 4], [at, 4], [0, 2]]);
    return new Blob(/** @type {BlobPart[]} */ ([...parts, ...entries, end]), { type: "application/zip" });
}

/** @param {string} name @param {Blob} blob */
export function download(name, blob) {
    const link = document.createElement("a");
    link.href = URL.createObjectURL(blob);
    link.download = name;
    document.body.append(link);
    link.click();
    link.remove();
    setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

/** Lets the player choose topic files, and a picture. @param {(files: File[]) => void} chosen */
export function chooseFiles(chosen) {
    const chooser = document.createElement("input");
    chooser.type = "file";
    chooser.multiple = true;
    chooser.accept = ".txt,text/plain,.jpg,.jpeg,image/jpeg";
    chooser.hidden = true;
    document.body.append(chooser);
    chooser.addEventListener("change", () => {
        chooser.remove();
        chosen([...(chooser.files ?? [])]);
    });
    chooser.addEventListener("cancel", () => chooser.remove());
    chooser.click();
}

/** Tells of files that are dropped on the page.
 * @param {() => boolean} wanted @param {(files: File[]) => void} dropped */
export function watchDrops(wanted, dropped) {
    const isFiles = (/** @type {DragEvent} */ event) => event.dataTransfer?.types.includes("Files") ?? false;
    document.addEventListener("dragover", (event) => {
        if (!isFiles(event)) return;
        event.preventDefault();
        if (event.dataTransfer) event.dataTransfer.dropEffect = wanted() ? "copy" : "none";
    });
    document.addEventListener("drop", (event) => {
        if (!isFiles(event)) return;
        event.preventDefault();
        if (wanted()) dropped([...(event.dataTransfer?.files ?? [])]);
    });
}

/** Fills the box of the topics: a row for each, which downloads it, and buttons for them all.
 * @param {any} request @param {HTMLFormElement} form @param {Map<string, Uint8Array>} files
 * @param {() => void} take opens the way in */
export function fillTopics(request, form, files, take) {
    const list = document.createElement("ul");
    list.className = "files";
    for (const [name, bytes] of [...files].sort(([a], [b]) => a.localeCompare(b))) {
        const row = document.createElement("li");
        const button = document.createElement("button");
        button.type = "button";
        button.textContent = name;
        button.addEventListener("click", () => download(name, new Blob([/** @type {BlobPart} */ (bytes)], { type: "text/plain" })));
        row.append(button);
        list.append(row);
    }
    const row = document.createElement("div");
    row.className = "buttons";
    const add = (/** @type {string} */ caption, /** @type {string} */ name, /** @type {() => void} */ act) => {
        const button = document.createElement("button");
        button.type = "button";
        button.className = "push";
        button.dataset.act = name;
        button.textContent = caption;
        button.addEventListener("click", act);
        row.append(button);
    };
    if (request.takes) add(request.takeCaption, "take", take);
    add(request.allCaption, "all", () => download("Quillor.zip", zipped(files)));
    form.append(list, row);
}
