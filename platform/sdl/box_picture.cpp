#include "platform/sdl/box_picture.h"

#include <algorithm>
#include <cstddef>

#include "platform/sdl/box_font.h"
#include "platform/sdl/box_text.h"

namespace {

constexpr const char* buttonText = "OK";
constexpr std::size_t mostColumns = 56;

// Lengths in dots of the typeface.
constexpr int advance = glyphWidth + 1;
constexpr int lineHeight = glyphHeight + 3;
constexpr int margin = 10;
constexpr int bandPadding = 5; // above and below the caption
constexpr int buttonWidth = 44;
constexpr int buttonHeight = 19;
constexpr int leastWidth = 130;
constexpr int frame = 1;

// Colours of the title picture.
constexpr SDL_Colour background = {28, 14, 48, 255};
constexpr SDL_Colour textColour = {244, 236, 250, 255};
constexpr SDL_Colour darkTextColour = {28, 14, 48, 255};
constexpr SDL_Colour noticeBand = {246, 160, 60, 255};
constexpr SDL_Colour errorBand = {240, 90, 120, 255};

int count(const std::vector<std::string>& lines) {
    return static_cast<int>(lines.size());
}

int longest(const std::vector<std::string>& lines) {
    std::size_t most = 0;
    for (const std::string& line : lines) {
        most = std::max(most, line.size());
    }
    return static_cast<int>(most);
}

int bandHeight(const BoxLayout& layout) {
    return count(layout.caption) * lineHeight + 2 * bandPadding;
}

void measure(BoxLayout& layout) {
    const int columns = std::max(longest(layout.caption), longest(layout.text));
    const int width = std::max(columns * advance + 2 * margin, leastWidth);
    const int height =
        bandHeight(layout) + margin + count(layout.text) * lineHeight + buttonHeight + 2 * margin;
    layout.width = width * layout.scale;
    layout.height = height * layout.scale;
}

BoxLayout layOutAt(const BoxContent& box, int scale, int mostWidth) {
    const int room = (mostWidth / scale - 2 * margin) / advance;
    const std::size_t columns = std::min(mostColumns, static_cast<std::size_t>(std::max(room, 1)));
    BoxLayout layout;
    layout.scale = scale;
    layout.caption = wrapText(box.caption, columns);
    layout.text = wrapText(box.text, columns);
    measure(layout);
    return layout;
}

void cutText(BoxLayout& layout, int mostHeight) {
    while (layout.height > mostHeight && count(layout.text) > 1) {
        layout.text.pop_back();
        layout.text.back() = "...";
        measure(layout);
    }
}

// Paints on a surface. Coordinates are dots from the upper left corner of the box.
struct Brush {
    SDL_Surface& surface;
    int left;  // of the box, pixels
    int top;   // of the box, pixels
    int scale; // pixels in a dot

    SDL_Rect pixels(int x, int y, int width, int height) const {
        return {left + x * scale, top + y * scale, width * scale, height * scale};
    }

    void fill(int x, int y, int width, int height, SDL_Colour colour) const {
        const SDL_Rect area = pixels(x, y, width, height);
        SDL_FillRect(&surface, &area, SDL_MapRGB(surface.format, colour.r, colour.g, colour.b));
    }

    void putCharacter(char character, int x, int y, SDL_Colour colour) const {
        for (int row = 0; row < glyphHeight; ++row) {
            for (int column = 0; column < glyphWidth; ++column) {
                if (glyphDot(character, column, row)) { fill(x + column, y + row, 1, 1, colour); }
            }
        }
    }

    void putLines(const std::vector<std::string>& lines, int x, int y, SDL_Colour colour) const {
        for (const std::string& line : lines) {
            for (std::size_t i = 0; i < line.size(); ++i) {
                putCharacter(line[i], x + static_cast<int>(i) * advance, y, colour);
            }
            y += lineHeight;
        }
    }
};

} // namespace

BoxLayout layOutBox(const BoxContent& box, int scale, int mostWidth, int mostHeight) {
    for (;; --scale) {
        BoxLayout layout = layOutAt(box, scale, mostWidth);
        if (layout.width <= mostWidth && layout.height <= mostHeight) { return layout; }
        if (scale <= 1) {
            cutText(layout, mostHeight);
            return layout;
        }
    }
}

SDL_Rect paintBox(SDL_Surface& surface, const BoxContent& box, const BoxLayout& layout) {
    const Brush brush = {surface, (surface.w - layout.width) / 2, (surface.h - layout.height) / 2,
                         layout.scale};
    const int width = layout.width / layout.scale;
    const int height = layout.height / layout.scale;
    const SDL_Colour accent = box.isError ? errorBand : noticeBand;
    const int band = bandHeight(layout);
    const int buttonX = (width - buttonWidth) / 2;
    const int buttonY = height - margin - buttonHeight;
    const int labelWidth = 2 * advance - 1;

    SDL_FillRect(&surface, nullptr,
                 SDL_MapRGB(surface.format, background.r, background.g, background.b));
    brush.fill(0, 0, width, height, accent);
    brush.fill(frame, band, width - 2 * frame, height - band - frame, background);
    brush.putLines(layout.caption, margin, bandPadding + 2, darkTextColour);
    brush.putLines(layout.text, margin, band + margin, textColour);
    brush.fill(buttonX, buttonY, buttonWidth, buttonHeight, accent);
    brush.putLines({buttonText}, (width - labelWidth) / 2, buttonY + 6, darkTextColour);
    return brush.pixels(buttonX, buttonY, buttonWidth, buttonHeight);
}
