#include "art/sounds/pieces.h"

namespace {

// The theme hammers on one note and breaks loose across the bar line; then it climbs.
const char* const themeOpening = "d5:8 d5' r d5 f5:4 d5:8 g5~ | g5:4. f5:8 d5:4. c5:8 |"
                                 "bb4:8 bb4' r bb4 d5:4 bb4:8 f5~ | f5:4. eb5:8 c5:4. d5:8 |"
                                 "eb5:4. f5:8 g5:4 eb5 | f5:4. g5:8 bb5:4 f5 |";
const char* const themeAsks = "g5:4. a5:8 bb5:4. c6:8 | d6:4. c6:8 a5:4 f#5";
const char* const themeAnswers = "g5:4 bb5 a5 c6 | bb5:4. a5:8 g5:4 r";
const char* const openingChords = "Gm | Gm | Bb | F/A | Cm7 | Bb/D |";
const char* const askingChords = "Eb | D7";
const char* const answeringChords = "Eb F | Gm";

const char* const anthem = "f5:4. bb5:8~ bb5:4 c6:8 d6 | c6:4. a5:8~ a5:2 |"
                           "d5:4. g5:8~ g5:4 a5:8 bb5 | a5:4. f5:8~ f5:2 |"
                           "g5:4. bb5:8~ bb5:4 a5:8 g5 | f5:4. d5:8~ d5:4 f5 |"
                           "eb5:4. g5:8~ g5:4 bb5 | a5:4. g5:8~ g5:4 f#5";
const char* const anthemChords = "Bb | F/A | Gm7 | Dm7 | Eb | Bb/D | Cm7 | D7sus4 . . D7";

constexpr int wholeTone = 2;

const char* const riff = "a.ca.cb.a.ca.d.c";
const char* const drivingBass = "R.R.8.RR.R7.8.5.";
const char* const anthemBass = "R-..R.R-..R.5-8-";

// Muted strings: first with room between the strokes, then without.
const char* const sparseChop = "x..xx..xx..xx.x.";
const char* const busyChop = "x.xxx.xxx.xxx.xx";

const char* const beat = "kick X..x..x.X..x..x. *7 | X..x..x.X...X.X. /"
                         "snare ....X.......X..o *7 | ....X..x..x.XxXX /"
                         "hat x.xxx.xxx.xxx.xx / crash X............... | ................*7";
const char* const wideBeat = "kick X...X...X...X... /"
                             "snare ....X.......X... *7 | ....X...xxx.XXXX /"
                             "open ..x...x...x...x. / crash X............... | ................*7";

std::vector<Part> players() {
    return {
        {"Lead", 0, 29, 100, 60, 50, 60, 93, 0.9},
        {"Clavinet", 1, 7, 96, 96, 30, 60, 77, 0.6},
        {"Strings", 2, 48, 82, 44, 70, 58, 79, 0.98},
        {"Guitar", 3, 28, 80, 30, 24, 50, 67, 0.6},
        {"Brass", 4, 61, 88, 74, 56, 55, 86, 0.92},
        {"Bass", 5, 38, 98, 64, 10, 31, 57, 0.85},
        {"Piano", 6, 0, 118, 54, 60, 58, 79, 0.95},
        {"Drums", drumChannel, 16, 84, 64, 30, 0, 127, 0.9},
    };
}

Section introduction() {
    return {
        "Introduction",
        "Gm | Gm | Gm | Gm | Gm | Eb | F | D7",
        {
            pattern("Clavinet", growing(mezzoPiano, mezzoForte), riff),
            pattern("Guitar", growing(piano, mezzoForte),
                    "................*2 | x.xxx.xxx.xxx.xx*6"),
            pattern("Bass", mezzoForte, std::string("................*4 | ") + drivingBass + "*4"),
            pattern("Strings", growing(pianissimo, mezzoForte),
                    "................*4|x---------------*4"),
            drums(growing(mezzoPiano, forte),
                  "hat x...x...x...x... *2 | x.xxx.xxx.xxx.xx *6 /"
                  "kick ................*2 | X.......X....... *2 | X..x..x.X..x..x.*4 /"
                  "snare ................*4 | ....X.......X... *3 | ....X..x..xxXXXX"),
        }};
}

Section theme(const char* name, const char* ending, const char* endingChords,
              const char* guitarChop, int transpose = 0) {
    return {name,
            std::string(openingChords) + endingChords,
            {
                melody("Lead", mezzoForte, std::string(themeOpening) + ending),
                pattern("Clavinet", mezzoPiano, riff),
                pattern("Guitar", mezzoPiano, guitarChop),
                pattern("Bass", mezzoForte, drivingBass),
                drums(mezzoForte, beat),
            },
            transpose};
}

Section anthemSection(const char* name, int transpose = 0) {
    return {name,
            anthemChords,
            {
                melody("Brass", forte, anthem),
                pattern("Strings", mezzoForte, "x---------------"),
                pattern("Guitar", mezzoForte, "x-----x-..x-x-x-"),
                pattern("Bass", forte, anthemBass),
                drums(forte, wideBeat),
            },
            transpose};
}

Section interlude() {
    return {"Interlude",
            "Gm | Eb | F | Gm",
            {
                pattern("Clavinet", mezzoForte, riff),
                pattern("Bass", mezzoForte, drivingBass),
                pattern("Brass", mezzoForte, "..X...X......... "),
                drums(mezzoForte, "kick X..x..x.X..x..x. / hat x.xxx.xxx.xxx.xx /"
                                  "snare ....X.......X... *3 | ....X..x..xxXXXX"),
            }};
}

Section countered() {
    Section section = theme("Theme with strings", themeAnswers, answeringChords, busyChop);
    section.add(melody("Strings", mezzoForte,
                       "g4:2 bb4 | d5 c5 | bb4 g4 | a4 f4 | g4 c5 | bb4 d5 |"
                       "bb4 a4 | bb4:4. c5:8 d5:2"));
    return section;
}

Section valley() {
    return {"Valley",
            "Ebmaj7 | F | Gm | Gm/F | Ebmaj7 | Cm9 | D7sus4 | D7",
            {
                melody("Strings", growing(mezzoPiano, mezzoForte),
                       "g5:2. d5:4 | c6:2. a5:4 | bb5:2. g5:4 | d5:1 |"
                       "g5:2. bb5:4 | d6:2 eb6 | d6:2. c6:4 | a5:2 f#5"),
                pattern("Piano", growing(piano, mezzoForte), "a.b.c.d.c.b.c.b."),
                pattern("Bass", mezzoPiano, "R-----------5---"),
                drums(growing(mezzoPiano, mezzoForte),
                      "kick X......x........ / snare ........X....... /"
                      "ride x...x...x...x..."),
            }};
}

Section climb() {
    return {"Climb",
            "D7sus4 | D7 | E7sus4 | E7",
            {
                pattern("Clavinet", growing(mezzoPiano, forte), riff),
                pattern("Bass", growing(mezzoPiano, forte), "R.R.R.R.R.R.R.R."),
                pattern("Strings", growing(mezzoPiano, forte), "x---------------"),
                drums(growing(piano, forte), "kick X...X...X...X... /"
                                             "snare x...x...x...x... | x.x.x.x.x.x.x.x. *2|"
                                             "xxxxxxxxXXXXXXXX"),
            }};
}

Section higherTheme() {
    Section section = theme("Theme, higher", themeAsks, askingChords, busyChop, wholeTone);
    section.add(pattern("Strings", mezzoForte, "x---------------"));
    section.add(melody("Brass", mezzoPiano, std::string(themeOpening) + themeAsks, -12));
    return section;
}

// The anthem for the last time; the lead answers where the brass rests on a note.
Section higherAnthem() {
    Section section = anthemSection("Anthem, higher", wholeTone);
    section.add(melody("Lead", mezzoForte,
                       "r:1 | r:2 r:8 c6 a5 f5 | r:1 | r:2 r:8 a5 c6 d6 |"
                       "r:1 | r:2 r:8 bb5 c6 d6 | eb6:2 c6 | d6:2. c6:4"));
    section.add(pattern("Clavinet", mezzoPiano, riff));
    return section;
}

Section ending() {
    return {"Ending",
            "Am | F G | Am | Am",
            {
                melody("Lead", forte,
                       "e5:8 e5' r e5 g5:4 e5:8 a5~ | a5:4 c6 b5 d6 |"
                       "e6:8 e6' r e6 g6:4 e6:8 a6~ | a6:4' r r:2"),
                melody("Brass", forte, "a4:2 c5 | a4 b4 | c5:2 e5:4. a5:8~ | a5:4' r r:2"),
                pattern("Strings", forte, "x---------------*3 | X---............"),
                pattern("Guitar", mezzoForte, "x.xxx.xxx.xxx.xx*3 | X---............"),
                pattern("Bass", forte, "R.R.8.RR.R7.8.5.*3 | R---............"),
                drums(forte, "kick X..x..x.X..x..x. *3 | X............... /"
                             "snare ....X.......X...*2 | x.xxX.xxX.xxXXXX | X............... /"
                             "crash X...............|................*2|X..............."),
            }};
}

} // namespace

Piece downhillRace() {
    return {.title = "Downhill Race",
            .fileName = "drwho2.mid",
            .tempo = 152.0,
            .beatsPerBar = 4,
            .sharps = -2,
            .minor = true,
            .swing = 0.5,
            .ringOut = 1.0,
            .parts = players(),
            .sections = {
                introduction(),
                theme("Theme", themeAsks, askingChords, sparseChop),
                theme("Theme, answered", themeAnswers, answeringChords, busyChop),
                anthemSection("Anthem"),
                interlude(),
                countered(),
                valley(),
                climb(),
                higherTheme(),
                higherAnthem(),
                ending(),
            }};
}
