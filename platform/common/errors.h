// Errors as texts: the last error, which the game reads through GetLastError and FormatMessageA;
// lines on standard error; and fatal errors, which decide the exit code.
#pragma once

#include <string>

// Sets the last error to a whole English sentence. GetLastError then returns a code for it, and
// FormatMessageA returns the text for that code. Equal texts have equal codes.
void setLastError(const std::string& text);

// Returns the text of the last error; "There is no error." before the first one.
const std::string& lastErrorText();

// Sets the last error for a failure after which nothing can be shown, such as a missing display or
// missing OpenGL. hadFatalError returns true from then on.
void setFatalError(const std::string& text);
bool hadFatalError();

// Writes "glorbix: " and the text as one line on standard error.
void logError(const std::string& text);

// Does the same, but writes each text only once per process.
void logErrorOnce(const std::string& text);
