// The main window follows a screen that asks for another density: nothing on it shows that it
// has not always been shown so.
#include <functional>

#include "BoardLog.h"
#include "GameFixture.h"
#include "SecondTree.h"
#include "TemporaryFolder.h"
#include "audio/Pause.h"
#include "ui/main/LoadMainSkin.h"

namespace quendrel::test {
namespace {

/// A game of Hard on a screen that asks for so many pixels a unit.
class ShownGame : public GameFixture {
public:
    ShownGame(const TemporaryFolder& skins, int density) {
        Play(PlayedModes().back());
        global.SkinFolder = skins.path() + "\\";
        global.SkinNames = {"Atelier"};
        window.density = density;
        PutOnSkin();
        log.Clear();
    }

    void TestBody() override {}

    void PutOnSkin() {
        LoadMainSkin(global, ReadWholeSkin(reader, global, 1, window.density), window,
                     game.table.board, game.table.rowMarker);
    }

    /// The screen asks for `density` from now on; `seen` is what the window shows then.
    void Follow(int density) {
        window.density = density;
        FollowDensity(global, reader, window, game.table.board, game.table.rowMarker);
        seen = window.Image();
    }

    /// What a point of the window shows, in units.
    std::string At(Point at) {
        const int density = window.Image().density();
        return Describe(window.Image().At(at.x * density, at.y * density));
    }

    using GameFixture::AnswerIn;
    using GameFixture::Click;
    using GameFixture::clock;
    using GameFixture::game;
    using GameFixture::GiveUp;
    using GameFixture::global;
    using GameFixture::Guess;
    using GameFixture::log;
    using GameFixture::NextCode;
    using GameFixture::Place;
    using GameFixture::played;
    using GameFixture::random;
    using GameFixture::reader;
    using GameFixture::StartWithCode;
    using GameFixture::window;

    Picture seen;
};

/// Middles of places on the window.
constexpr Point kNumber1{205, 550};
constexpr Point kCodeNumber{205, 65};
constexpr Point kPegOfRow1{240, 549};
constexpr Point kMarkOfRow1{530, 549};
constexpr Point kCodePeg{240, 64};

class FollowDensityTest : public ::testing::Test {
protected:
    FollowDensityTest() { WriteSecondTree(folder, "Atelier"); }

    /// Plays, and lets the window follow to `density` in the middle of it.
    using Steps = std::function<void(ShownGame& shown, int density)>;

    /// Plays on a screen whose density changes and on one that has had the new one all the time:
    /// then and at the end both windows show the same.
    void ExpectNoTrace(const Steps& steps) {
        for (const int density : {1, 2}) {
            ShownGame followed(folder, 3 - density);
            ShownGame always(folder, density);
            steps(followed, density);
            steps(always, density);
            EXPECT_EQ(always.seen.size(), (Size{655 * density, 605 * density}));
            EXPECT_EQ(followed.seen, always.seen) << "to " << density;
            EXPECT_EQ(followed.window.Image(), always.window.Image()) << "to " << density;
        }
    }

    TemporaryFolder folder;
};

TEST_F(FollowDensityTest, InAGameWithTheMarkerShown) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Follow(density);
        EXPECT_EQ(shown.At(kNumber1), "number 1");
        shown.game.table.rowMarker.StopBlinking(1);
        EXPECT_EQ(shown.At(kNumber1), "board");
    });
}

TEST_F(FollowDensityTest, InAGameWithTheMarkerNotShown) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        Pause(shown.clock, 1500, true);
        shown.Follow(density);
        EXPECT_EQ(shown.At(kNumber1), "board");
        Pause(shown.clock, 1000, true);
        EXPECT_EQ(shown.At(kNumber1), "number 1");
        shown.game.table.rowMarker.StopBlinking(1);
        EXPECT_EQ(shown.At(kNumber1), "board");
    });
}

TEST_F(FollowDensityTest, InAGameWithPegsMarksAndAHalfFilledRow) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Guess({1, 2, 3, 4, 5, 6});
        shown.Guess(shown.played.miss);
        shown.Place({7, 8, 9});
        shown.Place({10});
        shown.Follow(density);
        EXPECT_EQ(shown.At(kPegOfRow1), "peg 1");
        EXPECT_EQ(shown.At(kMarkOfRow1), "mark 1");
        shown.Place({1, 1, 1, 1, 1, 1});
        shown.game.pegs.DoubleClickRow();
        shown.Guess(shown.played.miss);
    });
}

TEST_F(FollowDensityTest, InAGameWhoseBoardHasBeenBuiltAnew) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Guess({1, 2, 3, 4, 5, 6});
        shown.PutOnSkin();
        shown.Guess({6, 5, 4, 3, 2, 1});
        shown.Follow(density);
        EXPECT_EQ(shown.At(kPegOfRow1), "peg 1");
        shown.PutOnSkin();
    });
}

TEST_F(FollowDensityTest, InAGameThatBeganOnABoardWithPegs) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        int row = 1;
        shown.game.table.board.DrawPeg(3, 1, row);
        EXPECT_EQ(shown.At(kPegOfRow1), "peg 3");
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Follow(density);
        EXPECT_EQ(shown.At(kPegOfRow1), "board");
    });
}

TEST_F(FollowDensityTest, InTheGameAfterOneWhoseBoardWasBuiltAnew) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Guess({1, 2, 3, 4, 5, 6});
        shown.PutOnSkin();
        shown.GiveUp();
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Follow(density);
        EXPECT_EQ(shown.At(kPegOfRow1), "board");
    });
}

TEST_F(FollowDensityTest, DuringTheIdleAnimation) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.global.DemoDelay = 5;
        for (int i = 0; i < 300; ++i) shown.random.script.push_back((i * 37 % 100) / 100.0);
        shown.game.idle.Start();
        shown.clock.In(300, [&] { shown.Follow(density); });
        shown.clock.In(400, [&] { shown.clock.RequestEnd(); });
        EXPECT_THROW(shown.game.idle.Run(), ProgramEnded);
        EXPECT_NE(shown.window.Image(), shown.game.table.board.BoardPicture());
    });
}

TEST_F(FollowDensityTest, WhileTheCoversClose) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.clock.In(320, [&] {
            EXPECT_EQ(shown.At(kCodePeg).substr(0, 14), "color 0 frame ");
            shown.Follow(density);
        });
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        EXPECT_EQ(shown.At(kCodePeg), "color 0 frame 10");
    });
}

TEST_F(FollowDensityTest, WhileTheCodeOpens) {
    ExpectNoTrace([](ShownGame& shown, int density) {
        shown.StartWithCode({1, 1, 2, 3, 4, 5});
        shown.Guess({1, 2, 3, 4, 5, 6});
        shown.clock.In(1800, [&] {
            EXPECT_EQ(shown.At(kCodePeg).substr(0, 14), "color 1 frame ");
            shown.Follow(density);
        });
        shown.clock.In(5900, [&] { EXPECT_EQ(shown.At(kCodePeg), "color 1 frame 10"); });
        shown.GiveUp();
    });
}

TEST_F(FollowDensityTest, WhileTheCodeIsEntered) {
    for (const bool markerShown : {true, false}) {
        ExpectNoTrace([markerShown](ShownGame& shown, int density) {
            shown.global.Settings.SetColor = true;
            shown.clock.In(200, [&] { shown.Place({1, 2, 3}); });
            shown.clock.In(markerShown ? 900 : 1500, [&] {
                shown.Follow(density);
                EXPECT_EQ(shown.At(kCodeNumber), markerShown ? "number 0" : "board");
                EXPECT_EQ(shown.At(kCodePeg), "peg 1");
            });
            shown.clock.In(1700, [&] { shown.Place({6, 5, 4, 3, 2, 1}); });
            shown.AnswerIn(3000, Answer::kOk);
            shown.Click(CommandButton::kStart);
            EXPECT_EQ(shown.At(kCodeNumber), "board");
        });
    }
}

TEST_F(FollowDensityTest, TheButtonsFollowToo) {
    ShownGame shown(folder, 1);
    shown.Follow(2);
    EXPECT_NE(shown.log.LinesFrom("pictures ").find("cmdMnuBtn(0)"), std::string::npos);
    EXPECT_NE(shown.log.Text().find("read " + folder.path() +
                                    "/Atelier/2x/Game/Interface/"
                                    "Exit_Up.bmp\n"),
              std::string::npos);
}

TEST_F(FollowDensityTest, InTheSameDensityNothingIsRead) {
    ShownGame shown(folder, 2);
    shown.Follow(2);
    EXPECT_EQ(shown.log.Text(), "");
}

TEST_F(FollowDensityTest, ASkinWithoutASecondTreeStaysAsItIs) {
    std::filesystem::remove_all(folder.path() + "/Atelier/2x");
    ShownGame shown(folder, 1);
    shown.Follow(2);
    EXPECT_EQ(shown.log.Text(), "");
    EXPECT_EQ(shown.seen.density(), 1);
}

TEST_F(FollowDensityTest, ASecondTreeThatIsNotWholeIsSaid) {
    const std::string missing = folder.path() + "/Atelier/2x/High/High.bmp";
    std::filesystem::remove(missing);
    ShownGame shown(folder, 1);
    testing::internal::CaptureStderr();
    shown.Follow(2);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quendrel: " + missing +
                  ": cannot be opened: No such file or directory; the skin is shown in its single "
                  "size\n");
    EXPECT_EQ(shown.seen.density(), 1);
}

TEST_F(FollowDensityTest, WhereThePicturesCannotBeReadTheWindowKeepsThoseThatItHas) {
    ShownGame shown(folder, 1);
    const Picture before = shown.window.Image();
    for (const std::string name : {"Boardmask.bmp", "Interface/Pink_Over.bmp"}) {
        shown.reader.missing = folder.path() + "/Atelier/2x/Game/" + name;
        testing::internal::CaptureStderr();
        shown.Follow(2);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "quendrel: " + shown.reader.missing +
                      ": No such file or directory; the skin is shown in its single size\n");
    }
    EXPECT_EQ(shown.seen, before);
    EXPECT_EQ(shown.log.LinesFrom("pictures "), "");
    shown.StartWithCode({1, 1, 2, 3, 4, 5});
    EXPECT_EQ(shown.At(kNumber1), "number 1");
}

}  // namespace
}  // namespace quendrel::test
