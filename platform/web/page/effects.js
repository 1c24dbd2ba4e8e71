// Sound effects: one at a time, a new one cuts off the one before.

export class Effects {
    #context = null;      // there is no sound before the player's first key or click
    #buffers = new Map(); // by file name
    #playing = null;      // the effect's source, or the beep's
    #beep = null;         // the source of a beep that sounds

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

    // A hidden page is silent.
    setSilent(silent) {
        if (silent) {
            this.#context?.suspend();
        } else {
            this.#context?.resume();
        }
    }

    // Returns false when there is no such effect, or no sound yet.
    play(name, volume) {
        const buffer = this.#buffers.get(name);
        if (buffer === undefined) return false;
        const source = this.#context.createBufferSource();
        source.buffer = buffer;
        const loudness = this.#connect(source);
        loudness.value = volume;
        this.#replace(source);
        return true;
    }

    // Rises for `attack` seconds and fades out, so that neither end clicks. A beep that sounds goes
    // on. Returns false when there is no sound yet.
    beep(frequency, length, attack, volume) {
        const context = this.#context;
        if (context === null) return false;
        if (this.#beep !== null && this.#beep === this.#playing) return true;
        const now = context.currentTime;
        const source = context.createOscillator();
        source.frequency.value = frequency;
        const loudness = this.#connect(source);
        loudness.setValueAtTime(0, now);
        loudness.linearRampToValueAtTime(volume, now + attack);
        loudness.linearRampToValueAtTime(0, now + length);
        this.#replace(source);
        source.stop(now + length);
        this.#beep = source;
        source.onended = () => {
            if (this.#beep === source) this.#beep = null;
        };
        return true;
    }

    // Returns the volume of the source, which can change with time.
    #connect(source) {
        const gain = this.#context.createGain();
        source.connect(gain);
        gain.connect(this.#context.destination);
        return gain.gain;
    }

    #replace(source) {
        this.#playing?.stop();
        this.#playing = source;
        source.start();
    }
}
