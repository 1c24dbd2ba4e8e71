// Message boxes: a caption on a coloured band, the text, and an "OK" button. Return, Space, Escape
// and a click on the button close a box.

export class Boxes {
    #last = Promise.resolve(); // when the box that was opened last is closed
    #open = 0;                 // boxes that are open, or wait for another one to close

    // `onOpen` is called before a box opens.
    constructor(onOpen) {
        this.onOpen = onOpen;
    }

    isOpen() {
        return this.#open > 0;
    }

    // Shows a box, after those before it. Resolves when the player has closed it.
    show(caption, text, isError) {
        ++this.#open;
        this.onOpen();
        this.#last = this.#last.then(() => this.#showNow(this.#make(caption, text, isError)));
        return this.#last;
    }

    async #showNow(box) {
        (document.fullscreenElement ?? document.body).append(box);
        box.showModal();
        await new Promise((resolve) => box.addEventListener('close', resolve, {once: true}));
        box.remove();
        --this.#open;
    }

    #make(caption, text, isError) {
        const box = document.createElement('dialog');
        box.className = isError ? 'box error' : 'box';
        const band = document.createElement('h2');
        band.textContent = caption;
        const message = document.createElement('p');
        message.textContent = text;
        const button = document.createElement('button');
        button.textContent = 'OK';
        button.autofocus = true;
        button.addEventListener('click', () => box.close());
        box.append(band, message, button);
        // A key that was held before the box opened repeats; it must not close the box unread.
        box.addEventListener('keydown', (event) => {
            if (event.repeat) event.preventDefault();
        });
        return box;
    }
}
