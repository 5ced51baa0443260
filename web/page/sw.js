// Keeps one version of the page, whole, so that it opens without a network. A new version is
// fetched beside it and takes over once no tab shows the old one.
// @ts-check
/// <reference lib="webworker" />

const worker = /** @type {ServiceWorkerGlobalScope} */ (/** @type {unknown} */ (self));
const version = "quillor @VERSION@";
const files = ["./", "manifest.webmanifest", "@FILES@"];

worker.addEventListener("install", (event) => {
    event.waitUntil(
        caches.open(version).then((kept) => kept.addAll(files.map((file) => new Request(file, { cache: "reload" })))),
    );
});

worker.addEventListener("activate", (event) => {
    event.waitUntil(
        caches.keys().then((names) =>
            Promise.all(names.filter((each) => each.startsWith("quillor ") && each !== version).map((each) => caches.delete(each))),
        ),
    );
});

worker.addEventListener("fetch", (event) => {
    const { request } = event;
    if (request.method !== "GET" || new URL(request.url).origin !== worker.location.origin) return;
    event.respondWith(
        caches.open(version).then(async (kept) => {
            const found = await kept.match(request, { ignoreSearch: request.mode === "navigate" });
            return found ?? fetch(request);
        }),
    );
});
