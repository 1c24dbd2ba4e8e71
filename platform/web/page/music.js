// The music: recordings of the game's MIDI files, one at a time. The browser plays them from
// memory, on a thread of its own.

export class Music {
    #audio = null;           // the piece that plays; null: none
    #recordings = new Map(); // promises of addresses in memory, by the name of the MIDI file
    #piece = null;           // its MIDI file
    #over = false;
    #silent = false;

    // `pieces` are {midi, recording}: names of files. `onError` is called once with a sentence when
    // a recording cannot be played.
    constructor(pieces, onError) {
        this.pieces = pieces;
        this.onError = onError;
    }

    // Loads all recordings, one after the other. One that is to be played earlier is loaded then.
    async load() {
        for (const {midi} of this.pieces) await this.#load(midi);
    }

    has(midi) {
        return this.pieces.some((piece) => piece.midi === midi);
    }

    // Plays a piece from its start, as soon as it is loaded.
    play(midi) {
        this.stop();
        const audio = new Audio();
        this.#audio = audio;
        this.#piece = midi;
        audio.addEventListener('ended', () => {
            if (this.#audio === audio) this.#over = true;
        });
        audio.addEventListener('error', () => this.#fail(audio));
        this.#load(midi).then((address) => {
            audio.src = address;
            if (audio === this.#audio) this.#start();
        }, () => this.#fail(audio));
    }

    stop() {
        this.#audio?.pause();
        this.#audio = null;
        this.#piece = null;
        this.#over = false;
    }

    // Returns true when the piece has played to its end.
    isOver() {
        return this.#over;
    }

    // Seconds that the present piece has played.
    time() {
        return this.#audio?.currentTime ?? 0;
    }

    // The MIDI file of the present piece; null: none.
    piece() {
        return this.#piece;
    }

    // Goes on from so many seconds after the start of the piece, or before its end.
    skipTo(seconds) {
        this.#audio.currentTime = seconds < 0 ? this.#audio.duration + seconds : seconds;
    }

    // A piece pauses while the page is hidden, and then goes on.
    setSilent(silent) {
        this.#silent = silent;
        if (silent) {
            this.#audio?.pause();
        } else {
            this.#start();
        }
    }

    // Browsers refuse sound before the player's first key or click. Call this at that key or click.
    start() {
        this.#start();
    }

    #start() {
        if (this.#silent || this.#over || !this.#audio?.src || !this.#audio.paused) return;
        this.#audio.play().catch(() => {}); // before the first key or click
    }

    // Resolves with the address of the recording.
    #load(midi) {
        if (!this.#recordings.has(midi)) {
            const {recording} = this.pieces.find((piece) => piece.midi === midi);
            this.#recordings.set(midi, this.#download(recording));
        }
        return this.#recordings.get(midi);
    }

    async #download(recording) {
        const response = await fetch(recording);
        if (!response.ok) throw new Error(`${recording}: ${response.status}`);
        return URL.createObjectURL(await response.blob());
    }

    #fail(audio) {
        if (audio !== this.#audio) return;
        this.stop();
        this.onError?.('The music cannot be played in this browser.');
        this.onError = null;
    }
}
