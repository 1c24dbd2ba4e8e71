#include "art/sounds/pieces.h"

namespace {

// The theme steps down and leaps up on an uneven beat of three, three and two eighths; every start
// from the same place reaches higher.
const char* const themeOpening = "f#5:4. e5 a5:4 | b5 a5:8 f#5:4. d5:8 e5 |"
                                 "f#5:4. e5 d5:4 | e5 c#5:8 a4:4. d5:8 e5 |";
const char* const themeAsks = "g5:4. f#5 b5:4 | a5 f#5:8 d5:4. e5:8 f#5 |"
                              "g5:4. b5 d6:4 | d6 c#6:8 a5:4. r:4";
const char* const themeAnswers = "g5:4. f#5 b5:4 | c#6:4. b5 e6:4 |"
                                 "d6:4. a5 f#5:4 | e5:4. c#5:8 d5:2";
const char* const openingChords = "D | Gmaj7 | Bm7 | A |";
const char* const askingChords = "G | D/F# | Em7 | A7sus4 A . .";
const char* const answeringChords = "G | A | D/A | A7 D";

// The second theme sings: a long note, then a run up to the next one.
const char* const songOpening = "d5:2~ d5:8 e5 f#5 g5 | a5:2 e5 |"
                                "c#5:2~ c#5:8 d5 e5 f#5 | a5:4. f#5:8 d5:2 |";
const char* const songTurns = "b4:2~ b4:8 c#5 d5 e5 | g5:4. e5:8 c#5:4 e5 |"
                              "f#5:2. e5:8 d5 | r:4 a4:8 b4 c5:4 b4:8 c5";
const char* const songRises = "b4:2~ b4:8 d5 e5 g5 | bb5:4. a5:8 g5:4 e5 |"
                              "f#5:2 a5 | d6:2 c#6:4. r:8";
const char* const songChords = "Gmaj7 | A/G | F#m7 | Bm7 | Em7 | A7 | D | D7";
const char* const risingChords = "Gmaj7 | A/G | F#m7 | Bm7 | Em7 | Gm6 | D/A | A7sus4 A7";

const char* const rollingBass = "R-..R-5-..R-8-5-";
const char* const walkingBass = "R-------5---3-n-";
const char* const motor = "a.c.b.d.c.a.d.b.";

const char* const beat = "kick X.....x.X..x.... *7 | X.....x.X...x.x. /"
                         "snare ....X..o....X... *7 | ....X..o..x.XxXX /"
                         "hat x.x.x.x.x.x.x.xo /"
                         "crash X............... | ................ *7";
// Over the beat where the music widens.
const char* const sparkle = "tamb o...x..oo...x.o. / open ..............x.";
const char* const lightBeat = "kick X.......x....... *7 | X.......x...x... /"
                              "stick ....x.......x.o. /"
                              "shaker xoxoxoxoxoxoxoxo";

std::vector<Part> players() {
    return {
        {"Flute", 0, 73, 92, 58, 60, 60, 96, 0.94},
        {"Marimba", 1, 12, 98, 92, 50, 62, 81, 0.8},
        {"Horn", 2, 60, 92, 44, 64, 53, 84, 0.95},
        {"Strings", 3, 48, 84, 72, 70, 57, 76, 0.98},
        {"Guitar", 4, 25, 90, 36, 40, 52, 69, 0.85, 10},
        {"Bass", 5, 33, 110, 64, 20, 31, 57, 0.92},
        {"Glockenspiel", 6, 9, 108, 84, 60, 79, 103, 0.9},
        {"Brass", 7, 61, 90, 50, 56, 55, 74, 0.85},
        {"Drums", drumChannel, 0, 114, 64, 36, 0, 127, 0.9},
    };
}

Section introduction() {
    return {"Introduction",
            "D/A | G/A | Em7/A | A7sus4 A7",
            {
                melody("Flute", mezzoForte, "r:1 | r | r | r:2 r:8 a4 d5 e5"),
                pattern("Marimba", growing(piano, mezzoForte), motor),
                pattern("Strings", growing(piano, mezzoForte), "x---------------"),
                pattern("Bass", growing(mezzoPiano, forte), "R-----..R-....R-*3|R-..R-..R-R-R-R-"),
                melody("Glockenspiel", piano, "r:1 | r:2 d6:4. e6:8 | r:1 | r:2 g6:4 a6"),
                drums(growing(piano, forte),
                      "hat x.o.x.o.x.o.x.o. *3 | x.x.x.x.x.x.x.x. /"
                      "kick x...............*2 | x.......x....... | x...x...x...x... /"
                      "snare ................ *3 | ....x...x.x.xxXX"),
            }};
}

Section theme(const char* name, const char* ending, const char* endingChords, Dynamics dynamics) {
    return {name,
            std::string(openingChords) + endingChords,
            {
                melody("Flute", dynamics, std::string(themeOpening) + ending),
                pattern("Marimba", piano, motor),
                pattern("Guitar", mezzoPiano, "x--.x-x-..x-x-x."),
                pattern("Bass", mezzoForte, rollingBass),
                drums(mezzoForte, beat),
            }};
}

// The theme with its answer; glass bells fill the places where the flute rests on a note.
Section answeredTheme() {
    Section section = theme("Theme, answered", themeAnswers, answeringChords, forte);
    section.add(melody("Glockenspiel", mezzoPiano,
                       "r:1 | r:2 r:8 d6 f#6 a6 | r:1 | r:2 r:8 e6 c#6 a5 |"
                       "r:1 | r | r:2 r:8 a6 f#6 d6 | r:1"));
    section.add(pattern("Strings", piano, "x---------------"));
    section.add(drums(mezzoPiano, sparkle));
    return section;
}

Section song(const char* name, const char* ending, const char* chords) {
    return {name,
            chords,
            {
                melody("Horn", mezzoForte, std::string(songOpening) + ending, -12),
                pattern("Strings", mezzoPiano, "x---------------"),
                pattern("Guitar", piano, "a.b.c.b.d.c.b.c."),
                pattern("Bass", mezzoPiano, walkingBass),
                drums(mezzoPiano, lightBeat),
            }};
}

// The song climbs to the tender minor chord, and the flute moves while the horn holds.
Section risingSong() {
    Section section = song("Song, rising", songRises, risingChords);
    section.add(melody("Flute", mezzoPiano,
                       "r:8 b5 a5 g5 f#5:2 | e5 c#6 | r:8 c#6 a5 e5 a5:2 |"
                       "d5:4. e5:8 f#5:2 | r:8 g5 f#5 e5 b5:2 | d6 bb5 |"
                       "d6 f#6 | e6:2. r:4"));
    return section;
}

Section breakdown() {
    return {"Break",
            "D | C/D | G/D | A7sus4",
            {
                pattern("Marimba", growing(mezzoForte, forte), "A.bcd.bcA.cbd.cb"),
                pattern("Brass", growing(mezzoPiano, forte), "X-....X-....X-.."),
                melody("Glockenspiel", mezzoForte,
                       "f#6:4. e6 a6:4 | e6:4. d6 g6:4 | d6:4. b5 g6:4 | a6:4. g6 e6:4"),
                pattern("Bass", forte, "R-....R-....R-.."),
                drums(growing(mezzoPiano, forte),
                      "kick X.....X.....X... /tom2 ..x.x...x.x...x. /"
                      "hat x.x.x.x.x.x.x.x. / snare ................*3 | ....x...x.xxXXXX"),
            }};
}

Section bridge() {
    return {"Bridge",
            "Bbmaj7 | C | Am7 | Dm | Gm7 | C | Bbmaj7 | A7sus4 A7",
            {
                melody("Horn", forte,
                       "d5:4. c5 f5:4 | g5 f5:8 e5:4. r:4 | c5:4. d5 e5:4 | f5 e5:8 d5:4. r:4 |"
                       "d5:4. f5 g5:4 | e5:4. g5 c6:4 | d6:2. c6:8 bb5 | a5:2. r:4",
                       -12),
                melody("Flute", growing(mezzoPiano, forte),
                       "r:1 | r | r | r | r | r | r | r:2 r:8 a4 d5 e5"),
                pattern("Strings", growing(mezzoPiano, forte), "x---------------"),
                pattern("Marimba", growing(piano, mezzoForte), "abcdcbabcdcbabcd"),
                pattern("Bass", mezzoForte, "R-----R-----5-n-"),
                drums(growing(mezzoPiano, forte), beat),
            }};
}

// The theme once more, with everyone in it.
Section tutti(const char* name, const char* ending, const char* endingChords,
              const std::string& counter) {
    Section section = theme(name, ending, endingChords, forte);
    section.add(melody("Glockenspiel", piano, std::string(themeOpening) + ending, 12));
    section.add(melody("Horn", mezzoForte, counter));
    section.add(pattern("Strings", mezzoPiano, "x---------------"));
    section.add(pattern("Brass", mezzoPiano, "x-....x-....x-.."));
    section.add(drums(mezzoPiano, sparkle));
    return section;
}

Section coda() {
    return {"Coda",
            "Bb | C | D | D",
            {
                melody("Flute", growing(forte, fortissimo),
                       "d5:4. f5 bb5:4 | g5:4. c6 e6:4 | f#6:2. a5:8 d6 | d6:4' r r:2"),
                melody("Horn", forte, "bb4:2 d5 | c5 e5 | d5:2. f#4:8 a4 | d5:4' r r:2"),
                pattern("Strings", forte, "x--------------- *3 | X---............"),
                pattern("Brass", mezzoForte, "x-....x-....x-.. *3 | X---............"),
                pattern("Marimba", mezzoForte, "abcdcbabcdcbabcd*3 | X..............."),
                pattern("Bass", forte, "R-..R-5-..R-8-5-*3 | R---............"),
                drums(forte, "kick X.....x.X..x.... *3 | X............... /"
                             "snare ....X.......X... *2 | ....x...x.xxXXXX | X............... /"
                             "crash X............... | ................*2 | X..............."),
            }};
}

} // namespace

Piece offTheLine() {
    const std::string lowCounter = "d5:2 a4 | b4 d5 | b4 a4 | c#5 a4 |";
    return {.title = "Off the Line",
            .fileName = "midi1.mid",
            .tempo = 16 * 60.0 / 7.0,
            .beatsPerBar = 4,
            .sharps = 2,
            .minor = false,
            .swing = 0.5,
            .ringOut = 1.0,
            .parts = players(),
            .sections = {
                introduction(),
                theme("Theme", themeAsks, askingChords, mezzoForte),
                answeredTheme(),
                song("Song", songTurns, songChords),
                risingSong(),
                breakdown(),
                bridge(),
                tutti("Tutti", themeAsks, askingChords,
                      lowCounter + "b4:2 d5 | d5 a4 | b4 g4 | d5:4 c#5 e4:2"),
                tutti("Tutti, answered", themeAnswers, answeringChords,
                      lowCounter + "b4:2 d5 | c#5 e5 | f#5 d5 | c#5:4 a4 f#4:2"),
                coda(),
            }};
}
