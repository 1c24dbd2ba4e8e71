// The call of the game's window procedure, in which the program can wait for a message box.
//
// Asyncify lets the program wait in pageWaitForFrame and pageShowBox: it saves all functions that
// are active, returns to the browser, and enters them again later. It prepares those functions that
// reach one of the two by direct calls. This one calls the game by its address, so CMakeLists.txt
// names it; and that its callers are prepared as well takes a direct call, which never happens.

#include "platform/common/provider.h"
#include "platform/web/page_calls.h"
#include "platform/web/window_handle.h"

LRESULT callWindowProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = gameWindow.procedure(&gameWindow, message, wParam, lParam);
    volatile bool never = false;
    if (never) { pageWaitForFrame(); }
    return result;
}
