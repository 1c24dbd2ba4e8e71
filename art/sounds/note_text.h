// Reads a melody that is written as note names.
//
//   c4 f#5 bb3   a pitch: letter, sharp or flat, octave (c4 is the middle c, MIDI 60)
//   r            a rest
//   :4 :8. :8t   the length as part of a whole note, dotted, or a third of two of them; it holds
//                for the notes that follow until the next one is given
//   ~            after a note: tied to the next note, which must be of the same pitch
//   !  '         after a note: accented; short
//   |            the end of a bar, which must be full
#pragma once

#include <string>
#include <vector>

// A note in ticks, before anyone has played it.
struct WrittenNote {
    int start;
    int length;
    int pitch;
    bool accented = false;
    bool isShort = false;
};

// Appends the notes of the text, counted from tick 0. Returns the length of the text in ticks, or
// -1 with the reason in `error` when it is not written as above or a bar is not full.
int readNotes(const std::string& text, int ticksPerBar, std::vector<WrittenNote>& notes,
              std::string& error);

// Pitch class 0 (c) .. 11 of a name like "f#" at the place in the text, which moves behind it; -1
// when there is none. Also used for chord symbols, with their capital letters made small.
int readPitchClass(const std::string& text, std::size_t& place);
