// Errors of the X server. Xlib ends the program at an error unless a handler takes it, and while
// OpenGL starts, SDL takes only some of them: not the one for a missing driver.
#pragma once

// While one exists, the errors that Xlib reports are ignored; SDL's result then says what has
// failed. Does nothing where there is no Xlib. At most one exists at a time.
struct XErrorsIgnored {
    XErrorsIgnored();
    ~XErrorsIgnored();
    XErrorsIgnored(const XErrorsIgnored&) = delete;
    XErrorsIgnored& operator=(const XErrorsIgnored&) = delete;
};
