// The program's files in the browser's own storage: each whole or not at all, whatever other
// tabs do, which hear of every change.
// @ts-check

const kName = "quillor";
const kStore = "files";

/** @typedef {{path: string, bytes: Uint8Array | null, isNew: boolean}} Change
 *   without bytes the file goes */

/** @template T @param {IDBRequest<T>} request @returns {Promise<T>} */
function done(request) {
    return new Promise((resolve, reject) => {
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

export class Storage {
    /** @param {{lost: () => void, changed: (path: string, bytes: Uint8Array | null) => void}} tell
     *   `lost`: the browser refuses to keep anything; `changed`: by another tab */
    constructor(tell) {
        this.tell = tell;
        /** @type {IDBDatabase | null} */
        this.database = null;
        /** @type {Map<string, Change>} */
        this.waiting = new Map();
        /** @type {Promise<void>} */
        this.writing = Promise.resolve();
        this.scheduled = false;
        this.isLost = false;
        this.isHeld = false;
        this.others = typeof BroadcastChannel === "undefined" ? null : new BroadcastChannel(kName);
        if (this.others)
            this.others.onmessage = (event) => this.tell.changed(event.data.path, event.data.bytes);
    }

    /** All files that are kept; none where the browser has no storage for the page.
     * @returns {Promise<Map<string, Uint8Array>>} */
    async load() {
        /** @type {Map<string, Uint8Array>} */
        const files = new Map();
        try {
            const request = indexedDB.open(kName, 1);
            request.onupgradeneeded = () => request.result.createObjectStore(kStore);
            this.database = await done(request);
            this.database.onversionchange = () => this.database?.close();
            const store = this.database.transaction(kStore).objectStore(kStore);
            const [paths, all] = await Promise.all([done(store.getAllKeys()), done(store.getAll())]);
            paths.forEach((path, i) => files.set(String(path), all[i]));
        } catch {
            this.database = null;
        }
        return files;
    }

    /** Keeps what a file has become; with all else of this moment, or not at all.
     * @param {Change} change */
    keep(change) {
        const before = this.waiting.get(change.path);
        this.waiting.set(change.path, { ...change, isNew: change.isNew && !before });
        if (this.scheduled) return;
        this.scheduled = true;
        queueMicrotask(() => {
            this.scheduled = false;
            this.writing = this.writing.then(() => this.write());
        });
    }
    /** Settles once all that was kept so far has been written or refused. */
    async settled() {
        await new Promise((resolve) => setTimeout(resolve));
        await this.writing;
    }

    async write() {
        const changes = [...this.waiting.values()];
        if (changes.length === 0) return;
        try {
            if (!this.database) throw new Error("no storage");
            await this.commit(this.database, changes);
        } catch {
            this.lose();
            return;
        }
        this.isLost = false;
        this.holdOn();
        for (const change of changes) {
            if (this.waiting.get(change.path) === change) this.waiting.delete(change.path);
            this.others?.postMessage({ path: change.path, bytes: change.bytes });
        }
    }
    // Browsers drop what pages keep when they need room, unless they are asked not to. Some ask
    // the player about it: only one who has done something here would know why.
    holdOn() {
        if (this.isHeld || navigator.userActivation?.hasBeenActive === false) return;
        this.isHeld = true;
        navigator.storage?.persist?.().catch(() => {});
    }
    /** @param {IDBDatabase} database @param {Change[]} changes @returns {Promise<void>} */
    commit(database, changes) {
        return new Promise((resolve, reject) => {
            const transaction = database.transaction(kStore, "readwrite", { durability: "strict" });
            transaction.oncomplete = () => resolve();
            transaction.onabort = transaction.onerror = () => reject(transaction.error ?? new Error("aborted"));
            const store = transaction.objectStore(kStore);
            for (const change of changes) this.put(store, change);
        });
    }
    // What another tab has made meanwhile stays as it is.
    /** @param {IDBObjectStore} store @param {Change} change */
    put(store, { path, bytes, isNew }) {
        if (!bytes) {
            store.delete(path);
        } else if (isNew) {
            const there = store.get(path);
            there.onsuccess = () => {
                if (there.result === undefined) store.put(bytes, path);
                else this.tell.changed(path, there.result);
            };
        } else {
            store.put(bytes, path);
        }
    }
    // What was refused is tried again with the next file.
    lose() {
        if (this.isLost) return;
        this.isLost = true;
        this.tell.lost();
    }
}
