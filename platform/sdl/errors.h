// What went wrong, in words: the system's last error for the game, one line on standard error for
// whoever started it, and the fact that the machine itself failed for the exit code.
#pragma once

#include <string>

// Makes `text`, a whole English sentence, the last error: GetLastError gives its code and
// FormatMessageA its text.
void setLastError(const std::string& text);
const std::string& lastErrorText();

// The same for a failure that no game survives, such as no display or no OpenGL; `hadFatalError`
// is true ever after.
void setFatalError(const std::string& text);
bool hadFatalError();

// Writes "glorbix: " and the text as one line on standard error.
void logError(const std::string& text);

// The same, but each text only once in the life of the process.
void logErrorOnce(const std::string& text);
