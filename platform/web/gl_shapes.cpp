// glBegin to glEnd: shapes become triangles. Lines become thin rectangles, which OpenGL's software
// renderer on the desktop does as well.

#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <vector>

#include "platform/display_mode.h"
#include "platform/web/gl_batch.h"

namespace {

constexpr float pixelsPerNdcX = screenWidth / 2.0F;
constexpr float pixelsPerNdcY = screenHeight / 2.0F;

// A smooth line is half a pixel wider on each side, where it fades out, and half a pixel longer at
// each end.
constexpr float fade = 0.5F;       // pixels
constexpr float unfaded = 1000.0F; // pixels; more than any half width or length

struct Shape {
    GLenum mode = GL_TRIANGLES;
    std::vector<Vertex> corners;
};

Shape shape;
Vertex current; // colour and texture coordinates of the next corner

Vertex moved(Vertex corner, float x, float y, float across, float along) {
    corner.x += x / pixelsPerNdcX;
    corner.y += y / pixelsPerNdcY;
    corner.across = across;
    corner.along = along;
    return corner;
}

void setFade(Vertex& end, float halfWidth, float halfLength) {
    end.halfWidth = halfWidth;
    end.halfLength = halfLength;
}

void addLine(Vertex from, Vertex to) {
    const float x = (to.x - from.x) * pixelsPerNdcX;
    const float y = (to.y - from.y) * pixelsPerNdcY;
    const float length = std::hypot(x, y);
    if (!(length > 0.0F)) { return; }
    const bool smooth = glState.lineSmooth;
    const float wide = glState.lineWidth / 2.0F + (smooth ? fade : 0.0F); // from the middle
    const float beyond = smooth ? fade : 0.0F;                            // the ends
    const float end = length / 2.0F + beyond;
    setFade(from, smooth ? wide : unfaded, smooth ? end : unfaded);
    setFade(to, smooth ? wide : unfaded, smooth ? end : unfaded);
    const float alongX = x / length * beyond;
    const float alongY = y / length * beyond;
    const float sideX = -y / length * wide;
    const float sideY = x / length * wide;
    const Vertex corners[] = {moved(from, -alongX + sideX, -alongY + sideY, -wide, -end),
                              moved(from, -alongX - sideX, -alongY - sideY, wide, -end),
                              moved(to, alongX + sideX, alongY + sideY, -wide, end),
                              moved(to, alongX - sideX, alongY - sideY, wide, end)};
    const bool culling = glState.cullFace;
    glState.cullFace = false; // lines have no face
    addTriangle(corners[2], corners[1], corners[0]);
    addTriangle(corners[3], corners[1], corners[2]);
    glState.cullFace = culling;
}

// Each run of `count` corners makes one shape; corners that are left over make none.
template <typename Add>
void addEach(std::size_t count, Add add) {
    for (std::size_t i = 0; i + count <= shape.corners.size(); i += count) {
        add(&shape.corners[i]);
    }
}

void addLoop() {
    const std::size_t count = shape.corners.size();
    for (std::size_t i = 0; i < count; ++i) {
        addLine(shape.corners[i], shape.corners[(i + 1) % count]);
    }
}

} // namespace

void glBegin(GLenum mode) {
    shape.mode = mode;
    shape.corners.clear();
}

void glEnd() {
    switch (shape.mode) {
    case GL_TRIANGLES: addEach(3, [](const Vertex* v) { addTriangle(v[0], v[1], v[2]); }); break;
    case GL_QUADS:
        addEach(4, [](const Vertex* v) {
            addTriangle(v[0], v[1], v[3]);
            addTriangle(v[1], v[2], v[3]);
        });
        break;
    case GL_LINES: addEach(2, [](const Vertex* v) { addLine(v[0], v[1]); }); break;
    case GL_LINE_LOOP: addLoop(); break;
    default: break;
    }
}

void glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
    current.colour[0] = red;
    current.colour[1] = green;
    current.colour[2] = blue;
    current.colour[3] = alpha;
}

void glColor3f(GLfloat red, GLfloat green, GLfloat blue) {
    glColor4f(red, green, blue, 1.0F);
}

void glTexCoord2f(GLfloat s, GLfloat t) {
    current.s = s;
    current.t = t;
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    current.x = x;
    current.y = y;
    current.z = z;
    shape.corners.push_back(current);
}

void glVertex2f(GLfloat x, GLfloat y) {
    glVertex3f(x, y, 0.0F);
}
