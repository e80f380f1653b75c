// The button that is a picture per state, and the areas that are pressed.
#include <QDialog>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "Log.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MouseButton.h"
#include "ui/skin/MainSkin.h"

namespace quendrel::test {
namespace {

constexpr Pixel kUp = 0x000001;
constexpr Pixel kDisabled = 0x000002;
constexpr Pixel kDown = 0x000003;
constexpr Pixel kOver = 0x000004;

constexpr const char* kHelp = "Press here.";

class ImageButtonTest : public ::testing::Test {
protected:
    ImageButtonTest() {
        window.resize(100, 100);
        button.setGeometry(10, 10, 1, 1);
        button.onPress = [this](MouseButton which) {
            log.Add("press " + std::to_string(static_cast<int>(which)));
        };
        button.onRelease = [this](MouseButton which) {
            log.Add("release " + std::to_string(static_cast<int>(which)));
        };
        button.onClick = [this] { log.Add("click"); };
        button.SetPictures({Picture(20, 10, kUp), Picture(20, 10, kDisabled),
                            Picture(20, 10, kDown), Picture(20, 10, kOver)});
        window.show();
    }

    Pixel Shown() { return button.grab().toImage().pixel(3, 3) & 0xFFFFFF; }

    /// Tells the button, as the window system does, that the pointer has come over it.
    void Enter() {
        button.setAttribute(Qt::WA_UnderMouse);
        QEnterEvent event({3, 3}, {13, 13}, {13, 13});
        QApplication::sendEvent(&button, &event);
    }

    void LoseFocus() {
        QFocusEvent event(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&button, &event);
    }

    /// The button lies on a target of its size.
    void PutOnTarget() {
        behind = new ClickTarget(&window, ClickTarget::Look::kInvisible);
        behind->setGeometry(button.geometry());
        behind->onPress = [this](MouseButton which) {
            log.Add("behind " + std::to_string(static_cast<int>(which)));
        };
        behind->show();
        button.setParent(behind);
        button.move(0, 0);
        button.show();
    }

    void PressTwiceQuickly() {
        QTest::mouseDClick(window.windowHandle(), Qt::RightButton, {}, {13, 13});
    }

    /// A box stands over the window until it is answered.
    static void ShowBox() {
        QDialog box;
        QTimer::singleShot(50, &box, &QDialog::accept);
        box.exec();
    }

    void SwitchTo(bool on) {
        log.Add(on ? "on" : "off");
        button.setEnabled(on);
    }

    void WatchForHelp() {
        auto* const help = new BalloonHelp(&window);
        button.setAccessibleDescription(kHelp);
        help->Watch(&button);
        help->SwitchOn(true);
    }

    /// As when a window goes from above it: the pointer has not moved.
    void EnterWithoutAMove() {
        QEnterEvent enter({3, 3}, {3, 3}, button.mapToGlobal(QPointF(3, 3)));
        QApplication::sendEvent(&button, &enter);
    }

    Log log;
    QWidget window;
    ImageButton button{&window};
    ClickTarget* behind = nullptr;
};

TEST_F(ImageButtonTest, IsAsLargeAsItsPictures) { EXPECT_EQ(button.size(), QSize(20, 10)); }

TEST_F(ImageButtonTest, ShowsThePictureOfItsState) {
    EXPECT_EQ(Shown(), kUp);
    Enter();
    EXPECT_EQ(Shown(), kOver);
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_EQ(Shown(), kDown);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(Shown(), kOver);
    button.setEnabled(false);
    EXPECT_EQ(Shown(), kDisabled);
}

TEST_F(ImageButtonTest, HeldItShowsDownAlsoWhileDisabled) {
    button.SetHeld(true);
    EXPECT_EQ(Shown(), kDown);
    button.setEnabled(false);
    EXPECT_EQ(Shown(), kDown);
    button.setEnabled(true);
    button.SetHeld(false);
    EXPECT_EQ(Shown(), kUp);
}

TEST_F(ImageButtonTest, AStateWithoutAPictureShowsUp) {
    ImageButton plain(&window);
    plain.SetPictures({Picture(20, 10, kUp), {}, {}, {}});
    plain.setEnabled(false);
    EXPECT_EQ(plain.grab().toImage().pixel(3, 3) & 0xFFFFFF, kUp);
    plain.setEnabled(true);
    plain.SetHeld(true);
    EXPECT_EQ(plain.grab().toImage().pixel(3, 3) & 0xFFFFFF, kUp);
}

TEST_F(ImageButtonTest, ReportsPressReleaseAndClick) {
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(log.Text(), "press 0\nrelease 0\nclick\n");
}

TEST_F(ImageButtonTest, OtherMouseButtonsPressButDoNotClick) {
    QTest::mouseClick(&button, Qt::RightButton);
    QTest::mouseClick(&button, Qt::MiddleButton);
    EXPECT_EQ(log.Text(), "press 1\nrelease 1\npress 2\nrelease 2\n");
}

TEST_F(ImageButtonTest, TheSecondPressOfADoubleClickIsAPressLikeTheFirst) {
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(3, 3), QPointF(3, 3),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&button, &doubleClick);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(log.Text(), "press 0\nrelease 0\nclick\n");
}

TEST_F(ImageButtonTest, LetGoOutsideItDoesNotClick) {
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseMove(&button, QPoint(60, 60));
    EXPECT_EQ(log.Text().find("click"), std::string::npos);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
    EXPECT_EQ(log.Text().find("click"), std::string::npos);
}

TEST_F(ImageButtonTest, ACheckedButtonShowsDownUnlessDisabled) {
    button.setCheckable(true);
    button.setChecked(true);
    EXPECT_EQ(Shown(), kDown);
    button.setEnabled(false);
    EXPECT_EQ(Shown(), kDisabled);
}

TEST_F(ImageButtonTest, PressedAndDraggedOffItShowsUp) {
    Enter();
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseMove(&button, QPoint(60, 60));
    EXPECT_EQ(Shown(), kUp);
    QTest::mouseMove(&button, QPoint(3, 3));
    EXPECT_EQ(Shown(), kDown);
    QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(ImageButtonTest, TheFocusLeavesItsPictureToThePointer) {
    ImageButton other(&window);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&other, Qt::Key_Tab);
    ASSERT_TRUE(button.hasFocus());
    EXPECT_EQ(Shown(), kUp);
    Enter();
    EXPECT_EQ(Shown(), kOver);
}

TEST_F(ImageButtonTest, AssistiveTechnologyPressesAndReleasesItOnce) {
    button.click();
    EXPECT_EQ(log.Text(), "press 0\nrelease 0\nclick\n");
}

TEST_F(ImageButtonTest, AKeyPressesAndReleasesItOnce) {
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_EQ(log.Text(), "press 0\n");
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(log.Text(), "press 0\nrelease 0\nclick\n");
}

TEST_F(ImageButtonTest, APressThatOpensABoxIsOverWithIt) {
    button.onPress = [](MouseButton) { ShowBox(); };
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_EQ(Shown(), kUp);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_EQ(Shown(), kUp);
    QTest::keyRelease(&button, Qt::Key_Space);
}

TEST_F(ImageButtonTest, APressOfTheMouseOutlastsTheFocusAndOneOfAKeyDoesNot) {
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, {13, 13});
    LoseFocus();
    EXPECT_EQ(Shown(), kDown);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, {13, 13});
    EXPECT_EQ(log.Text(), "press 0\nrelease 0\nclick\n");
    QTest::keyPress(&button, Qt::Key_Space);
    LoseFocus();
    EXPECT_NE(Shown(), kDown);
    QTest::keyRelease(&button, Qt::Key_Space);
}

TEST_F(ImageButtonTest, HiddenWhileItIsDownItComesBackUp) {
    QTest::mousePress(&button, Qt::LeftButton);
    button.hide();
    button.show();
    EXPECT_EQ(Shown(), kUp);
    QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(ImageButtonTest, DisabledItPassesEveryPressOnToWhatItLiesOn) {
    PutOnTarget();
    button.setEnabled(false);
    PressTwiceQuickly();
    EXPECT_EQ(log.Text(), "behind 1\nbehind 1\n");
    log.Clear();
    button.setEnabled(true);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, {13, 13});
    EXPECT_EQ(log.Text(), "press 1\nrelease 1\n");
}

TEST_F(ImageButtonTest, OfTwoQuickPressesOneSwitchesItOffAndOneSwitchesItOn) {
    PutOnTarget();
    button.onPress = [this](MouseButton) { SwitchTo(false); };
    button.onRelease = [](MouseButton) {};
    behind->onPress = [this](MouseButton) { SwitchTo(true); };
    PressTwiceQuickly();
    EXPECT_EQ(log.Text(), "off\non\n");
    PressTwiceQuickly();
    EXPECT_EQ(log.Text(), "off\non\noff\non\n");
}

TEST_F(ImageButtonTest, ItsBalloonComesWhileItIsDisabledToo) {
    WatchForHelp();
    button.setEnabled(false);
    PointAt(&button, {3, 3});
    EXPECT_TRUE(BalloonSays(window, kHelp));
}

TEST_F(ImageButtonTest, ItsBalloonStaysWhileItIsDisabledAndEnabled) {
    WatchForHelp();
    PointAt(&button, {3, 3});
    ASSERT_TRUE(BalloonSays(window, kHelp));
    for (const bool enabled : {false, true}) {
        button.setEnabled(enabled);
        QTest::mouseMove(&button, QPoint(4, 4));
        EXPECT_TRUE(window.findChild<QWidget*>("popHelp")->isVisible()) << enabled;
    }
}

TEST_F(ImageButtonTest, NoBalloonComesWhereThePointerIsElsewhere) {
    WatchForHelp();
    PointAt(&window, {90, 90});
    EnterWithoutAMove();
    QMouseEvent move(QEvent::MouseMove, {4, 4}, button.mapToGlobal(QPointF(4, 4)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&button, &move);
    EXPECT_FALSE(BalloonSays(window, kHelp));
}

TEST_F(ImageButtonTest, ItsBalloonWaitsForAMoveWhereAWindowHasGoneFromAboveIt) {
    PointAt(&button, {3, 3});
    WatchForHelp();
    EnterWithoutAMove();
    EXPECT_FALSE(BalloonSays(window, kHelp));
    QTest::mouseMove(&button, QPoint(4, 4));
    EXPECT_TRUE(BalloonSays(window, kHelp));
}

TEST_F(ImageButtonTest, ItsBalloonGoesWhenAnotherWindowIsActive) {
    WatchForHelp();
    PointAt(&button, {3, 3});
    ASSERT_TRUE(BalloonSays(window, kHelp));
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_FALSE(window.findChild<QWidget*>("popHelp")->isVisible());
}

TEST_F(ImageButtonTest, HiddenItHasNoBalloon) {
    WatchForHelp();
    button.setEnabled(false);
    PointAt(&button, {3, 3});
    button.hide();
    EXPECT_FALSE(BalloonSays(window, kHelp));
    PointAt(&window, {14, 14});
    EXPECT_FALSE(BalloonSays(window, kHelp));
}

TEST(ClickTarget, ReportsPressesAndADoubleClickInItsPlace) {
    Log log;
    QWidget window;
    window.resize(100, 100);
    ClickTarget target(&window, ClickTarget::Look::kInvisible);
    target.setGeometry(0, 0, 44, 27);
    target.onPress = [&](MouseButton which) {
        log.Add("press " + std::to_string(static_cast<int>(which)));
    };
    target.onDoubleClick = [&] { log.Add("double click"); };
    window.show();
    QTest::mousePress(&target, Qt::LeftButton);
    QTest::mouseRelease(&target, Qt::LeftButton);
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(3, 3), QPointF(3, 3),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &doubleClick);
    QTest::mouseClick(&target, Qt::RightButton);
    EXPECT_EQ(log.Text(), "press 0\ndouble click\npress 1\n");
}

TEST(ClickTarget, WithoutAUseForDoubleClicksEveryPressCounts) {
    int presses = 0;
    QWidget window;
    ClickTarget target(&window, ClickTarget::Look::kInvisible);
    target.onPress = [&](MouseButton) { ++presses; };
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(3, 3), QPointF(3, 3), Qt::RightButton,
                       Qt::RightButton, Qt::NoModifier);
    QTest::mouseClick(&target, Qt::RightButton);
    QApplication::sendEvent(&target, &second);
    EXPECT_EQ(presses, 2);
}

TEST(ClickTarget, AClickIsAPressAndAReleaseInsideWithAnyButton) {
    int clicks = 0;
    QWidget window;
    ClickTarget target(&window, ClickTarget::Look::kFramed);
    target.setGeometry(0, 0, 44, 27);
    target.onClick = [&] { ++clicks; };
    QTest::mousePress(&target, Qt::RightButton, {}, QPoint(3, 3));
    EXPECT_EQ(clicks, 0);
    QTest::mouseRelease(&target, Qt::RightButton, {}, QPoint(3, 3));
    EXPECT_EQ(clicks, 1);
    QTest::mousePress(&target, Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseRelease(&target, Qt::LeftButton, {}, QPoint(90, 90));
    EXPECT_EQ(clicks, 1);
    QTest::mouseRelease(&target, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace quendrel::test
