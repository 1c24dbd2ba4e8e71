// Whether the player's keys go to the game: the page is visible, has the browser's focus, and shows
// nothing that takes the keys itself.

export class Focus {
    #obstacles = new Set();

    // `onChange` is called with true or false whenever the answer may have changed.
    constructor(onChange) {
        this.onChange = onChange;
        for (const name of ['focus', 'blur']) window.addEventListener(name, () => this.#report());
        document.addEventListener('visibilitychange', () => this.#report());
    }

    isHere() {
        return this.#obstacles.size === 0 && !document.hidden && document.hasFocus();
    }

    // Something of the page, which has this name, takes the focus from the game, or gives it back.
    setObstacle(name, isThere) {
        if (isThere) {
            this.#obstacles.add(name);
        } else {
            this.#obstacles.delete(name);
        }
        this.#report();
    }

    #report() {
        this.onChange(this.isHere());
    }
}
