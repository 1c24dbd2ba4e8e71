// Replaces a small file without losing it: whoever reads it afterwards finds the old contents or
// the new ones, also when the process was killed, the power failed or the disk was full.
//
// The contents are written to NAME.new, flushed to the disk, and renamed. Where no file can be made
// beside the old one, or none may take its place, the old one is written over in steps that never
// leave it short: it is first made as long as the new contents, with blanks, and flushed; then one
// write puts the new contents over its beginning; then it is cut to their length. So the contents
// must be text that ends with a blank and whose reader passes over all that follows.
//
// Limits of writing over: that one write is complete or absent after a kill only up to 4096 bytes,
// and after a power failure only where the disk writes its sectors whole. When two processes
// replace the same file at the same moment, one of them may report a failure.
#pragma once

#include <string>
#include <string_view>

// Gives the file its new contents. It keeps its mode, and is made where there is none; a symbolic
// link stays and its target is replaced. A NAME.new from before is removed, never written to.
//
// Returns false with the reason in `why` when the disk is full or fails, when the file may not be
// written, and when the name stands for anything but a file. The old contents then stay.
bool replaceFile(const std::string& name, std::string_view contents, std::string& why);
