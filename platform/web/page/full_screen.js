// The full screen, of the part of the page with the picture.

export class FullScreen {
    constructor(element) {
        this.element = element;
    }

    isPossible() {
        return document.fullscreenEnabled === true;
    }

    // Must be called in answer to a key or a click.
    async toggle() {
        try {
            if (document.fullscreenElement !== null) {
                await document.exitFullscreen();
                return;
            }
            await this.element.requestFullscreen({navigationUI: 'hide'});
            // The browser then leaves the full screen only for a long Escape: the short one is the
            // game's menu.
            await navigator.keyboard?.lock?.(['Escape']);
        } catch {
            // The browser refuses; the game goes on as it is.
        }
    }
}
