#include "art/sounds/score_error.h"

#include <cstdlib>
#include <iostream>

std::string scorePlace;

void refuse(const std::string& reason) {
    std::cerr << scorePlace << ": " << reason << '\n';
    std::exit(1);
}
