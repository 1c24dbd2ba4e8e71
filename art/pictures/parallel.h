// Work on many rows at once.
#pragma once

#include <functional>

// Calls `work` once for every row 0..count-1, on all processors, in no fixed order. Calls for
// different rows must not touch the same data; then the outcome does not depend on the machine.
void forEachRow(int count, const std::function<void(int row)>& work);
