// A picture with a palette, and writing it to a PNG file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct PaletteColour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
};

// Pixel (0, 0) is the top left one; each is an index into the palette, which has at most 256
// colours. Drawing is clipped to the picture.
struct Picture {
    int width;
    int height;
    std::vector<PaletteColour> palette;
    std::vector<std::uint8_t> pixels; // row by row, from the top

    // Makes a picture filled with the palette's first colour, which must still be added.
    Picture(int pixelsAcross, int pixelsDown);

    // Adds a colour to the palette. Returns its index.
    std::uint8_t addColour(PaletteColour colour);

    void put(int x, int y, std::uint8_t colour);

    // A filled square around a point; `thickness` in pixels, odd.
    void dot(int x, int y, int thickness, std::uint8_t colour);

    void line(double fromX, double fromY, double toX, double toY, int thickness,
              std::uint8_t colour);

    void circle(double centreX, double centreY, double radius, int thickness, std::uint8_t colour);
};

// Writes the picture as a PNG file. Returns false, with the reason in `error`, on failure.
bool writePng(const Picture& picture, const std::string& fileName, std::string& error);
