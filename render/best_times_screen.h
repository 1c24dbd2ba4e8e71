// The table of best times: the run just played on the left, the ten best runs on the right.
#pragma once

// Draws the table over the frame; called every frame of the best times and of the name entry.
void drawBestTimes();
