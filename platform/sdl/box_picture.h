// What a message box looks like: a caption on a coloured band, the text, and an "OK" button.
#pragma once

#include <string>
#include <vector>

#include <SDL.h>

struct BoxContent {
    std::string caption;
    std::string text;
    bool isError = false; // an error rather than a notice
};

// All lengths in pixels.
struct BoxLayout {
    int scale = 1; // pixels in one dot of the typeface, each way
    std::vector<std::string> caption;
    std::vector<std::string> text;
    int width = 0;
    int height = 0;
};

// The box at the largest scale, up to the one given, at which it fits into that room. Where even
// scale 1 is too large, the text is cut and ends with "...".
BoxLayout layOutBox(const BoxContent& words, int scale, int roomWidth, int roomHeight);

// Paints the box in the middle of the surface, which it fills with the box's ground colour, and
// returns where the button is.
SDL_Rect paintBox(SDL_Surface& surface, const BoxContent& words, const BoxLayout& layout);
