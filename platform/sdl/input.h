// From the events of SDL to messages: keys, focus, close requests, uncovered windows.
#pragma once

// Turns everything that has happened since the last call into input messages.
void gatherInput();
