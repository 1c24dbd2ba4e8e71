// The sentence over the picture: the progress of the download, or why there is no picture.

export class Notice {
    constructor(element) {
        this.element = element;
        this.text = element.querySelector('p');
        this.progress = element.querySelector('progress');
    }

    // Shows a sentence and a bar; `share` is 0 to 1.
    show(sentence, share) {
        this.say(sentence);
        this.progress.hidden = false;
        this.progress.value = share;
    }

    // Shows a sentence alone.
    say(sentence) {
        this.text.textContent = sentence;
        this.progress.hidden = true;
        this.element.hidden = false;
    }

    hide() {
        this.element.hidden = true;
    }
}
