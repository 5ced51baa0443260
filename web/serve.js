// Serves the page from this machine: node web/serve.js [FOLDER [PORT]]
// QUILLOR_OPENER  the command that opens an address in a browser (default: none)
// It compresses as any web server can be told to. For trying the page out, not for the world.
import { spawn } from "node:child_process";
import { createReadStream, existsSync, statSync } from "node:fs";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";
import { fileURLToPath } from "node:url";
import { createGzip } from "node:zlib";

const types = {
    ".html": "text/html; charset=utf-8",
    ".js": "text/javascript; charset=utf-8",
    ".mjs": "text/javascript; charset=utf-8",
    ".css": "text/css; charset=utf-8",
    ".json": "application/json; charset=utf-8",
    ".txt": "text/plain; charset=utf-8",
    ".svg": "image/svg+xml",
    ".png": "image/png",
    ".wav": "audio/wav",
    ".wasm": "application/wasm",
    ".woff2": "font/woff2",
    ".webmanifest": "application/manifest+json",
};
const compressed = new Set([".html", ".js", ".mjs", ".css", ".json", ".txt", ".svg", ".wasm", ".webmanifest"]);

/** What an address asks for; null where it is none. */
function fileOf(folder, address) {
    try {
        return join(folder, normalize(decodeURIComponent(new URL(address, "http://localhost").pathname)));
    } catch {
        return null;
    }
}

/** Has this machine's browser open an address, where it can be told how. */
function open(address, opener) {
    if (!opener) return;
    const started = spawn(opener, [address], { stdio: "ignore", detached: true });
    started.on("error", () => {});
    started.unref();
}

/** Starts serving a folder; port 0 is any that is free. Resolves once it listens. */
export function serve(folder, port = 0) {
    const server = createServer((request, response) => {
        let file = fileOf(folder, request.url);
        if (file && existsSync(file) && statSync(file).isDirectory()) file = join(file, "index.html");
        if (!file || !file.startsWith(folder) || !existsSync(file)) {
            response.writeHead(404).end();
            return;
        }
        const ending = extname(file);
        const small = compressed.has(ending) && /\bgzip\b/.test(request.headers["accept-encoding"] ?? "");
        response.writeHead(200, {
            "content-type": types[ending] ?? "application/octet-stream",
            "cache-control": "no-cache",
            ...(small ? { "content-encoding": "gzip" } : {}),
        });
        const bytes = createReadStream(file);
        (small ? bytes.pipe(createGzip()) : bytes).pipe(response);
    });
    return new Promise((resolve, reject) => {
        server.once("error", reject);
        server.listen(port, "127.0.0.1", () => resolve(server));
    });
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
    const folder = normalize(process.argv[2] ?? fileURLToPath(new URL("../build/web", import.meta.url)));
    // Another program may have the usual one.
    const server = await serve(folder, Number(process.argv[3] ?? 8642)).catch(() => serve(folder));
    const address = `http://localhost:${server.address().port}/`;
    const opener = process.env.QUILLOR_OPENER;
    console.log(`Quillor is at ${address} until you press Ctrl+C.`);
    if (!opener) console.log("Open that address in a browser: none can be opened from here.");
    open(address, opener);
}
