// The blinking number of the active row.
#include "GameFixture.h"
#include "audio/Pause.h"
#include "ui/main/RowMarker.h"

namespace quendrel::test {
namespace {

class RowMarkerTest : public GameFixture {
protected:
    RowMarkerTest() { game.table.board.BuildBoard(0); }

    RowMarker& marker = game.table.rowMarker;
};

TEST_F(RowMarkerTest, StartShowsTheNumberAndEveryOtherCallHidesIt) {
    marker.BlinkRowNumber(1, "Start");
    marker.BlinkRowNumber(1, "Go");
    marker.BlinkRowNumber(1, "Go");
    marker.BlinkRowNumber(1, "anything");
    EXPECT_EQ(log.Text(),
              "number 1 at 196,542\nboard at 196,542\nnumber 1 at 196,542\nboard at 196,542\n");
}

TEST_F(RowMarkerTest, TheNumberFillsItsPlace) {
    const Pixel around = window.Image().At(195, 541);
    marker.BlinkRowNumber(1, "Start");
    const Picture& shown = window.Image();
    for (int y = 542; y < 558; ++y) {
        for (int x = 196; x < 215; ++x) EXPECT_EQ(shown.At(x, y), shown.At(196, 542));
    }
    EXPECT_NE(shown.At(196, 542), around);
    EXPECT_EQ(shown.At(215, 557), around);
    EXPECT_EQ(shown.At(214, 558), around);
}

TEST_F(RowMarkerTest, StopPutsTheSavedBackgroundBack) {
    const Picture before = window.Image();
    marker.BlinkRowNumber(14, "Start");
    EXPECT_NE(window.Image(), before);
    marker.BlinkRowNumber(14, "Stop");
    EXPECT_EQ(window.Image(), before);
    EXPECT_EQ(log.Text(), "number 14 at 196,113\nboard at 196,113\n");
}

TEST_F(RowMarkerTest, StopWithoutStartCopiesTheSpareCellAsItStands) {
    marker.BlinkRowNumber(2, "Stop");
    EXPECT_EQ(log.Text(), "number 15 at 196,509\n");
}

TEST_F(RowMarkerTest, WhileACodeIsSetTheMarkerStandsAtTheCodeRow) {
    global.CodeEntry = true;
    marker.BlinkRowNumber(0, "Start");
    EXPECT_EQ(log.Text(), "number 0 at 196,57\n");
}

TEST_F(RowMarkerTest, BlinksEverySecondUntilItIsStopped) {
    global.ActiveRow = 3;
    marker.StartBlinking(3);
    Pause(clock, 2500, true);
    marker.StopBlinking(3);
    Pause(clock, 2500, true);
    EXPECT_EQ(log.Text(),
              "number 3 at 196,476\n"
              "wait 1000\n"
              "board at 196,476\n"
              "wait 1000\n"
              "number 3 at 196,476\n"
              "wait 500\n"
              "board at 196,476\n"
              "wait 2500\n");
}

}  // namespace
}  // namespace quendrel::test
