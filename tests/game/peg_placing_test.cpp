// Choosing colours and placing them.
#include "GameFixture.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

class PegPlacingTest : public GameFixture {
protected:
    PegPlacingTest() { StartWithCode({1, 1, 2, 3}); }

    bool CheckEnabled() { return window.Of(ButtonOf(CommandButton::kCheck)).enabled; }
};

TEST_F(PegPlacingTest, PickingAnotherColorMovesTheHeldButton) {
    game.pegs.PressColorButton(3, MouseButton::kLeft);
    game.pegs.ReleaseColorButton();
    game.pegs.PressColorButton(5, MouseButton::kLeft);
    EXPECT_EQ(log.Text(),
              "hold the pointer in cmdColBtn(2)\n"
              "sound 1\n"
              "hold cmdColBtn(2)\n"
              "let the pointer go\n"
              "hold the pointer in cmdColBtn(4)\n"
              "sound 1\n"
              "let go cmdColBtn(2)\n"
              "hold cmdColBtn(4)\n");
    EXPECT_EQ(global.SelectedColor, 5);
}

TEST_F(PegPlacingTest, PickingTheSelectedColorAgainDoesNothing) {
    game.pegs.PressColorButton(3, MouseButton::kLeft);
    log.Clear();
    game.pegs.PressColorButton(3, MouseButton::kLeft);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(PegPlacingTest, AnyOtherMouseButtonSwitchesAColorOff) {
    game.pegs.PressColorButton(2, MouseButton::kRight);
    game.pegs.PressColorButton(4, MouseButton::kOther);
    EXPECT_EQ(log.Text(),
              "sound 2\n"
              "cmdColBtn(1) hidden\n"
              "sound 2\n"
              "cmdColBtn(3) hidden\n");
    EXPECT_FALSE(window.Of({Controls::cmdColBtn, 1}).enabled);
    EXPECT_FALSE(window.Of({Controls::cmdColBtn, 3}).enabled);
}

TEST_F(PegPlacingTest, TheHeldColorCannotBeSwitchedOff) {
    game.pegs.PressColorButton(2, MouseButton::kLeft);
    log.Clear();
    game.pegs.PressColorButton(2, MouseButton::kRight);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(PegPlacingTest, OnlyTheRightMouseButtonSwitchesAColorOnAgain) {
    game.pegs.PressColorButton(2, MouseButton::kRight);
    log.Clear();
    game.pegs.PressColorBackup(2, MouseButton::kLeft);
    game.pegs.PressColorBackup(2, MouseButton::kOther);
    EXPECT_EQ(log.Text(), "");
    game.pegs.PressColorBackup(2, MouseButton::kRight);
    EXPECT_EQ(log.Text(), "sound 2\ncmdColBtn(1) hidden\n");
    EXPECT_TRUE(window.Of({Controls::cmdColBtn, 1}).enabled);
    log.Clear();
    game.pegs.PressColorBackup(2, MouseButton::kRight);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(PegPlacingTest, AHoleTakesTheSelectedColorAndSoundsOnlyWhereItChanges) {
    game.pegs.PressColorButton(3, MouseButton::kLeft);
    log.Clear();
    game.pegs.PressHole(2, MouseButton::kLeft);
    game.pegs.PressHole(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(),
              "sound 7\n"
              "peg 3 at 268,531\n"
              "buttons: Exit About Config Show\n"
              "peg 3 at 268,531\n"
              "buttons: Exit About Config Show\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 3, 0, 0, 0, 0}));
}

TEST_F(PegPlacingTest, WithNoColorSelectedAnEmptyHoleStaysEmpty) {
    game.pegs.PressHole(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(),
              "no peg at 268,531\n"
              "buttons: Exit About Config Show\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_F(PegPlacingTest, AnotherMouseButtonEmptiesTheHoleAndSoundsOnlyWhereItHeldAPeg) {
    Place({3});
    log.Clear();
    game.pegs.PressHole(1, MouseButton::kRight);
    game.pegs.PressHole(1, MouseButton::kOther);
    EXPECT_EQ(log.Text(),
              "sound 2\n"
              "no peg at 218,536\n"
              "buttons: Exit About Config Show\n"
              "no peg at 218,536\n"
              "buttons: Exit About Config Show\n");
}

TEST_F(PegPlacingTest, CheckIsEnabledExactlyWhileTheRowIsFull) {
    Place({1, 2, 3});
    EXPECT_FALSE(CheckEnabled());
    Place({1, 2, 3, 4});
    EXPECT_TRUE(CheckEnabled());
    game.pegs.PressHole(2, MouseButton::kRight);
    EXPECT_FALSE(CheckEnabled());
}

TEST_F(PegPlacingTest, ADoubleClickEmptiesTheWholeRow) {
    Place({1, 2, 3, 4});
    log.Clear();
    game.pegs.DoubleClickRow();
    EXPECT_EQ(log.Text(),
              "sound 2\n"
              "no peg at 218,536\n"
              "no peg at 268,531\n"
              "no peg at 318,526\n"
              "no peg at 368,526\n"
              "buttons: Exit About Config Show\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_F(PegPlacingTest, TheHolesAreDeafWhileTheGameIsBusy) {
    Place({1});
    log.Clear();
    global.GameBusy = true;
    game.pegs.PressHole(1, MouseButton::kLeft);
    game.pegs.PressHole(1, MouseButton::kRight);
    game.pegs.DoubleClickRow();
    EXPECT_EQ(log.Text(), "");
}

TEST_F(PegPlacingTest, ASwitchedOffColorStaysInTheCode) {
    game.pegs.PressColorButton(6, MouseButton::kRight);
    GiveUp();
    NextCode({6, 6, 6, 6});
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({6, 6, 6, 6, 0, 0}));
}

}  // namespace
}  // namespace quendrel::test
