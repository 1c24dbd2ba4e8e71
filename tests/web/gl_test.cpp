// OpenGL 1.1 as the page draws it: which triangles it is given, in which batches.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <GL/gl.h>
#include <gtest/gtest.h>

#include "platform/web/gl_batch.h"
#include "platform/web/page_calls.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Words = std::vector<std::string>;

// What the page was asked for, in its order.
struct Asked {
    DrawState state = {};
    std::vector<Vertex> vertices;
    std::uint32_t texture = 0;
    Bytes pixels;
};

Words words; // "draw", "clear", "upload", "delete"
std::vector<Asked> asked;

void record(const std::string& word, const Asked& one) {
    words.push_back(word);
    asked.push_back(one);
}

// Each test starts with the state of a new context.
struct Gl : testing::Test {
    Gl() {
        flushBatch();
        glState = {};
        words.clear();
        asked.clear();
    }

    static void triangle() {
        glBegin(GL_TRIANGLES);
        for (const auto& [x, y] : {std::pair(0.0F, 0.0F), {1, 0}, {0, 1}}) {
            glVertex2f(x, y);
        }
        glEnd();
    }

    static const Asked& drawn() {
        flushBatch();
        return asked.back();
    }
};

using Extent = std::array<float, 4>; // left, right, bottom, top: pixels, to a half

Extent extentOf(const std::vector<Vertex>& vertices) {
    Extent extent = {1000, -1000, 1000, -1000};
    for (const Vertex& v : vertices) {
        const float x = std::round((v.x + 1) * 640) / 2, y = std::round((v.y + 1) * 480) / 2;
        extent = {std::min(extent[0], x), std::max(extent[1], x), std::min(extent[2], y),
                  std::max(extent[3], y)};
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
    record("draw", {*state, {vertices, vertices + count}, 0, {}});
}
void pageClear(std::uint32_t, float, float, float, float, float) {
    record("clear", {});
}
void pageUploadTexture(std::uint32_t texture, int, int width, int height, int components,
                       const std::uint8_t* pixels) {
    const int bytes = (width * components + 3) / 4 * 4 * height;
    record("upload", {{}, {}, texture, {pixels, pixels + bytes}});
}
void pageSetTextureParameter(std::uint32_t, std::uint32_t, int) {}
void pageDeleteTexture(std::uint32_t) {
    record("delete", {});
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
    EXPECT_EQ(words, Words{}) << "nothing is drawn yet";
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    triangle();
    glClear(GL_COLOR_BUFFER_BIT);
    ASSERT_EQ(words, (Words{"draw", "draw", "clear"}));
    ASSERT_EQ(asked[0].vertices.size(), 6U);
    EXPECT_EQ(asked[0].vertices[2].colour[1], 0.5F);
    EXPECT_EQ(asked[0].vertices[3].colour[3], 1.0F);
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
    EXPECT_EQ(extentOf(drawn().vertices), (Extent{100.5F, 110.5F, 199, 202}));
    EXPECT_EQ(asked.back().state.culledFace, 0) << "a line has no face";

    glEnable(GL_LINE_SMOOTH);
    glLineWidth(1);
    line(100, 10, 100, 20); // upwards
    const Asked& smooth = drawn();
    EXPECT_EQ(extentOf(smooth.vertices), (Extent{99, 101, 9.5F, 20.5F}));
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
    ASSERT_EQ(words, (Words{"draw", "upload"}));
    EXPECT_EQ(asked[1].pixels, (Bytes{1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4}));
    glTexImage2D(GL_TEXTURE_2D, 1, 3, 2, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, rows);
    EXPECT_EQ(asked.back().pixels, (Bytes(rows, rows + 16)));
    EXPECT_EQ(glAreTexturesResident(1, &name, nullptr), GL_TRUE);
    glEnable(GL_TEXTURE_2D);
    triangle();
    glDeleteTextures(1, &name);
    EXPECT_EQ(words, (Words{"draw", "upload", "upload", "draw", "delete"}));
    EXPECT_EQ(glAreTexturesResident(1, &name, nullptr), GL_FALSE);
    triangle();
    EXPECT_EQ(drawn().state.texture, 0);
}

TEST_F(Gl, DrawsPicturesFromTheLowerLeftCorner) {
    const Bytes pixels(320 * 120 * 3);
    glDrawPixels(320, 120, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    glDrawPixels(320, 120, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    const Asked& picture = drawn();
    EXPECT_EQ(words, (Words{"upload", "draw", "upload", "draw"})) << "each has its own pixels";
    EXPECT_EQ(static_cast<std::uint32_t>(picture.state.texture), asked[0].texture);
    EXPECT_EQ(picture.state.textureMode, GL_MODULATE);
    EXPECT_EQ(extentOf(picture.vertices), (Extent{0, 320, 0, 120}));
}
