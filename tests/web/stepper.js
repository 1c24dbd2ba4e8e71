// Makes a page's frames and clock the test's: time stands still until the test lets frames pass,
// each a 64th of a second long.
{
    const frameLength = 1000 / 64; // milliseconds
    let now = 1000;
    let next = null; // what the page wants to do in its next frame

    performance.now = () => now;
    window.requestAnimationFrame = (callback) => {
        next = callback;
        return 1;
    };
    window.cancelAnimationFrame = () => {};

    const turn = () => new Promise((resolve) => {
        const channel = new MessageChannel();
        channel.port1.onmessage = resolve;
        channel.port2.postMessage(null);
    });

    const waitForPage = async () => {
        while (next === null) await turn();
    };

    // Lets frames pass, and returns when the page waits for the one after them.
    window.passFrames = async (count) => {
        for (; count > 0; --count) {
            await waitForPage();
            now += frameLength;
            const callback = next;
            next = null;
            callback(now);
        }
        await waitForPage();
    };

    // The key goes down or up, with the codes that a keyboard gives.
    window.sendKey = (type, code, keyCode) => {
        const event = new KeyboardEvent(type, {code, bubbles: true, cancelable: true});
        Object.defineProperty(event, 'keyCode', {value: keyCode});
        document.activeElement.dispatchEvent(event);
    };
}
