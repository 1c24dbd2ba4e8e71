// What a message box looks like: a caption on a coloured band, the text, and an "OK" button.
#pragma once

#include <string>
#include <vector>

#include <SDL.h>

struct BoxContent {
    std::string caption;
    std::string text;
    bool isError = false; // decides the colour of the band
};

struct BoxLayout {
    int scale = 1;                    // pixels in one dot of the typeface, each way
    std::vector<std::string> caption; // lines
    std::vector<std::string> text;    // lines
    int width = 0;                    // pixels
    int height = 0;                   // pixels
};

// Returns the box at the largest scale, up to the one given, at which it is no larger than that
// many pixels. If scale 1 is still too large, the text is cut and ends with "...".
BoxLayout layOutBox(const BoxContent& box, int scale, int mostWidth, int mostHeight);

// Fills the surface with the background colour and paints the box in its middle. Returns the place
// of the button, in pixels of the surface.
SDL_Rect paintBox(SDL_Surface& surface, const BoxContent& box, const BoxLayout& layout);
