// The carried sounds, once the player has touched the page: before that no browser plays any.
// @ts-check

export class Sounds {
    /** @param {string} folder where the sounds are */
    constructor(folder) {
        this.folder = folder;
        /** @type {AudioContext | null} */
        this.context = null;
        /** @type {Map<number, AudioBuffer>} */
        this.decoded = new Map();
        const wake = () => this.wake();
        for (const name of ["pointerup", "keydown"]) document.addEventListener(name, wake, { capture: true });
    }

    wake() {
        if (typeof AudioContext === "undefined") return;
        if (!this.context) {
            try {
                this.context = new AudioContext();
            } catch {
                return;
            }
            this.fetchAll(this.context);
        }
        if (this.context.state === "suspended") this.context.resume().catch(() => {});
    }
    /** @param {AudioContext} context */
    fetchAll(context) {
        for (let id = 101; id <= 106; ++id)
            fetch(`${this.folder}${id}.wav`)
                .then((answer) => answer.arrayBuffer())
                .then((bytes) => context.decodeAudioData(bytes))
                .then((buffer) => this.decoded.set(id, buffer))
                .catch(() => {});
    }

    /** Plays a sound and tells when it has ended. Where it cannot be played nobody waits.
     * @param {number} id @param {() => void} ended @returns {boolean} whether it plays */
    play(id, ended) {
        const buffer = this.decoded.get(id);
        if (!this.context || this.context.state !== "running" || !buffer) return false;
        const source = this.context.createBufferSource();
        source.buffer = buffer;
        source.connect(this.context.destination);
        let over = false;
        const end = () => {
            if (over) return;
            over = true;
            ended();
        };
        source.onended = end;
        // A device that has gone away tells of no end.
        setTimeout(end, buffer.duration * 1000 + 150);
        source.start();
        return true;
    }
}
