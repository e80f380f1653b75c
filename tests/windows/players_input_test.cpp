// What counts as something that the player does.
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include "platform/desktop/PlayersInput.h"

namespace quendrel::test {
namespace {

class PlayersInputTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.resize(100, 100);
        window.show();
        QApplication::processEvents();
        deeds = 0;
    }

    int deeds = 0;
    PlayersInput input{*QCoreApplication::instance(), [this] { ++deeds; }};
    QWidget window;
};

TEST_F(PlayersInputTest, APointerThatMovesCountsAlsoWhereNoButtonIsDown) {
    ASSERT_FALSE(window.hasMouseTracking());
    QTest::mouseMove(window.windowHandle(), QPoint(10, 10));
    QTest::mouseMove(window.windowHandle(), QPoint(20, 20));
    QApplication::processEvents();
    EXPECT_GE(deeds, 2);
}

TEST_F(PlayersInputTest, ButtonsAndKeysCountWhenTheyGoDown) {
    QTest::mousePress(&window, Qt::LeftButton);
    EXPECT_EQ(deeds, 1);
    QTest::mouseRelease(&window, Qt::LeftButton);
    EXPECT_EQ(deeds, 1);
    QTest::keyPress(&window, Qt::Key_S);
    EXPECT_EQ(deeds, 2);
    QTest::keyRelease(&window, Qt::Key_S);
    EXPECT_EQ(deeds, 2);
}

TEST_F(PlayersInputTest, PaintingAndTimersDoNotCount) {
    QTimer timer;
    timer.start(1);
    window.repaint();
    QTest::qWait(20);
    EXPECT_EQ(deeds, 0);
}

}  // namespace
}  // namespace quendrel::test
