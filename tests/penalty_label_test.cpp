// The "-5" that flies from the marble to the clock.
#include "fakes/play.h"

namespace {

constexpr std::array<double, 4> red = {1, 0, 0, 1};

// On level ground, seen by a camera that has settled, and paused.
struct PenaltyLabel : Story {
    PenaltyLabel() {
        playLevel();
        Game.cameraLag = 0;
        Game.holdTime = 10;
        marble.setPosition({0, 0, 0});
        ticks(3, 0.5);
        pressKey(VK_F12);
        Game.penaltyPending = 1;
    }

    static std::vector<Text> labels() {
        std::vector<Text> found;
        for (const Text& text : textsDrawn()) {
            if (text.text == "-5") { found.push_back(text); }
        }
        return found;
    }
};

} // namespace

TEST_F(PenaltyLabel, GrowsFromTheMarbleToTheClock) {
    const Text expected[] = {{"-5", 326.667, 293.551, 0.3, red},
                             {"-5", 320, 251.615, 0.4, red},
                             {"-5", 313.333, 209.679, 0.5, red}};
    for (const Text& text : expected) {
        tick(0.1);
        EXPECT_EQ(labels(), std::vector<Text>{text});
    }
}

TEST_F(PenaltyLabel, TakesFourSecondsWhenItEnds) {
    Game.clock = 3;
    for (int frame = 1; frame <= 3; ++frame) {
        EXPECT_EQ(Game.clock, 3);
        tick(0.25);
        EXPECT_EQ(labels().size(), 1U) << frame;
    }
    EXPECT_EQ(Game.clock, -1);
    EXPECT_FLOAT_EQ(Game.penaltyFade, 0.7F);
    tick(0.25);
    EXPECT_EQ(labels().size(), 0U);
    EXPECT_EQ(Game.clock, -1);
}

TEST_F(PenaltyLabel, OfAnotherResetIsTheSame) {
    pressKey(VK_F12);
    tick(0.25);
    marble.setPosition({800, 0, 0});
    tick(0.25);
    EXPECT_EQ(Game.holdTime, 1);
    const float clock = Game.clock;
    tick(0.25);
    EXPECT_EQ(Game.clock, clock - 4.25F);
    EXPECT_EQ(Game.penaltyPending, 0);
}
