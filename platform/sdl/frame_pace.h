// The frame rate. The game draws a frame whenever no message waits, so this is the only place where
// it leaves the processor free.
#pragma once

// Waits until at least 4 ms have passed since it last returned: 250 frames a second at most, where
// vertical sync does not make it fewer.
void waitForNextFrame();

// For a hidden or minimised window: waits for 0.1 s, or until an event of SDL waits.
void waitWhileHidden();
