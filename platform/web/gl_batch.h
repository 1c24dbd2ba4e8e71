// Triangles for the page, collected until the state changes: a draw call of WebGL costs about as
// much as hundreds of vertices, and the game draws each triangle of the ground by itself.
//
// gl_shapes.cpp, gl_state.cpp and gl_textures.cpp are the 27 functions of OpenGL 1.1 that the game
// calls. What they do not need for the game's pictures is left out: the matrices are the identity,
// and there are no lists, lights or stencils.
#pragma once

#include <cstdint>

#include "platform/web/gl_records.h"

// OpenGL's state, as its functions set it.
struct GlState {
    bool depthTest = false;
    bool cullFace = false;
    bool blend = false;
    bool texture2d = false;
    bool fog = false;
    bool lineSmooth = false;
    std::uint32_t depthFunction = 0x0201; // GL_LESS
    std::uint32_t culledFace = 0x0405;    // GL_BACK
    std::uint32_t blendSource = 1;        // GL_ONE
    std::uint32_t blendTarget = 0;        // GL_ZERO
    std::uint32_t boundTexture = 0;
    std::uint32_t textureMode = 0x2100; // GL_MODULATE
    float fogStart = 0.0F;
    float fogEnd = 1.0F;
    float fogColour[4] = {};
    float lineWidth = 1.0F; // pixels
    float clearColour[4] = {};
    float clearDepth = 1.0F;
};

extern GlState glState;

// Adds three corners of a triangle, to be drawn with the state as it is now.
void addTriangle(const Vertex& first, const Vertex& second, const Vertex& third);

// Adds a textured rectangle of the whole surface's width and height, or less: pixels from its lower
// left corner.
void addPicture(std::uint32_t texture, int width, int height);

// Draws what was collected.
void flushBatch();
