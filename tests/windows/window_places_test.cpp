// Where a window comes, on one of two screens.
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "ui/windows/Screens.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel::test {
namespace {

/// The corners of the second screen, which lies to the right of the first, and below that one.
constexpr int kSecond = 2000;
constexpr int kEndOfFirst = 1700;

class Plain : public SkinnedWindow {
public:
    explicit Plain(ViewScale& wanted) : SkinnedWindow("plain", wanted, Qt::Dialog) {
        SetFace(face_);
    }

private:
    Picture face_{40, 32, 0x806040};
};

class WindowPlacesTest : public ::testing::Test {
protected:
    /// The window is shown, and the desktop puts it elsewhere.
    void ShowBeside(QPoint moved) {
        window.MoveOver({100, 100, 200, 200});
        window.show();
        place = window.pos();
        PutBeside(moved);
    }

    void PutBeside(QPoint moved) { window.windowHandle()->setPosition(place + moved); }

    static void ChangeScreen() {
        QScreen* const screen = QApplication::primaryScreen();
        Q_EMIT screen->geometryChanged(screen->geometry());
    }

    QPoint Rests() const {
        QTest::qWait(100);
        return window.pos();
    }

    ViewScale wanted;
    Plain window{wanted};
    QPoint place;
};

TEST_F(WindowPlacesTest, AWindowComesOnTheScreenThatShowsMostOfThePlace) {
    window.MoveOver({1700, 100, 500, 500});
    EXPECT_EQ(window.pos(), QPoint(1930, 334));
    window.MoveOver({1950, kEndOfFirst - 100, 600, 700});
    EXPECT_EQ(window.geometry().bottomRight(), QPoint(kSecond - 1, kEndOfFirst - 1));
    window.MoveOver({kSecond + 100, 990, 300, 500});
    EXPECT_GE(window.pos().x(), kSecond);
}

TEST_F(WindowPlacesTest, AWindowComesOnTheScreenOfTheOneThatItBelongsTo) {
    QWidget owner;
    owner.setGeometry(kSecond - 400, 100, 700, 500);
    window.BelongTo(owner);
    window.MoveOver({kSecond - 100, 100, 400, 500});
    EXPECT_EQ(window.geometry().right(), kSecond - 1);
    owner.setGeometry(kSecond - 300, 100, 700, 500);
    window.MoveOver({kSecond - 300, 100, 300, 500});
    EXPECT_EQ(window.geometry().left(), kSecond);
}

TEST_F(WindowPlacesTest, AWindowIsInTheMiddleAsLargeAsItsScreenShowsIt) {
    wanted.chosen = 1.5;
    window.MoveOver({kSecond + 100, 100, 201, 201});
    window.show();
    EXPECT_EQ(window.size(), QSize(30, 24));
    EXPECT_EQ(window.pos(), QPoint(kSecond + 186, 189));
}

TEST_F(WindowPlacesTest, AWindowThatComesBesideItsPlaceByAFrameIsPutThereOnce) {
    constexpr QPoint frame(2, 18);
    ShowBeside(frame);
    EXPECT_EQ(Rests(), place);
    PutBeside(frame);
    EXPECT_EQ(Rests(), place + frame);
    window.hide();
    ShowBeside(frame);
    EXPECT_EQ(Rests(), place);
}

TEST_F(WindowPlacesTest, AWindowThatTheDesktopPutsElsewhereStaysThere) {
    ShowBeside({300, 0});
    EXPECT_EQ(Rests(), place + QPoint(300, 0));
}

TEST_F(WindowPlacesTest, AWindowThatAScreenLeavesOutsideComesBackOntoOne) {
    ShowBeside({1500, 5000});
    ASSERT_EQ(Rests(), place + QPoint(1500, 5000));
    ChangeScreen();
    const QRect screen = QApplication::primaryScreen()->geometry();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(window.geometry()); }));
}

TEST_F(WindowPlacesTest, AHiddenWindowThatAScreenLeavesOutsideComesBackWhenItIsShown) {
    ShowBeside({1500, 5000});
    ASSERT_EQ(Rests(), place + QPoint(1500, 5000));
    window.hide();
    ChangeScreen();
    Rests();
    window.show();
    EXPECT_TRUE(QApplication::primaryScreen()->geometry().contains(window.geometry()));
}

TEST_F(WindowPlacesTest, AHiddenWindowComesBackToWhereItWasPutWhileNoScreenChanges) {
    ShowBeside({1500, 5000});
    ASSERT_EQ(Rests(), place + QPoint(1500, 5000));
    window.hide();
    window.show();
    EXPECT_EQ(Rests(), place + QPoint(1500, 5000));
}

TEST_F(WindowPlacesTest, AMessageBoxThatAScreenLeavesOutsideComesBackOntoOne) {
    QMessageBox box(QMessageBox::Warning, "Quendrel", "Trouble", QMessageBox::Ok);
    KeepOnScreens(box);
    box.show();
    box.move(1500, 5000);
    ASSERT_EQ(box.pos(), QPoint(1500, 5000));
    ChangeScreen();
    const QRect screen = QApplication::primaryScreen()->geometry();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(box.frameGeometry()); }));
}

TEST_F(WindowPlacesTest, AWindowThatIsWhollyOnAScreenStaysWhenOneChanges) {
    ShowBeside({300, 0});
    ChangeScreen();
    EXPECT_EQ(Rests(), place + QPoint(300, 0));
}

}  // namespace
}  // namespace quendrel::test
