// The start of the program. The page has put the game's files and the best times into the working
// directory.

#include "platform/web/page_calls.h"
#include "platform/windows_api.h"

int main() {
    char noArguments[] = "";
    pageEnd(WinMain(nullptr, nullptr, noArguments, SW_SHOW));
    return 0;
}
