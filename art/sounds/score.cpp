#include "art/sounds/score.h"

#include <utility>

Line melody(std::string part, Dynamics dynamics, std::string text, int shift) {
    return {std::move(part), LineKind::Melody, dynamics, std::move(text), shift};
}

Line pattern(std::string part, Dynamics dynamics, std::string text) {
    return {std::move(part), LineKind::Pattern, dynamics, std::move(text)};
}

void Section::add(Line line) {
    lines.push_back(std::move(line));
}

Line drums(Dynamics dynamics, std::string text) {
    return {"Drums", LineKind::Drums, dynamics, std::move(text)};
}
