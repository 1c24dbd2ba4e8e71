// Sound effects: one at a time, a new one cuts off the one before.

const beepFrequency = 880; // hertz
const beepLength = 0.15;   // seconds
const beepAttack = 0.005;  // seconds; a shorter one clicks
const beepVolume = 0.3;    // of the loudest possible

export class Effects {
    #context = null;      // there is no sound before the player's first key or click
    #buffers = new Map(); // by file name
    #playing = null;

    // `readFile` returns the bytes of one of the game's files.
    constructor(fileNames, readFile) {
        this.fileNames = fileNames;
        this.readFile = readFile;
    }

    // The browser allows sound from now on.
    async start() {
        const context = new AudioContext();
        this.#context = context;
        await Promise.all(this.fileNames.map(async (name) => {
            const bytes = this.readFile(name);
            this.#buffers.set(name, await context.decodeAudioData(bytes.slice().buffer));
        }));
    }

    // Sound of a hidden page is a nuisance.
    setSilent(silent) {
        if (silent) {
            this.#context?.suspend();
        } else {
            this.#context?.resume();
        }
    }

    // Returns false when there is no such effect, or no sound yet.
    play(name) {
        const buffer = this.#buffers.get(name);
        if (buffer === undefined) return false;
        const source = this.#context.createBufferSource();
        source.buffer = buffer;
        source.connect(this.#context.destination);
        this.#replace(source);
        return true;
    }

    beep() {
        const context = this.#context;
        if (context === null) return false;
        const now = context.currentTime;
        const gain = context.createGain();
        gain.gain.setValueAtTime(0, now);
        gain.gain.linearRampToValueAtTime(beepVolume, now + beepAttack);
        gain.gain.linearRampToValueAtTime(0, now + beepLength);
        gain.connect(context.destination);
        const source = context.createOscillator();
        source.frequency.value = beepFrequency;
        source.connect(gain);
        this.#replace(source);
        source.stop(now + beepLength);
        return true;
    }

    #replace(source) {
        this.#playing?.stop();
        this.#playing = source;
        source.start();
    }
}
