// The scale that the windows are shown at, and its steps.
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "ui/windows/ShownScale.h"

namespace quendrel::test {
namespace {

/// Has room for any scale that can be chosen.
constexpr Size kLarge{3840, 2160};

double Shown(const ViewScale& wanted, double desktop, Size pixels) {
    return ShownScale(wanted, {desktop, pixels});
}

/// The scales that are shown after each of `count` choices, from one that is chosen.
std::vector<double> Steps(void (*choose)(ViewScale&, const ScreenRoom&), double from, int count,
                          Size pixels = kLarge) {
    ViewScale wanted{from, {}};
    std::vector<double> shown;
    for (int i = 0; i < count; ++i) {
        choose(wanted, {1, pixels});
        shown.push_back(Shown(wanted, 1, pixels));
    }
    return shown;
}

TEST(ShownScale, IsTheDesktopsWhereThereIsRoom) {
    EXPECT_EQ(Shown({}, 1, kLarge), 1);
    EXPECT_EQ(Shown({}, 1.5, kLarge), 1.5);
    EXPECT_EQ(Shown({}, 1.3, kLarge), 1.3);
    EXPECT_EQ(Shown({}, 3.5, kLarge), 3.5);
    EXPECT_EQ(Shown({}, 5, {8000, 8000}), 5);
}

TEST(ShownScale, IsTheLargestStepWithRoomForTheMainWindow) {
    EXPECT_EQ(Shown({}, 1.5, {1366, 768}), 1.25);
    EXPECT_EQ(Shown({}, 2, {1000, 2000}), 1.5);
    EXPECT_EQ(Shown({}, 2, {1310, 1210}), 2);
    EXPECT_EQ(Shown({}, 2, {1309, 1210}), 1.75);
    EXPECT_EQ(Shown({}, 2, {1310, 1209}), 1.75);
    EXPECT_EQ(Shown({2.5, {}}, 1, {1366, 768}), 1.25);
    EXPECT_EQ(Shown({{}, 2.5}, 1, {1366, 768}), 1.25);
}

TEST(ShownScale, IsNeverLessThanOne) {
    EXPECT_EQ(Shown({}, 0.5, kLarge), 1);
    EXPECT_EQ(Shown({}, 2, {640, 480}), 1);
}

TEST(ShownScale, AChoiceGoesBeforeTheDesktopAndTheOneOfTheRunBeforeBoth) {
    EXPECT_EQ(Shown({1.75, {}}, 1, kLarge), 1.75);
    EXPECT_EQ(Shown({1.75, 2.5}, 1, kLarge), 2.5);
    EXPECT_EQ(Shown({{}, 1.27}, 2, kLarge), 1.27);
}

TEST(ShownScale, GoesUpAndDownByQuarters) {
    EXPECT_EQ(Steps(ChooseLarger, 1, 3), (std::vector<double>{1.25, 1.5, 1.75}));
    EXPECT_EQ(Steps(ChooseSmaller, 1.75, 3), (std::vector<double>{1.5, 1.25, 1}));
}

TEST(ShownScale, GoesToTheNextQuarterFromBetweenTwo) {
    EXPECT_EQ(Steps(ChooseLarger, 1.27, 2), (std::vector<double>{1.5, 1.75}));
    EXPECT_EQ(Steps(ChooseSmaller, 1.27, 2), (std::vector<double>{1.25, 1}));
}

TEST(ShownScale, HasNoStepBelowOneAboveThreeOrWhereThereIsNoRoom) {
    EXPECT_EQ(Steps(ChooseSmaller, 1, 1), std::vector<double>{1});
    EXPECT_EQ(Steps(ChooseLarger, 2.75, 2), (std::vector<double>{3, 3}));
    EXPECT_EQ(Steps(ChooseLarger, 1, 2, {1366, 768}), (std::vector<double>{1.25, 1.25}));
}

TEST(ShownScale, WhereThereIsNoStepNothingIsChosen) {
    ViewScale wanted;
    ChooseSmaller(wanted, {1, kLarge});
    ChooseLarger(wanted, {1.25, {1366, 768}});
    ChooseLarger(wanted, {4, {8000, 8000}});
    EXPECT_EQ(wanted.chosen, std::nullopt);
}

TEST(ShownScale, FromADesktopAboveTheMostItGoesDownToTheMost) {
    ViewScale wanted;
    ChooseSmaller(wanted, {4, {8000, 8000}});
    EXPECT_EQ(wanted.chosen, 3);
}

TEST(ShownScale, StepsFromWhatIsShownAndNotFromWhatIsWanted) {
    ViewScale wanted{2.5, {}};
    ChooseSmaller(wanted, {1, {1366, 768}});
    EXPECT_EQ(wanted.chosen, 1);
}

TEST(ShownScale, AChoiceEndsTheOneOfTheRun) {
    ViewScale wanted{2.0, 1.5};
    ChooseLarger(wanted, {1, kLarge});
    EXPECT_EQ(wanted.chosen, 1.75);
    EXPECT_EQ(wanted.ofRun, std::nullopt);
}

TEST(ShownScale, LeftToTheDesktopAgainNothingIsWanted) {
    ViewScale wanted{2.0, 1.5};
    ChooseNone(wanted);
    EXPECT_EQ(wanted.chosen, std::nullopt);
    EXPECT_EQ(wanted.ofRun, std::nullopt);
}

}  // namespace
}  // namespace quendrel::test
