// Replaces a small file safely: a later reader finds either the old contents or the new ones, even
// when the process was killed, the power failed or the disk was full.
//
// The contents are written to NAME.new, flushed to the disk, and renamed. If the folder does not
// allow that, the old file is overwritten in steps that never leave it too short: it is first
// extended with blanks to the length of the new contents and flushed; then one write puts the new
// contents over its beginning; then it is truncated to their length. So the contents must be text
// that ends with a blank and whose reader ignores everything after it.
//
// On Windows no file takes the place of one that another program has open, so that one is
// overwritten.
//
// Limits of overwriting: after a kill, that one write is complete or absent only up to 4096 bytes;
// after a power failure, only where the disk writes whole sectors. When two processes replace the
// same file at the same moment, one of them may report a failure.
#pragma once

#include <string>
#include <string_view>

// Gives the file its new contents. The file keeps its mode; a missing one is created. A symbolic
// link stays and its target is replaced, except on Windows. An existing NAME.new is removed, never
// written to.
//
// Returns false, with the reason in `why`, when the disk is full or fails, when the file may not be
// written, or when it is not a regular file. The old contents then stay.
bool replaceFile(const std::string& name, std::string_view contents, std::string& why);
