// OpenGL for the tests: nothing is drawn. Every call that a picture could show is recorded, and
// every drawing with the state that it was drawn in.
#include <GL/gl.h>
#include <sstream>

#include "fakes/trace.h"

namespace {

const std::map<GLenum, const char*> words = {
    {GL_SRC_ALPHA, "alpha"},   {GL_ONE_MINUS_SRC_ALPHA, "1-alpha"},
    {GL_GREATER, "greater"},   {GL_FRONT, "front"},
    {GL_NICEST, "nicest"},     {GL_DECAL, "decal"},
    {GL_MODULATE, "modulate"}, {GL_NEAREST, "nearest"},
    {GL_LINEAR, "linear"},     {GL_NEAREST_MIPMAP_NEAREST, "nearest-nearest"},
    {GL_CLAMP, "clamp"},       {GL_LINEAR_MIPMAP_LINEAR, "linear-linear"},
    {GL_REPEAT, "repeat"}};
const std::map<double, std::string> shapes = {
    {GL_LINES, "lines"}, {GL_LINE_LOOP, "loop"}, {GL_TRIANGLES, "triangles"}, {GL_QUADS, "quads"}};

// Sets a part of the state.
void set(const std::string& part, std::initializer_list<double> values) {
    std::ostringstream text;
    for (const double value : values) {
        const auto word = words.find(value > 1 ? static_cast<GLenum>(value) : 0);
        word != words.end() ? text << ' ' << word->second : text << ' ' << value;
    }
    machine.glState[part] = text.str();
    machine.glStateChanged = true;
}

std::string on(GLenum capability) {
    return "on " + std::to_string(capability);
}

// A parameter of the texture that is bound.
std::string ofTexture(GLenum parameter) {
    return std::to_string(parameter) + " of" + machine.glState["bound"];
}

// What decides how a shape looks, in words.
std::string stateFor(const std::string& shape) {
    const auto part = [](const std::string& name) { return machine.glState[name]; };
    const bool hasLines = shape == "lines" || shape == "loop";
    const auto fog = [&](GLenum parameter) { return part("fog " + std::to_string(parameter)); };
    const struct {
        GLenum capability;
        std::string words;
    } parts[] = {{GL_DEPTH_TEST, ", depth" + part("depth")},
                 {GL_CULL_FACE, ", cull" + part("cull")},
                 {GL_TEXTURE_2D, ", texture" + part("bound") + part("environment") +
                                     part(ofTexture(GL_TEXTURE_MAG_FILTER)) +
                                     part(ofTexture(GL_TEXTURE_MIN_FILTER)) +
                                     part(ofTexture(GL_TEXTURE_WRAP_S)) +
                                     part(ofTexture(GL_TEXTURE_WRAP_T))},
                 {GL_FOG, ", fog" + fog(GL_FOG_MODE) + fog(GL_FOG_START) + fog(GL_FOG_END) +
                              part("fog colour") + part("fog hint")},
                 {GL_BLEND, ", blend" + part("blend")},
                 {GL_LINE_SMOOTH, hasLines ? ", smooth" + part("line hint") : ""}};
    std::string state = shape + (hasLines ? part("line width") : "");
    for (const auto& p : parts) {
        state += part(on(p.capability)).empty() ? "" : p.words;
    }
    return state;
}

template <class... Numbers>
void noted(std::string_view name, Numbers... numbers) {
    GlCall& call = machine.drawn.emplace_back(name, numbers...);
    if (name != "glBegin" && name != "glDrawPixels") { return; }
    const std::string shape = name == "glBegin" ? shapes.at(call.numbers[0]) : "picture";
    if (machine.glStateChanged || shape != machine.glShape) {
        machine.glStates.push_back(stateFor(shape));
    }
    machine.glStateChanged = false;
    machine.glShape = shape;
    call.state = machine.glStates.size() - 1;
}

double firstPixel(const void* pixels) {
    const auto* bytes = static_cast<const GLubyte*>(pixels);
    return bytes[0] << 16 | bytes[1] << 8 | bytes[2];
}

} // namespace

// Defines a function of OpenGL that records its call.
#define NOTED(function, parameters, ...)                                                           \
    void function parameters {                                                                     \
        noted(#function, __VA_ARGS__);                                                             \
    }
NOTED(glBegin, (GLenum shape), shape)
NOTED(glClear, (GLbitfield buffers), buffers)
NOTED(glClearColor, (GLclampf r, GLclampf g, GLclampf b, GLclampf a), r, g, b, a)
NOTED(glClearDepth, (GLclampd depth), depth)
NOTED(glColor3f, (GLfloat r, GLfloat g, GLfloat b), r, g, b)
NOTED(glColor4f, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), r, g, b, a)
NOTED(glDeleteTextures, (GLsizei count, const GLuint* name), count, *name)
NOTED(glTexCoord2f, (GLfloat s, GLfloat t), s, t)
NOTED(glVertex2f, (GLfloat x, GLfloat y), x, y)
NOTED(glVertex3f, (GLfloat x, GLfloat y, GLfloat z), x, y, z)
NOTED(glDrawPixels, (GLsizei width, GLsizei height, GLenum, GLenum, const void* pixels), width,
      height, firstPixel(pixels))

// Defines one that sets a part of the state.
#define SETS(function, parameters, part, ...)                                                      \
    void function parameters {                                                                     \
        set(part, {__VA_ARGS__});                                                                  \
    }
SETS(glDepthFunc, (GLenum function), "depth", 1.0 * function)
SETS(glCullFace, (GLenum face), "cull", 1.0 * face)
SETS(glBlendFunc, (GLenum from, GLenum to), "blend", 1.0 * from, 1.0 * to)
SETS(glHint, (GLenum target, GLenum mode), target == GL_FOG_HINT ? "fog hint" : "line hint",
     1.0 * mode)
SETS(glLineWidth, (GLfloat width), "line width", width)
SETS(glFogf, (GLenum what, GLfloat value), "fog " + std::to_string(what), value)
SETS(glFogfv, (GLenum, const GLfloat* c), "fog colour", c[0], c[1], c[2], c[3])
SETS(glTexEnvf, (GLenum, GLenum, GLfloat mode), "environment", mode)
SETS(glTexParameterf, (GLenum, GLenum what, GLfloat value), ofTexture(what), value)

void glEnable(GLenum what) {
    set(on(what), {1});
    noted("glEnable", what);
}
void glDisable(GLenum what) {
    set(on(what), {});
    noted("glDisable", what);
}
void glBindTexture(GLenum, GLuint name) {
    set("bound", {1.0 * name});
    noted("glBindTexture", name);
}
void glTexImage2D(GLenum, GLint mipLevel, GLint internalFormat, GLsizei width, GLsizei height,
                  GLint border, GLenum format, GLenum type, const void* pixels) {
    set(ofTexture(0), {1});
    noted("glTexImage2D", mipLevel, internalFormat, width, height, border, format, type,
          firstPixel(pixels));
}
GLboolean glAreTexturesResident(GLsizei, const GLuint* name, GLboolean*) {
    return machine.glState.contains("0 of " + std::to_string(*name)) ? GL_TRUE : GL_FALSE;
}
void glEnd() {}
void glFlush() {}
