// What the player holds during one tick: the arrow keys that steer and Shift for turbo.
#pragma once

struct Controls {
    bool left = false;
    bool right = false;
    bool up = false;
    bool down = false;
    bool turbo = false;
};
