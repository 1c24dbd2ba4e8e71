// The two programs for the graphics processor.

// Draws on the game's surface as OpenGL 1.1 does: texture, fog, and the fading sides of smooth
// lines.
export const gameVertexShader = `#version 300 es
layout(location = 0) in vec3 position;
layout(location = 1) in vec2 textureCoordinates;
layout(location = 2) in vec4 colour;
layout(location = 3) in vec4 line; // across, half width, along, half length
out vec2 at;
out vec4 shade;
out vec4 place;
out float distanceToEye;

void main() {
    gl_Position = vec4(position, 1.0);
    at = textureCoordinates;
    shade = colour;
    place = line;
    distanceToEye = abs(position.z);
}`;

export const gameFragmentShader = `#version 300 es
precision highp float;
in vec2 at;
in vec4 shade;
in vec4 place;
in float distanceToEye;
uniform sampler2D image;
uniform int textureMode; // 0: no texture, 1: modulate, 2: decal
uniform bool fog;
uniform float fogStart;
uniform float fogEnd;
uniform vec3 fogColour;
out vec4 colour;

void main() {
    colour = shade;
    if (textureMode != 0) {
        vec4 texel = texture(image, at);
        colour = textureMode == 1 ? shade * texel
                                  : vec4(mix(shade.rgb, texel.rgb, texel.a), shade.a);
    }
    if (fog) {
        float clear = clamp((fogEnd - distanceToEye) / (fogEnd - fogStart), 0.0, 1.0);
        colour.rgb = mix(fogColour, colour.rgb, clear);
    }
    vec2 covered = clamp(place.yw - abs(place.xz), 0.0, 1.0);
    colour.a *= covered.x * covered.y;
}`;

// Shows the surface on the canvas. Its pixels stay sharp squares at any size: only where a pixel of
// the canvas lies across two of them, it is a mixture of both.
export const showVertexShader = `#version 300 es
out vec2 at;

void main() {
    at = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 2.0;
    gl_Position = vec4(at * 2.0 - 1.0, 0.0, 1.0);
}`;

export const showFragmentShader = `#version 300 es
precision highp float;
in vec2 at;
uniform sampler2D surface;
uniform vec2 scale; // pixels of the canvas for one of the surface, each way
out vec4 colour;

void main() {
    vec2 size = vec2(textureSize(surface, 0));
    vec2 pixel = at * size;
    vec2 border = floor(pixel + 0.5); // between two pixels of the surface
    vec2 sharp = border + clamp((pixel - border) * max(scale, 1.0), -0.5, 0.5);
    colour = vec4(texture(surface, sharp / size).rgb, 1.0);
}`;
