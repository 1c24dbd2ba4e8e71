// Which keys repeat while they are held.
#pragma once

#include "platform/windows_api.h"

// Returns true for the virtual-key codes of the arrow keys and Backspace. What the other keys do
// must happen once.
constexpr bool repeatsWhileHeld(int virtualKey) {
    constexpr int backspace = 8;
    return (virtualKey >= VK_LEFT && virtualKey <= VK_DOWN) || virtualKey == backspace;
}
