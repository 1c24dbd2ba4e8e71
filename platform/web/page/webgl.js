// Small helpers for WebGL 2.

function compile(gl, kind, source) {
    const shader = gl.createShader(kind);
    gl.shaderSource(shader, source);
    gl.compileShader(shader);
    return shader;
}

// Returns a program. Throws with the compiler's text when it is wrong, unless the context is lost.
export function makeProgram(gl, vertexSource, fragmentSource) {
    const program = gl.createProgram();
    gl.attachShader(program, compile(gl, gl.VERTEX_SHADER, vertexSource));
    gl.attachShader(program, compile(gl, gl.FRAGMENT_SHADER, fragmentSource));
    gl.linkProgram(program);
    if (!gl.getProgramParameter(program, gl.LINK_STATUS) && !gl.isContextLost()) {
        throw new Error(gl.getProgramInfoLog(program));
    }
    return program;
}

// Returns the places of a program's uniforms by their names.
export function findUniforms(gl, program, names) {
    return Object.fromEntries(names.map((name) => [name, gl.getUniformLocation(program, name)]));
}

// Gives the bound array buffer's floats to the attributes 0, 1, 2, ... which have these sizes.
export function describeVertices(gl, sizes) {
    const floats = sizes.reduce((sum, size) => sum + size, 0);
    let offset = 0;
    sizes.forEach((size, index) => {
        gl.enableVertexAttribArray(index);
        gl.vertexAttribPointer(index, size, gl.FLOAT, false, 4 * floats, 4 * offset);
        offset += size;
    });
}
