// The picture of the best times: the run just played on the left, the ten best beside it.
#pragma once

// Draws it over what is there; called every frame of the best times and of the name entry.
void drawBestTimes();
