// The functions of page_calls.h: each is an operation of one of the page's objects, which the page
// gives to the program as `Module.page`. Emscripten compiles this file into the program's script.

mergeInto(LibraryManager.library, {
    pageWaitForFrame: function() {
        return Asyncify.handleAsync(function() {
            return Module.page.waitForFrame();
        });
    },
    pageShowBox: function(caption, text, isError) {
        return Asyncify.handleAsync(function() {
            return Module.page.boxes.show(UTF8ToString(caption), UTF8ToString(text), isError !== 0);
        });
    },
    pageHasFocus: function() {
        return Module.page.focus.isHere() ? 1 : 0;
    },

    pageClear: function(buffers, red, green, blue, alpha, depth) {
        Module.page.screen.clear(buffers, [red, green, blue, alpha], depth);
    },
    pageDraw: function(state, vertices, count) {
        Module.page.screen.draw(HEAP32.subarray(state >> 2, (state >> 2) + 12),
                                HEAPF32.subarray(state >> 2, (state >> 2) + 12),
                                HEAPF32.subarray(vertices >> 2, (vertices >> 2) + 13 * count));
    },
    pageUploadTexture: function(name, level, width, height, components, pixels) {
        const rowBytes = (width * components + 3) & ~3;
        Module.page.screen.uploadTexture(name, level, width, height, components,
                                         HEAPU8.subarray(pixels, pixels + rowBytes * height));
    },
    pageSetTextureParameter: function(name, parameter, value) {
        Module.page.screen.setTextureParameter(name, parameter, value);
    },
    pageDeleteTexture: function(name) {
        Module.page.screen.deleteTexture(name);
    },
    pageShowPicture: function() {
        Module.page.screen.show();
    },

    pagePlayEffect: function(fileName, volume) {
        return Module.page.effects.play(UTF8ToString(fileName), volume) ? 1 : 0;
    },
    pagePlayBeep: function(frequency, length, attack, volume) {
        return Module.page.effects.beep(frequency, length, attack, volume) ? 1 : 0;
    },
    pageHasPiece: function(fileName) {
        return Module.page.music.has(UTF8ToString(fileName)) ? 1 : 0;
    },
    pagePlayPiece: function(fileName) {
        Module.page.music.play(UTF8ToString(fileName));
    },
    pageStopMusic: function() {
        Module.page.music.stop();
    },
    pageIsMusicOver: function() {
        return Module.page.music.isOver() ? 1 : 0;
    },

    pageEnd: function(exitCode) {
        Module.page.end(exitCode);
    },
});
