// The game's textures. Their pixels are kept here as well: a graphics context that is lost takes
// its textures with it, and the game gives them only once.

const glClamp = 0x2900; // a way to wrap that WebGL does not have

export class Textures {
    constructor(gl) {
        this.gl = gl;
        this.known = new Map(); // by name: {object, parameters, levels}
    }

    // Binds a texture.
    bind(name) {
        const {gl} = this;
        gl.bindTexture(gl.TEXTURE_2D, this.#entry(name).object);
    }

    // Keeps and uploads one level. A level of the same size as before only gets new pixels.
    upload(name, level, width, height, components, pixels) {
        const entry = this.#entry(name);
        const before = entry.levels[level];
        const fits = before !== undefined && before.width === width && before.height === height &&
                     before.components === components;
        const kept = fits ? before.pixels : new Uint8Array(pixels.length);
        kept.set(pixels);
        entry.levels[level] = {width, height, components, pixels: kept};
        this.#send(entry, level, fits);
    }

    setParameter(name, parameter, value) {
        const {gl} = this;
        const entry = this.#entry(name);
        entry.parameters.set(parameter, value === glClamp ? gl.CLAMP_TO_EDGE : value);
        gl.bindTexture(gl.TEXTURE_2D, entry.object);
        gl.texParameteri(gl.TEXTURE_2D, parameter, entry.parameters.get(parameter));
    }

    delete(name) {
        const entry = this.known.get(name);
        if (entry === undefined) return;
        this.gl.deleteTexture(entry.object);
        this.known.delete(name);
    }

    // Uploads all again, to a context that has been restored.
    restore() {
        for (const [name, entry] of this.known) {
            entry.object = this.gl.createTexture();
            for (const [parameter, value] of entry.parameters) {
                this.setParameter(name, parameter, value);
            }
            entry.levels.forEach((_, level) => this.#send(entry, level, false));
        }
    }

    #entry(name) {
        if (!this.known.has(name)) {
            const {gl} = this;
            const object = gl.createTexture();
            const parameters = new Map([
                [gl.TEXTURE_MIN_FILTER, gl.NEAREST],
                [gl.TEXTURE_MAG_FILTER, gl.NEAREST],
            ]);
            this.known.set(name, {object, parameters, levels: []});
            for (const [parameter, value] of parameters) {
                this.setParameter(name, parameter, value);
            }
        }
        return this.known.get(name);
    }

    #send(entry, level, sameSize) {
        const {gl} = this;
        const {width, height, components, pixels} = entry.levels[level];
        const format = components === 3 ? gl.RGB : gl.RGBA;
        gl.bindTexture(gl.TEXTURE_2D, entry.object);
        if (sameSize) {
            gl.texSubImage2D(gl.TEXTURE_2D, level, 0, 0, width, height, format, gl.UNSIGNED_BYTE,
                             pixels);
        } else {
            const internal = components === 3 ? gl.RGB8 : gl.RGBA8;
            gl.texImage2D(gl.TEXTURE_2D, level, internal, width, height, 0, format,
                          gl.UNSIGNED_BYTE, pixels);
        }
    }
}
