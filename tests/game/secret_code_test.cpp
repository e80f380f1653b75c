// Drawing the hidden code.
#include "GameFixture.h"

namespace quendrel::test {
namespace {

using SecretCodeTest = GameFixture;

TEST_F(SecretCodeTest, AColorIsTheWholePartOfColorsTimesTheDrawPlusOne) {
    random.script = {0.0, 0.1666, 0.1667, 0.9999};
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 1, 2, 6, 0, 0}));
}

TEST_F(SecretCodeTest, HardDrawsSixColumnsFromTenColors) {
    global.Settings.GameMode = 2;
    random.script = {0.0, 0.0999, 0.1, 0.55, 0.8999, 0.9999};
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 1, 2, 6, 9, 10}));
}

TEST_F(SecretCodeTest, MediumDrawsFiveColumnsFromEightColors) {
    global.Settings.GameMode = 1;
    random.script = {0.0, 0.124, 0.125, 0.5, 0.9999, 0.5};
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 1, 2, 5, 8, 0}));
}

TEST_F(SecretCodeTest, OneColorInEveryColumnIsPossible) {
    random.script = {0.7, 0.7, 0.7, 0.7};
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({5, 5, 5, 5, 0, 0}));
}

TEST_F(SecretCodeTest, TheGeneratorIsSeededOnceBeforeTheDraws) {
    NextCode({6, 6, 6, 6});
    random.onSeed = [this] {
        random.script.clear();
        NextCode({1, 2, 3, 4});
    };
    Click(CommandButton::kStart);
    EXPECT_EQ(log.LinesFrom("seed"), "seed\n");
    EXPECT_EQ(global.SecretCode, Row({1, 2, 3, 4}));
}

TEST_F(SecretCodeTest, WhileThePlayerSetsTheCodeTheMarkerOfTheCodeRowBlinks) {
    global.Settings.SetColor = true;
    clock.In(101, [this] { log.Clear(); });
    clock.In(2950, [this] { Place({1, 2, 3, 4}); });
    AnswerIn(3000, Answer::kOk);
    clock.In(2900, [this] {
        EXPECT_EQ(log.Text(),
                  "wait 999\n"
                  "board at 196,57\n"
                  "wait 1000\n"
                  "number 0 at 196,57\n"
                  "wait 800\n");
    });
    Click(CommandButton::kStart);
}

TEST_F(SecretCodeTest, TheEditedCodeIsEmptiedByADoubleClick) {
    global.Settings.SetColor = true;
    clock.In(150, [this] {
        Place({1, 2, 3, 4});
        log.Clear();
        game.pegs.DoubleClickRow();
        EXPECT_EQ(log.Text(),
                  "sound 2\n"
                  "no peg at 218,51\n"
                  "no peg at 268,46\n"
                  "no peg at 318,41\n"
                  "no peg at 368,41\n"
                  "cmdInput(2) at 100,65 disabled\n");
        Place({4, 3, 2, 1});
    });
    AnswerIn(300, Answer::kOk);
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({4, 3, 2, 1, 0, 0}));
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_F(SecretCodeTest, APegIsTakenOutOfTheEditedCodeByTheRightButtonAndByDelete) {
    global.Settings.SetColor = true;
    clock.In(150, [this] {
        Place({1, 2, 3, 4});
        log.Clear();
        game.pegs.PressHole(2, MouseButton::kRight);
        EXPECT_EQ(log.Text(),
                  "sound 2\n"
                  "no peg at 268,46\n"
                  "cmdInput(2) at 100,65 disabled\n");
        EXPECT_EQ(global.SecretCode, RowOfPegs({1, 0, 3, 4, 0, 0}));
        window.SetPlace(Hole(3));
        game.keys.Press(Key::kDelete);
        EXPECT_EQ(global.SecretCode, RowOfPegs({1, 0, 0, 4, 0, 0}));
        Place({4, 3, 2, 1});
    });
    AnswerIn(300, Answer::kOk);
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({4, 3, 2, 1, 0, 0}));
}

/// The sweep that begins the game shows the code covered, also where the player has yet to set it.
TEST_F(SecretCodeTest, TheBoardComesInWithTheCodeCovered) {
    global.Settings.SetColor = true;
    const auto codeRow = [this] { return window.Image().At(243, 60); };
    game.table.PrepareBoard();
    const Pixel open = codeRow();
    Pixel swept = open;
    clock.In(1, [&] { swept = codeRow(); });
    clock.In(150, [this] { Place({1, 2, 3, 4}); });
    AnswerIn(300, Answer::kOk);
    Click(CommandButton::kStart);
    EXPECT_NE(swept, open);
}

}  // namespace
}  // namespace quendrel::test
