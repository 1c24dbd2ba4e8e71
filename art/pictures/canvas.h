// Colours as amounts of light, and pictures made of them.
//
// Everything is mixed, filtered and lit in linear light; a picture becomes display bytes only when
// it is finished.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Linear light, 0 is black and 1 is what the display shows as full. May exceed 1 before it is shown.
struct Colour {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
};

Colour operator+(const Colour& a, const Colour& b);
Colour operator*(const Colour& a, const Colour& b);
Colour operator*(const Colour& a, double share);

// From a (share 0) to b (share 1).
Colour mix(const Colour& a, const Colour& b, double share);

// The light of a display colour 0xRRGGBB, as people write colours down.
Colour colourOf(std::uint32_t code);

// The display value 0..1 of an amount of light (the sRGB curve), and back.
double displayValue(double light);
double lightOf(double displayed);

// A picture of light, top row first.
struct Canvas {
    int width;
    int height;
    std::vector<Colour> pixels;

    Canvas(int w, int h);
    Colour& at(int x, int y);
    const Colour& at(int x, int y) const;
};

// A finished picture: red, green, blue bytes, top row first.
struct Picture {
    int width;
    int height;
    std::vector<std::uint8_t> bytes;

    Picture(int w, int h);
    std::uint8_t* at(int x, int y);
    const std::uint8_t* at(int x, int y) const;
};

// Rounds every pixel to display bytes; light above 1 is cut.
Picture developed(const Canvas& canvas);
