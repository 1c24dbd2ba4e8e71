// Draws the game's triangles with WebGL 2 on its surface, and shows the surface on the canvas.

import * as shaders from './shaders.js';
import {makeSurface, surfaceHeight, surfaceWidth} from './surface.js';
import {Textures} from './textures.js';
import {describeVertices, findUniforms, makeProgram} from './webgl.js';

const glModulate = 0x2100;
const uniformNames = ['textureMode', 'fog', 'fogStart', 'fogEnd', 'fogColour'];
const vertexSizes = [3, 2, 4, 4]; // floats: position, texture coordinates, colour, line

export class Screen {
    // Throws when the browser has no WebGL 2.
    constructor(canvas) {
        this.canvas = canvas;
        this.gl = canvas.getContext('webgl2', {
            alpha: false,
            antialias: false,
            depth: false,
            powerPreference: 'high-performance',
        });
        if (this.gl === null) throw new Error('there is no WebGL 2');
        this.textures = new Textures(this.gl);
        this.drawCalls = 0; // in this frame
        this.counts = {frames: 0, drawCalls: 0, most: 0};
        this.canvasSize = [surfaceWidth, surfaceHeight];
        this.onPicture = null; // called with this object when a picture is complete, for tests
        this.#prepare();
        this.#followSize();
    }

    // The context has been restored: everything in it is made again.
    restore() {
        this.#prepare();
        this.textures.restore();
    }

    clear(buffers, colour, depth) {
        const {gl} = this;
        this.#useSurface();
        gl.clearColor(...colour);
        gl.clearDepth(depth);
        gl.clear(buffers);
    }

    // Draws triangles. `state` and `floats` are the same record (DrawState in gl_records.h).
    draw(state, floats, vertices) {
        const {gl, uniforms} = this;
        const [depthFunction, culledFace, source, target, texture, mode, fog] = state;
        this.#useSurface();
        gl.useProgram(this.program);
        this.#enable(gl.DEPTH_TEST, depthFunction !== 0);
        if (depthFunction !== 0) gl.depthFunc(depthFunction);
        this.#enable(gl.CULL_FACE, culledFace !== 0);
        if (culledFace !== 0) gl.cullFace(culledFace);
        this.#enable(gl.BLEND, source !== 0 || target !== 0);
        gl.blendFunc(source, target);
        if (texture !== 0) this.textures.bind(texture);
        gl.uniform1i(uniforms.textureMode, texture === 0 ? 0 : mode === glModulate ? 1 : 2);
        gl.uniform1i(uniforms.fog, fog);
        gl.uniform1f(uniforms.fogStart, floats[7]);
        gl.uniform1f(uniforms.fogEnd, floats[8]);
        gl.uniform3f(uniforms.fogColour, floats[9], floats[10], floats[11]);
        gl.bindVertexArray(this.vertexArray);
        gl.bindBuffer(gl.ARRAY_BUFFER, this.vertexBuffer);
        gl.bufferData(gl.ARRAY_BUFFER, vertices, gl.STREAM_DRAW);
        gl.drawArrays(gl.TRIANGLES, 0, vertices.length / 13);
        ++this.drawCalls;
    }

    uploadTexture(name, level, width, height, components, pixels) {
        this.textures.upload(name, level, width, height, components, pixels);
    }

    setTextureParameter(name, parameter, value) {
        this.textures.setParameter(name, parameter, value);
    }

    deleteTexture(name) {
        this.textures.delete(name);
    }

    // Shows the surface. The canvas gets its size here, because a change of size clears it.
    show() {
        const {gl, canvas} = this;
        this.onPicture?.(this);
        const [width, height] = this.canvasSize;
        if (canvas.width !== width) canvas.width = width;
        if (canvas.height !== height) canvas.height = height;
        gl.bindFramebuffer(gl.FRAMEBUFFER, null);
        gl.viewport(0, 0, width, height);
        for (const test of [gl.DEPTH_TEST, gl.CULL_FACE, gl.BLEND]) gl.disable(test);
        gl.useProgram(this.showProgram);
        gl.uniform2f(this.scale, width / surfaceWidth, height / surfaceHeight);
        gl.bindTexture(gl.TEXTURE_2D, this.surface.colour);
        gl.bindVertexArray(null);
        gl.drawArrays(gl.TRIANGLES, 0, 3);
        this.#count();
    }

    // Returns the surface's pixels, red, green, blue and opacity of each, from the lower left
    // corner.
    pixels() {
        const {gl} = this;
        const bytes = new Uint8Array(4 * surfaceWidth * surfaceHeight);
        this.#useSurface();
        gl.readPixels(0, 0, surfaceWidth, surfaceHeight, gl.RGBA, gl.UNSIGNED_BYTE, bytes);
        return bytes;
    }

    #prepare() {
        const {gl} = this;
        gl.disable(gl.DITHER);
        gl.pixelStorei(gl.UNPACK_ALIGNMENT, 4);
        this.surface = makeSurface(gl);
        this.program = makeProgram(gl, shaders.gameVertexShader, shaders.gameFragmentShader);
        this.uniforms = findUniforms(gl, this.program, uniformNames);
        this.showProgram = makeProgram(gl, shaders.showVertexShader, shaders.showFragmentShader);
        this.scale = gl.getUniformLocation(this.showProgram, 'scale');
        this.vertexBuffer = gl.createBuffer();
        this.vertexArray = gl.createVertexArray();
        gl.bindVertexArray(this.vertexArray);
        gl.bindBuffer(gl.ARRAY_BUFFER, this.vertexBuffer);
        describeVertices(gl, vertexSizes);
    }

    #useSurface() {
        const {gl} = this;
        gl.bindFramebuffer(gl.FRAMEBUFFER, this.surface.framebuffer);
        gl.viewport(0, 0, surfaceWidth, surfaceHeight);
    }

    #enable(test, on) {
        if (on) {
            this.gl.enable(test);
        } else {
            this.gl.disable(test);
        }
    }

    #count() {
        ++this.counts.frames;
        this.counts.drawCalls = this.drawCalls + 1;
        this.counts.most = Math.max(this.counts.most, this.counts.drawCalls);
        this.drawCalls = 0;
    }

    // Keeps the size of the canvas on the display, in its own pixels.
    #followSize() {
        new ResizeObserver(([entry]) => {
            const [box] = entry.devicePixelContentBoxSize ?? [];
            const {width, height} = entry.contentRect;
            const ratio = window.devicePixelRatio;
            this.canvasSize = [
                Math.max(1, box?.inlineSize ?? Math.round(width * ratio)),
                Math.max(1, box?.blockSize ?? Math.round(height * ratio)),
            ];
        }).observe(this.canvas);
    }
}
