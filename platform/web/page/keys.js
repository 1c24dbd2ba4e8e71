// The player's keys. For all keys of the game, `keyCode` of the browser is the virtual-key code of
// Windows.

const enter = 13;

// Keys that stay the browser's own: Tab, and F11 for its full screen.
const browserKeys = new Set([9, 122]);

// Reports keys to `program`: keyDown(key, repeated) and keyUp(key). `onFirst` is called at the
// first key or click, before anything else: browsers allow sound from then on.
export class Keys {
    #held = new Map(); // by place on the keyboard: the key

    constructor({program, isForGame, onFirst, onFullScreen}) {
        this.program = program;
        this.isForGame = isForGame;
        this.onFullScreen = onFullScreen;
        const first = () => {
            for (const name of ['keydown', 'pointerdown'])
                window.removeEventListener(name, first, {capture: true});
            onFirst();
        };
        for (const name of ['keydown', 'pointerdown'])
            window.addEventListener(name, first, {capture: true});
        window.addEventListener('keydown', (event) => this.#down(event));
        window.addEventListener('keyup', (event) => this.#up(event));
    }

    isHeld(key) {
        return [...this.#held.values()].includes(key);
    }

    // No key is held any more: the page has lost the focus, or a message box has opened.
    releaseAll() {
        for (const key of this.#held.values()) this.program.keyUp(key);
        this.#held.clear();
    }

    #down(event) {
        if (!this.isForGame(event) || event.isComposing) return;
        if (event.altKey && event.keyCode === enter) {
            event.preventDefault();
            if (!event.repeat) this.onFullScreen();
            return;
        }
        if (event.altKey || event.ctrlKey || event.metaKey || browserKeys.has(event.keyCode))
            return;
        event.preventDefault();
        const isHeld = this.#held.has(event.code);
        if (event.repeat && !isHeld) return; // it went down outside the game
        this.#held.set(event.code, event.keyCode);
        this.program.keyDown(event.keyCode, isHeld);
    }

    #up(event) {
        const key = this.#held.get(event.code);
        if (event.key === 'Meta') this.releaseAll(); // macOS reports no key that goes up meanwhile
        if (key === undefined) return;
        this.#held.delete(event.code);
        if (!this.isHeld(key)) this.program.keyUp(key);
    }
}
