// The ground that holes make: its height, its catch radius, its slopes.
#include "fakes/play.h"

using GroundField = Story;

namespace {

const Hole well = {0, 0, 30, 100};

void makeGround(const std::vector<Hole>& holes) {
    writeMipChain("ground", groundTextureSize, groundTextureLevels);
    writeFile("field.map", levelText(holes));
    ASSERT_TRUE(level.load("field.map", marble));
}

} // namespace

TEST_F(GroundField, IsFlatWithoutHoles) {
    EXPECT_EQ(level.heightAt(12, -3400), 0);
    EXPECT_EQ(level.holeAt(0, 0), 0);
    expectVector(level.normalAt(3, 4), 0, 0, -1);
    EXPECT_EQ(level.downhillAt(3, 4).length(), 0);
    expectVector(level.tangentXAt(3, 4), 1, 0, 0);
    expectVector(level.tangentYAt(3, 4), 0, 1, 0);
}

TEST_F(GroundField, AddsUpItsWells) {
    makeGround({well});
    EXPECT_NEAR(level.heightAt(0, 0), 100, 1e-4);
    EXPECT_NEAR(level.heightAt(30, 0), 70.71068, 1e-4);
    EXPECT_NEAR(level.heightAt(0, -30), 70.71068, 1e-4);
    EXPECT_NEAR(level.heightAt(0, 90), 31.62278, 1e-4);
    makeGround({well, {40, 0, 30, -50}});
    EXPECT_NEAR(level.heightAt(0, 0), 100 - 50 * 30 / 50.0, 1e-4);
    makeGround({{0, 0, 30, 1e8F}, {0, 0, 30, 1}, {0, 0, 30, -1e8F}});
    EXPECT_EQ(level.heightAt(0, 0), 1); // a sum in floats loses the one between the large
}

TEST_F(GroundField, CatchesWithinOneAndAHalfWidths) {
    makeGround({well});
    const struct {
        float x, y, expected;
    } cases[] = {{0, 45, 30},   {30, 30, 30}, {0, 46, -1}, {0, 240, -1},
                 {-249, 0, -1}, {251, 0, 0},  {0, 300, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(level.holeAt(c.x, c.y), c.expected) << c.x << ' ' << c.y;
    }
}

TEST_F(GroundField, MoundsNeverCatch) {
    makeGround({{0, 0, 30, -100}, {600, 0, 30, 0}});
    EXPECT_NEAR(level.heightAt(0, 0), -100, 1e-4);
    EXPECT_EQ(level.holeAt(0, 0), 0);
    EXPECT_EQ(level.holeAt(600, 0), 0);
}

TEST_F(GroundField, FirstOfTwoHolesCatches) {
    makeGround({{0, 0, 60, 10}, {10, 0, 30, 90}});
    EXPECT_EQ(level.holeAt(5, 0), 60);
    makeGround({{10, 0, 30, 90}, {0, 0, 60, 10}});
    EXPECT_EQ(level.holeAt(5, 0), 30);
    EXPECT_EQ(level.holeAt(-80, 0), 60); // out of reach of the first, within the second
}

TEST_F(GroundField, SlopesTowardsTheWell) {
    makeGround({well});
    expectVector(level.normalAt(30, 0), -0.7650, -0.0126, -0.6439);
    expectVector(level.downhillAt(30, 0), -0.9065, -0.0150, 0.4220);
    expectVector(level.tangentXAt(30, 0), 0.6502, 0, -0.7598);
    expectVector(level.tangentYAt(30, 0), 0, 0.9998, -0.0196);
    EXPECT_GT(level.normalAt(-30, 0).x, 0);
    EXPECT_GT(level.downhillAt(0, -30).y, 0);
}
