// The idle board.
#include "BoardLog.h"
#include "GameFixture.h"

namespace quendrel::test {
namespace {

class IdleAnimationTest : public GameFixture {
protected:
    IdleAnimationTest() { global.DemoDelay = 15; }

    void RunFor(int milliseconds) {
        clock.In(milliseconds, [this] { clock.RequestEnd(); });
        EXPECT_THROW(game.idle.Run(), ProgramEnded);
    }
};

TEST_F(IdleAnimationTest, DrawsARowAColumnAndAColorByChanceForEveryPeg) {
    random.script = {0.0, 0.0, 0.0, 0.9999, 0.9999, 0.9999, 0.15, 0.5, 0.9};
    game.idle.Start();
    RunFor(145);
    EXPECT_EQ(log.Text(), "seed\n" + std::string(kSweep) +
                              "peg 1 at 218,536\n"
                              "wait 15\n"
                              "peg 6 at 368,229\n"
                              "wait 15\n"
                              "peg 6 at 318,493\n"
                              "wait 15\n");
}

TEST_F(IdleAnimationTest, EndsWhenAGameStarts) {
    game.idle.Start();
    NextCode({1, 1, 2, 3});
    clock.In(108, [this] { Click(CommandButton::kStart); });
    clock.In(800, [this] { log.Clear(); });
    RunFor(900);
    EXPECT_EQ(log.Text(), "wait 100\n");
}

TEST_F(IdleAnimationTest, AskedForWhileItRunsItPreparesTheBoardAgainAndGoesOn) {
    game.idle.Start();
    clock.In(105, [this] {
        log.Clear();
        game.idle.Start();
    });
    RunFor(221);
    EXPECT_EQ(log.Text(), std::string(kSweep) +
                              "peg 1 at 218,536\n"
                              "wait 15\n"
                              "peg 1 at 218,536\n"
                              "wait 1\n");
}

TEST_F(IdleAnimationTest, AskedForAfterItHasEndedItBeginsAnew) {
    game.idle.Start();
    clock.In(105, [this] { game.idle.Stop(); });
    clock.In(300, [this] {
        log.Clear();
        game.idle.Start();
    });
    RunFor(401);
    EXPECT_EQ(log.Text(), "seed\n" + std::string(kSweep) +
                              "peg 1 at 218,536\n"
                              "wait 1\n");
}

TEST_F(IdleAnimationTest, StoppedBeforeItHasBegunItDoesNotBegin) {
    clock.In(100, [this] {
        game.idle.Start();
        game.idle.Stop();
    });
    RunFor(400);
    EXPECT_EQ(log.Text(), "wait 400\n");
}

TEST_F(IdleAnimationTest, GoesOnWithTheSizesOfANewMode) {
    game.idle.Start();
    clock.In(105, [this] {
        game.modes.ClickModeButton(2);
        random.script = {0.9999, 0.9999, 0.9999};
        log.Clear();
    });
    RunFor(384);
    EXPECT_EQ(log.Text(),
              "peg 10 at 468,107\n"
              "wait 4\n");
}

TEST_F(IdleAnimationTest, RestsDuringAQuestion) {
    game.idle.Start();
    clock.In(105, [this] {
        clock.In(500, [this] { log.Clear(); });
        AnswerIn(1000, Answer::kNo);
        Click(CommandButton::kExit);
    });
    clock.In(1104, [this] { EXPECT_EQ(log.Text(), "wait 499\n"); });
    RunFor(1150);
}

}  // namespace
}  // namespace quendrel::test
