// The service worker, which keeps a version of the page whole; and how the next one comes.
// @ts-check

/** Has the browser keep this version. @param {string} here where its files are */
export function keepVersion(here) {
    navigator.serviceWorker?.register(new URL("../sw.js", here)).catch(() => {});
}

/** Whether a newer version, fetched before, now takes the place of this one: where no other tab
 * is open. The page is loaded anew then, and has nothing else to do.
 * @returns {Promise<boolean>} */
export async function takenOver() {
    const registration = await navigator.serviceWorker?.getRegistration().catch(() => undefined);
    const next = registration?.waiting;
    if (!next) return false;
    // What this page has asked for already comes from its own version.
    if (document.readyState !== "complete") await new Promise((resolve) => window.addEventListener("load", resolve, { once: true }));
    /** @type {Promise<void>} */
    const active = new Promise((resolve) => {
        next.addEventListener("statechange", () => {
            if (next.state === "activated") resolve();
        });
    });
    const { port1, port2 } = new MessageChannel();
    /** @type {Promise<boolean>} */
    const answer = new Promise((resolve) => {
        port1.onmessage = (event) => resolve(event.data);
        setTimeout(() => resolve(false), 2000);
    });
    next.postMessage("take over", [port2]);
    if (!(await answer)) return false;
    await active;
    location.reload();
    return true;
}
