// OpenGL 1.1 as the page draws it: which triangles it is given, in which batches.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <GL/gl.h>
#include <gtest/gtest.h>

#include "platform/web/gl_batch.h"
#include "platform/web/page_calls.h"

namespace {

// What the page was asked for, in its order.
struct Asked {
    std::string what; // "draw", "clear", "upload", "parameter", "delete"
    DrawState state;
    std::vector<Vertex> vertices;
    std::uint32_t texture = 0;
    std::vector<std::uint8_t> pixels;
};

std::vector<Asked> asked;

std::vector<std::string> words() {
    std::vector<std::string> told;
    told.reserve(asked.size());
    for (const Asked& one : asked) {
        told.push_back(one.what);
    }
    return told;
}

using Words = std::vector<std::string>;

// Each test starts with the state of a new context.
struct Gl : testing::Test {
    Gl() {
        flushBatch();
        glState = {};
        asked.clear();
    }

    static void triangle(float z = 0.0F) {
        glBegin(GL_TRIANGLES);
        glVertex3f(0, 0, z);
        glVertex3f(1, 0, z);
        glVertex3f(0, 1, z);
        glEnd();
    }

    static const Asked& drawn() {
        flushBatch();
        return asked.back();
    }
};

struct Extent {
    float left, right, bottom, top; // pixels
};

Extent extentOf(const std::vector<Vertex>& vertices) {
    Extent extent = {1000, -1000, 1000, -1000};
    for (const Vertex& v : vertices) {
        const float x = (v.x + 1) * 320, y = (v.y + 1) * 240;
        extent = {std::min(extent.left, x), std::max(extent.right, x), std::min(extent.bottom, y),
                  std::max(extent.top, y)};
    }
    return extent;
}

void line(float x, float y, float toX, float toY) {
    glBegin(GL_LINES);
    glVertex2f(x / 320 - 1, y / 240 - 1);
    glVertex2f(toX / 320 - 1, toY / 240 - 1);
    glEnd();
}

} // namespace

extern "C" {
void pageDraw(const DrawState* state, const Vertex* vertices, int count) {
    asked.push_back({"draw", *state, {vertices, vertices + count}, 0, {}});
}
void pageClear(std::uint32_t, float, float, float, float, float) {
    asked.push_back({"clear", {}, {}, 0, {}});
}
void pageUploadTexture(std::uint32_t texture, int, int width, int height, int components,
                       const std::uint8_t* pixels) {
    const int bytes = (width * components + 3) / 4 * 4 * height;
    asked.push_back({"upload", {}, {}, texture, {pixels, pixels + bytes}});
}
void pageSetTextureParameter(std::uint32_t texture, std::uint32_t, int) {
    asked.push_back({"parameter", {}, {}, texture, {}});
}
void pageDeleteTexture(std::uint32_t texture) {
    asked.push_back({"delete", {}, {}, texture, {}});
}
}

TEST_F(Gl, CollectsTrianglesUntilTheyAreDrawnInAnotherWay) {
    glColor4f(1, 0.5F, 0, 0.25F);
    triangle();
    glColor3f(0, 0, 1);
    glFogf(GL_FOG_START, 5); // fog is off
    glEnable(GL_BLEND);
    glDisable(GL_BLEND);
    triangle();
    EXPECT_EQ(words(), Words{}) << "nothing is drawn yet";
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    triangle();
    glClear(GL_COLOR_BUFFER_BIT);
    ASSERT_EQ(words(), (Words{"draw", "draw", "clear"}));
    ASSERT_EQ(asked[0].vertices.size(), 6U);
    EXPECT_EQ(asked[0].vertices[2].colour[1], 0.5F);
    EXPECT_EQ(asked[0].vertices[3].colour[3], 1.0F);
    EXPECT_EQ(asked[0].state.depthFunction, 0);
    EXPECT_EQ(asked[1].state.depthFunction, GL_GREATER);
    flushBatch();
    EXPECT_EQ(asked.size(), 3U) << "nothing is left";
}

TEST_F(Gl, TellsThePageOnlyWhatIsSwitchedOn) {
    const GLfloat colour[] = {0.25F, 0.5F, 0.75F, 1};
    glFogfv(GL_FOG_COLOR, colour);
    glFogf(GL_FOG_END, 7);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glBindTexture(GL_TEXTURE_2D, 10);
    glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glCullFace(GL_FRONT);
    triangle();
    EXPECT_EQ(drawn().state, DrawState());
    for (const int one : {GL_FOG, GL_BLEND, GL_TEXTURE_2D, GL_CULL_FACE}) {
        glEnable(static_cast<GLenum>(one));
    }
    triangle();
    const DrawState state = drawn().state;
    EXPECT_TRUE(state.fog == 1 && state.fogEnd == 7 && state.fogColour[2] == 0.75F);
    EXPECT_TRUE(state.blendSource == GL_SRC_ALPHA && state.blendTarget == GL_ONE_MINUS_SRC_ALPHA);
    EXPECT_TRUE(state.texture == 10 && state.textureMode == GL_DECAL);
    EXPECT_EQ(state.culledFace, GL_FRONT);
}

TEST_F(Gl, DrawsARectangleAsTwoTriangles) {
    glBegin(GL_QUADS);
    for (const auto& [x, y] : {std::pair(-1, -1), {1, -1}, {1, 1}, {-1, 1}}) {
        glTexCoord2f(static_cast<float>(x), 0);
        glVertex2f(static_cast<float>(x), static_cast<float>(y));
    }
    glVertex2f(5, 5); // makes no shape
    glEnd();
    const std::vector<Vertex>& v = drawn().vertices;
    ASSERT_EQ(v.size(), 6U);
    float area = 0; // both turn to the left
    for (std::size_t i = 0; i < 6; i += 3) {
        area += (v[i + 1].x - v[i].x) * (v[i + 2].y - v[i].y) -
                (v[i + 2].x - v[i].x) * (v[i + 1].y - v[i].y);
        EXPECT_EQ(v[i].s, v[i].x);
    }
    EXPECT_EQ(area / 2, 4);
}

TEST_F(Gl, DrawsLinesAsThinRectangles) {
    glEnable(GL_CULL_FACE);
    glLineWidth(3);
    line(100.5F, 200.5F, 110.5F, 200.5F);
    const Extent plain = extentOf(drawn().vertices);
    EXPECT_NEAR(plain.left, 100.5, 0.01);
    EXPECT_NEAR(plain.right, 110.5, 0.01);
    EXPECT_NEAR(plain.top - plain.bottom, 3, 0.01);
    EXPECT_EQ(asked.back().state.culledFace, 0) << "a line has no face";

    glEnable(GL_LINE_SMOOTH);
    glLineWidth(1);
    line(100, 10, 100, 20); // upwards
    const Asked& smooth = drawn();
    const Extent wider = extentOf(smooth.vertices);
    EXPECT_NEAR(wider.bottom, 9.5, 0.01);
    EXPECT_NEAR(wider.top, 20.5, 0.01);
    EXPECT_NEAR(wider.left, 99, 0.01);
    EXPECT_NEAR(wider.right, 101, 0.01);
    for (const Vertex& v : smooth.vertices) {
        EXPECT_NEAR(std::abs(v.across), v.halfWidth, 0.01) << "it fades out at its side";
        EXPECT_NEAR(std::abs(v.along), 5.5, 0.01);
        EXPECT_NEAR(v.halfLength, 5.5, 0.01);
    }
    line(7, 7, 7, 7);
    EXPECT_EQ(&drawn(), &smooth) << "a line without a length";
    glBegin(GL_LINE_LOOP);
    for (const float x : {0.0F, 0.5F, 0.7F}) {
        glVertex2f(x, x * x);
    }
    glEnd();
    EXPECT_EQ(drawn().vertices.size(), 3U * 6) << "the loop is closed";
    triangle();
    EXPECT_EQ(drawn().state.culledFace, GL_BACK) << "a triangle has a face again";
}

TEST_F(Gl, UploadsTexturesInTheirOrderWithTheShapes) {
    const std::uint8_t rows[] = {1, 1, 1, 2, 2, 2, 0, 0, 3, 3, 3, 4, 4, 4, 0, 0};
    const GLuint name = 77;
    glBindTexture(GL_TEXTURE_2D, name);
    EXPECT_EQ(glAreTexturesResident(1, &name, nullptr), GL_FALSE);
    triangle();
    glTexImage2D(GL_TEXTURE_2D, 0, GL_INTENSITY, 2, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, rows);
    ASSERT_EQ(words(), (Words{"draw", "upload"}));
    EXPECT_EQ(asked[1].pixels,
              (std::vector<std::uint8_t>{1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4}));
    glTexImage2D(GL_TEXTURE_2D, 1, 3, 2, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, rows);
    EXPECT_EQ(asked.back().pixels, (std::vector<std::uint8_t>(rows, rows + 16)));
    EXPECT_EQ(glAreTexturesResident(1, &name, nullptr), GL_TRUE);
    glEnable(GL_TEXTURE_2D);
    triangle();
    glDeleteTextures(1, &name);
    EXPECT_EQ(words(), (Words{"draw", "upload", "upload", "draw", "delete"}));
    EXPECT_EQ(glAreTexturesResident(1, &name, nullptr), GL_FALSE);
    triangle();
    EXPECT_EQ(drawn().state.texture, 0);
}

TEST_F(Gl, DrawsPicturesFromTheLowerLeftCorner) {
    const std::vector<std::uint8_t> pixels(320 * 120 * 3);
    glColor3f(1, 0, 0); // a picture keeps its own colours
    glDrawPixels(320, 120, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    glDrawPixels(320, 120, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    const Asked& picture = drawn();
    EXPECT_EQ(words(), (Words{"upload", "draw", "upload", "draw"})) << "each has its own pixels";
    EXPECT_EQ(static_cast<std::uint32_t>(picture.state.texture), asked[0].texture);
    EXPECT_EQ(picture.state.textureMode, GL_MODULATE);
    const Extent extent = extentOf(picture.vertices);
    EXPECT_TRUE(extent.left == 0 && extent.bottom == 0);
    EXPECT_TRUE(extent.right == 320 && extent.top == 120);
    for (const Vertex& v : picture.vertices) {
        EXPECT_TRUE(v.colour[1] == 1 && v.s == (v.x < -0.5F ? 0 : 1) &&
                    v.t == (v.y < -0.9F ? 0 : 1));
    }
}
