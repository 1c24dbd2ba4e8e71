#include "platform/web/gl_batch.h"

#include <algorithm>
#include <vector>

#include <GL/gl.h>

#include "platform/display_mode.h"
#include "platform/web/page_calls.h"

GlState glState;

namespace {

struct Batch {
    DrawState state;
    std::vector<Vertex> vertices;
};

Batch batch;

// What does not matter is left at 0, so that it does not end a batch.
DrawState drawState() {
    DrawState state;
    if (glState.depthTest) {
        state.depthFunction = static_cast<std::int32_t>(glState.depthFunction);
    }
    if (glState.cullFace) { state.culledFace = static_cast<std::int32_t>(glState.culledFace); }
    if (glState.blend) {
        state.blendSource = static_cast<std::int32_t>(glState.blendSource);
        state.blendTarget = static_cast<std::int32_t>(glState.blendTarget);
    }
    if (glState.texture2d) {
        state.texture = static_cast<std::int32_t>(glState.boundTexture);
        state.textureMode = static_cast<std::int32_t>(glState.textureMode);
    }
    if (glState.fog) {
        state.fog = 1;
        state.fogStart = glState.fogStart;
        state.fogEnd = glState.fogEnd;
        std::copy_n(glState.fogColour, 3, state.fogColour);
    }
    return state;
}

void useState(const DrawState& state) {
    if (state == batch.state) { return; }
    flushBatch();
    batch.state = state;
}

Vertex pictureCorner(float x, float y, float s, float t) {
    Vertex corner;
    corner.x = x;
    corner.y = y;
    corner.s = s;
    corner.t = t;
    return corner;
}

} // namespace

void addTriangle(const Vertex& first, const Vertex& second, const Vertex& third) {
    useState(drawState());
    batch.vertices.insert(batch.vertices.end(), {first, second, third});
}

void addPicture(std::uint32_t texture, int width, int height) {
    DrawState state = drawState();
    state.texture = static_cast<std::int32_t>(texture);
    state.textureMode = GL_MODULATE;
    useState(state);
    const float right = 2.0F * static_cast<float>(width) / screenWidth - 1.0F;
    const float top = 2.0F * static_cast<float>(height) / screenHeight - 1.0F;
    const Vertex lowerLeft = pictureCorner(-1.0F, -1.0F, 0.0F, 0.0F);
    const Vertex lowerRight = pictureCorner(right, -1.0F, 1.0F, 0.0F);
    const Vertex upperLeft = pictureCorner(-1.0F, top, 0.0F, 1.0F);
    const Vertex upperRight = pictureCorner(right, top, 1.0F, 1.0F);
    batch.vertices.insert(batch.vertices.end(), {lowerLeft, lowerRight, upperRight});
    batch.vertices.insert(batch.vertices.end(), {lowerLeft, upperRight, upperLeft});
}

void flushBatch() {
    if (batch.vertices.empty()) { return; }
    pageDraw(&batch.state, batch.vertices.data(), static_cast<int>(batch.vertices.size()));
    batch.vertices.clear();
}
