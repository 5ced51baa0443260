// The service worker, which keeps a version of the page whole.
// @ts-check

/** Has the browser keep this version. @param {string} here where its files are */
export function keepVersion(here) {
    navigator.serviceWorker?.register(new URL("../sw.js", here)).catch(() => {});
}
