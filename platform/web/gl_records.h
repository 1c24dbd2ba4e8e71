// What the page is given to draw: triangles, and the state that they are drawn with.
#pragma once

#include <cstdint>

// How a batch is drawn. The page reads the fields as 12 numbers of 32 bits in this order.
struct DrawState {
    std::int32_t depthFunction = 0; // GL_GREATER and so on; 0: no depth test
    std::int32_t culledFace = 0;    // GL_FRONT or GL_BACK; 0: none
    std::int32_t blendSource = 0;   // factors of glBlendFunc; both 0: no blending
    std::int32_t blendTarget = 0;
    std::int32_t texture = 0;     // its name; 0: none
    std::int32_t textureMode = 0; // GL_MODULATE or GL_DECAL
    std::int32_t fog = 0;         // 1: on
    float fogStart = 0.0F;        // distances from the eye
    float fogEnd = 0.0F;
    float fogColour[3] = {};

    bool operator==(const DrawState&) const = default;
};
static_assert(sizeof(DrawState) == 12 * 4);

// A corner of a triangle, 13 floats for the page. A pixel of a line fades with its distance from
// the middle of the line; for other shapes these four numbers leave it as it is.
struct Vertex {
    float x = 0.0F; // NDC
    float y = 0.0F;
    float z = 0.0F;
    float s = 0.0F; // texture coordinates
    float t = 0.0F;
    float colour[4] = {1.0F, 1.0F, 1.0F, 1.0F};
    float across = 0.0F; // pixels from the middle of a line, to its side and along it
    float halfWidth = 1.0F;
    float along = 0.0F;
    float halfLength = 1.0F;
};
static_assert(sizeof(Vertex) == 13 * 4);
