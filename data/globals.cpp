// The program-wide objects, defined in one file so that they are constructed in this order and
// destroyed in the reverse order. Each is declared and explained in its own header.
#include "data/best_times.h"
#include "data/font.h"
#include "sim/camera.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"
#include "state/game.h"

GameRecord Game;
BestTimes bestTimes;

ViewFrame viewFrame;
Level level;
Marble marble;
Font font;
Vector3 steeringForce;
Vector3 cameraPosition;

float cameraAngleX = 0.0F;
float cameraAngleY = 0.0F;
float cameraAngleZ = 0.0F;
