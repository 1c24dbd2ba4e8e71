// The wait for the display's next frame.

const hiddenFrame = 100; // milliseconds

// Resolves at the next frame. While the page is hidden there are none: it then resolves after a
// tenth of a second, so that the game learns that it has lost the focus, and takes little time.
export function waitForFrame() {
    return new Promise((resolve) => {
        if (document.hidden) {
            setTimeout(resolve, hiddenFrame);
            return;
        }
        const done = () => {
            cancelAnimationFrame(frame);
            document.removeEventListener('visibilitychange', done);
            resolve();
        };
        const frame = requestAnimationFrame(done);
        document.addEventListener('visibilitychange', done);
    });
}
