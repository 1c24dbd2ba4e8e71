// The three letters that a player types for a run among the ten best.
#pragma once

// Takes Game.lastKey into the name of entry Game.newBestEntry; called once a frame of the name
// entry. A key code from 'A' to 'z' is the letter itself and sounds like the menu; any other key
// beeps. After the third letter the screen becomes the table of best times.
void takeNameKey();
