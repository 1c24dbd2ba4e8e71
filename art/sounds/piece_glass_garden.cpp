#include "art/sounds/pieces.h"

namespace {

// The theme turns once around a note and drops; its answer climbs by thirds.
const char* const themeOpening = "r:8 g5 a5 g5~ g5 c5:4. | r:8 e5 g5 e5~ e5:2 |"
                                 "r:8 a5 bb5 a5~ a5 d5:4. | r:8 f5 g5 f5~ f5:4 db5 |"
                                 "c5:4. e5:8~ e5:4 g5 | f5:4. a5:8~ a5:4 d5 |";
const char* const themeAsks = "d5:4. f5:8~ f5:4 a5 | bb5:4. g5:8~ g5:2";
const char* const themeAnswers = "bb4:4. d5:8~ d5:4 e5 | g5:4. f5:8~ f5:2";
const char* const openingChords = "Fmaj7 | Am7 | Bbmaj7 | Bbm6 | Am7 | Dm7 |";
const char* const askingChords = "Gm7 | C9sus4";
const char* const answeringChords = "Gm7 C13 | F69";

const char* const twoFeel = "R---...n5---....|R---....5-----n-";
const char* const walking = "R---3---5---n---";
const char* const brushes = "ride x.xxx.xx / pedal ..x...x. / kick o...o... /"
                            "snare ..o...o. *7 | ..o..oxx";

std::vector<Part> players() {
    return {
        {"Vibraphone", 0, 11, 127, 70, 64, 60, 89, 0.98},
        {"Guitar", 1, 24, 112, 40, 50, 52, 71, 0.95, 14},
        {"Electric Piano", 2, 4, 94, 84, 50, 55, 74, 0.92},
        {"Clarinet", 3, 71, 95, 52, 64, 50, 91, 0.95},
        {"Strings", 4, 49, 88, 64, 80, 55, 72, 0.98},
        {"Bass", 5, 32, 112, 64, 20, 29, 55, 0.93},
        {"Celesta", 6, 8, 110, 96, 80, 72, 96, 0.95},
        {"Drums", drumChannel, 40, 127, 64, 50, 0, 127, 0.9},
    };
}

Section introduction() {
    return {
        "Introduction",
        "Fmaj7 | Gm7/F | Fmaj7 | C9sus4",
        {
            pattern("Celesta", growing(pianissimo, piano), "a.b.c.d.c.b.a..."),
            pattern("Electric Piano", piano, "x-------"),
            pattern("Bass", mezzoPiano, "R-------5-----n-"),
            drums(growing(piano, mezzoForte), "ride ........|........|x.xxx.xx*2 / pedal ..x...x."),
        }};
}

Section theme(const char* name, const char* ending, const char* endingChords) {
    return {name,
            std::string(openingChords) + endingChords,
            {
                melody("Vibraphone", fortissimo, std::string(themeOpening) + ending),
                melody("Guitar", mezzoPiano, std::string(themeOpening) + ending, -12),
                pattern("Electric Piano", piano, "x--x----"),
                pattern("Bass", mezzoForte, twoFeel),
                drums(mezzoForte, brushes),
            }};
}

Section answeredTheme() {
    Section section = theme("Theme, answered", themeAnswers, answeringChords);
    section.add(melody("Celesta", mezzoPiano,
                       "r:1 | r:2 r:8 e6 g6 b6 | r:1 | r:2 r:8 db6 f6 g6 |"
                       "r:1 | r | r | r:2 r:8 c6 d6 a6"));
    return section;
}

Section shade() {
    return {"Shade",
            "Dm9 | G13 | Dm7 | G13 | Bbmaj7 | Am7 | Gm7 | C9sus4",
            {
                melody("Clarinet", mezzoForte,
                       "a4:8 c5 d5 e5~ e5:4 f5 | e5:4. d5:8~ d5:4 b4 |"
                       "a4:8 c5 d5 f5~ f5:4 a5 | g5:4. e5:8~ e5:2 |"
                       "d5:8 f5 g5 a5~ a5:4 d6 | c6:4. a5:8~ a5:4 g5 |"
                       "bb5:4 a5:8 g5 f5:4 d5 | g5:2. r:4"),
                pattern("Strings", piano, "x-------"),
                pattern("Electric Piano", piano, ".x-..x-."),
                pattern("Bass", mezzoForte, walking),
                drums(mezzoForte, brushes),
            }};
}

Section stroll() {
    return {"Stroll",
            std::string(openingChords) + askingChords,
            {
                melody("Guitar", forte,
                       "r:8 c5 e5 g5 a5:4 g5:8 e5 | e5 d5 c5 b4 c5:4 a4 |"
                       "r:8 d5 f5 a5 c6:4 a5:8 f5 | db5 f5 g5 f5 db5:4 bb4 |"
                       "c5:8t d5 e5 g5:4 e5:8t d5 c5 a4:4 | f5 e5:8 d5 c5 d5 f5 a5 |"
                       "bb5:4. a5:8 g5 f5 d5 bb4 | c5:4 d5:8 e5 g5:2"),
                pattern("Electric Piano", piano, "x--x----"),
                pattern("Bass", mezzoForte, walking),
                drums(mezzoForte, brushes),
            }};
}

Section lastTheme() {
    Section section = theme("Theme, together", themeAnswers, answeringChords);
    section.add(melody("Clarinet", mezzoPiano,
                       "a4:2. r:4 | c5:2 a4:4 c5 | d5:2. r:4 | db5:2 bb4 |"
                       "a4:2. e5:4 | d5:2 c5 | bb4:2 c5:4 bb4 | a4:1"));
    section.add(pattern("Strings", piano, "x-------"));
    return section;
}

Section coda() {
    Section section{"Coda",
                    "Gm7 | C9sus4 | Dbmaj7 | Fmaj9",
                    {
                        melody("Vibraphone", growing(forte, mezzoPiano),
                               "r:8 a5 bb5 a5~ a5 d5:4. | r:8 g5 a5 g5~ g5 c5:4. |"
                               "r:8 ab5 bb5 ab5~ ab5 f5:4. | r:8 g5 a5 c6~ c6:2"),
                        pattern("Electric Piano", piano, "x-------"),
                        pattern("Strings", piano, "x-------"),
                        pattern("Bass", mezzoPiano, "R-------"),
                        pattern("Celesta", piano, "........*3 | ....abcd"),
                        drums(mezzoPiano, "ride x.xxx.xx*3|x....... / pedal ..x...x.*3|........"),
                    }};
    section.lastTempo = 66.0;
    return section;
}

} // namespace

Piece glassGarden() {
    return {.title = "Glass Garden",
            .fileName = "midi3.mid",
            .tempo = 92.0,
            .beatsPerBar = 4,
            .sharps = -1,
            .minor = false,
            .swing = 0.6,
            .ringOut = 2.0,
            .parts = players(),
            .sections = {
                introduction(),
                theme("Theme", themeAsks, askingChords),
                answeredTheme(),
                shade(),
                stroll(),
                lastTheme(),
                coda(),
            }};
}
