#include <cstddef>

#include <GL/gl.h>

#include "render/ground_walk.h"
#include "render/textures.h"
#include "sim/level.h"
#include "sim/view_frame.h"

namespace {

// Fog is measured in inverse depth, so its start is the larger value.
constexpr GLfloat fogStart = 0.0025F;                          // depth 400
constexpr GLfloat fogEnd = static_cast<GLfloat>(1.0 / 1800.0); // depth 1800

void setGroundState(const Level& ground, bool fogOn) {
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT);
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, groundTexture);
    glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glDisable(GL_BLEND);
    if (!fogOn) {
        glDisable(GL_FOG);
        return;
    }
    glEnable(GL_FOG);
    glHint(GL_FOG_HINT, GL_NICEST);
    glFogfv(GL_FOG_COLOR, ground.fogColour);
    glFogf(GL_FOG_MODE, GL_LINEAR);
    glFogf(GL_FOG_START, fogStart);
    glFogf(GL_FOG_END, fogEnd);
}

void putVertex(const Level& ground, std::size_t index) {
    const Vector3& texture = ground.groundTexCoords[index];
    const Vector3& screen = ground.groundScreen[index];
    glTexCoord2f(texture[0], texture[1]);
    glVertex3f(screen.x, screen.y, screen.z);
}

void drawTriangle(const Level& ground, std::size_t first, std::size_t second, std::size_t third) {
    glBegin(GL_TRIANGLES);
    putVertex(ground, first);
    putVertex(ground, second);
    putVertex(ground, third);
    glEnd();
}

void drawCell(const Level& ground, std::size_t corner) {
    const std::size_t opposite = corner + groundIndex(1, 1);
    drawTriangle(ground, corner, corner + groundIndex(1, 0), opposite);
    drawTriangle(ground, corner, opposite, corner + groundIndex(0, 1));
}

} // namespace

std::int32_t Level::drawGround(const ViewFrame& view, bool farSight, bool fogOn) {
    setGroundState(*this, fogOn);
    static GroundCells cells;
    cells.count = 0;
    // Without a mesh a level has failed to load, and the program is about to end.
    if (groundTexCoords != nullptr) { walkGround(*this, view, farSight, cells); }
    for (std::int32_t i = 0; i < cells.count; ++i) {
        drawCell(*this, cells.indices[i]);
    }
    glFlush();
    return 2 * cells.count;
}
