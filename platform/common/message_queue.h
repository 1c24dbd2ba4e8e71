// The messages that wait for the game: posted ones, the request to quit, and input, each kind in
// the order of its arrival. message_pump.cpp takes them for PeekMessageA and adds painting and
// timers.
//
// A kind holds up to 10,000 messages; input beyond that is dropped, and PostMessageA then fails.
#pragma once

#include "platform/windows_api.h"

// Which messages a caller of PeekMessageA asks for.
struct MessageFilter {
    HWND window; // null: of any window
    UINT first;  // the range of message numbers; 0 and 0: all
    UINT last;

    bool accepts(const MSG& message) const;
};

// Returns a message with the present time.
MSG newMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Adds a message that comes from the player or the window system.
void postInput(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// Removes the posted messages with that number and wParam.
void removePostedMessages(UINT message, WPARAM wParam);

// Each copies the first message of its kind that the filter accepts to `taken`, and removes it from
// the queue where `remove` says so. Returns false, leaving `taken` as it is, when there is none.
// The request to quit, WM_QUIT, passes every filter.
bool takePosted(const MessageFilter& filter, bool remove, MSG* taken);
bool takeQuit(bool remove, MSG* taken);
bool takeInput(const MessageFilter& filter, bool remove, MSG* taken);

// Returns true once WM_CLOSE or WM_DESTROY was taken from the queue. A game that ends without them
// has given up.
bool wasAskedToEnd();
