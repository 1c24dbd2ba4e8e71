// The best times. The game keeps them in a file; the browser keeps that file's text between visits.

const fileName = 'highScore.dat'; // of the game
const rivalsFile = 'rivals.dat';
const storageKey = 'glorbix-best-times';

export class BestTimes {
    #stamp = null; // of the file that was kept
    #reported = false;

    // `onFailure` is called once, with a sentence, when the browser keeps nothing.
    constructor(onFailure) {
        this.onFailure = onFailure;
    }

    // Writes the file from the storage, before the game reads it. A new player meets the rivals.
    restore(files) {
        let text = null;
        try {
            text = localStorage.getItem(storageKey);
        } catch (error) { this.#report(error); }
        files.writeFile(fileName, text ?? files.readFile(rivalsFile));
        this.#stamp = this.#stampOf(files);
    }

    // Keeps the file when the game has written it since the last call.
    keep(files) {
        const stamp = this.#stampOf(files);
        if (stamp === this.#stamp) return;
        this.#stamp = stamp;
        if (stamp === null) return;
        try {
            localStorage.setItem(storageKey, files.readFile(fileName, {encoding: 'utf8'}));
        } catch (error) { this.#report(error); }
    }

    // The game replaces the file by a new one, which has another number.
    #stampOf(files) {
        const {exists, object} = files.analyzePath(fileName);
        return exists ? `${object.id} ${object.timestamp}` : null;
    }

    #report(error) {
        if (this.#reported) return;
        this.#reported = true;
        this.onFailure(`This browser does not keep the best times: ${error.message}`);
    }
}
