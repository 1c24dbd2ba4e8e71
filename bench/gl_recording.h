// The OpenGL calls of a frame, recorded and made again. A program that links gl_recording.cpp calls
// OpenGL through it. Covered are the functions of a level's frame, without menu, and for glFogfv
// the colour.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

enum class GlFunction : std::uint8_t;

struct GlCall {
    GlFunction function;
    float numbers[4]; // its arguments; names of OpenGL's are exact in a float
};

struct GlRecording {
    std::vector<GlCall> calls; // the last one clears the surface for the next frame
    std::vector<std::uint8_t> picture;
};

// Returns the 640 x 480 pixels of the surface: red, green, blue.
std::vector<std::uint8_t> pictureOnSurface();

// Between the two calls a frame is drawn and recorded.
void startRecording();
GlRecording stopRecording();

// Makes the calls again, without recording them.
void replay(std::span<const GlCall> calls);
