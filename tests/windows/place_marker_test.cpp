// The sign of the place where keys act: when it is there, where, and that it leaves nothing behind.

#include <QAccessible>
#include <QAction>
#include <QFocusFrame>
#include <QLineEdit>
#include <QScreen>
#include <gtest/gtest.h>

#include "AllWindows.h"
#include "LetteredSkin.h"
#include "ScaledWindows.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

QWidget* SignOf(const QWidget& window) { return window.findChild<QFocusFrame*>(); }

/// Whether the sign is around a control, three units from it, or a little more around a text.
bool IsMarked(const QWidget* control) {
    const QWidget* const sign = SignOf(*control->window());
    const QRect around(control->mapTo(control->window(), QPoint(0, 0)), control->size());
    const auto larger = [&around](double by) {
        return around.adjusted(-int(by), -int(by), int(by), int(by));
    };
    const double reach = 3 * ZoomOf(control);
    return sign->isVisible() && sign->geometry().contains(larger(reach - 1)) &&
           larger(reach + 6 * ZoomOf(control) + 1).contains(sign->geometry());
}

/// The window painted anew, with all its controls.
QImage Anew(QWidget& window) {
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

class PlaceMarkerTest : public AllWindows {
protected:
    PlaceMarkerTest() {
        Open();
        BringToFront(config.get());
    }

    /// Marks a control as keys do that lead to it.
    static void Mark(QWidget* control) {
        BringToFront(control);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_F12);
    }

    QWidget* Hole(int column) {
        auto* const hole = Find(main, NameOf({Controls::lblActiveRow, column}).c_str());
        hole->setEnabled(true);
        hole->setFocusPolicy(Qt::StrongFocus);
        return hole;
    }
};

TEST_F(PlaceMarkerTest, ComesWithTheFirstKeyAndGoesWithThePressOfAMouseButton) {
    auto* const from = Find(*config, "chkGTimer");
    auto* const onto = Find(*config, "chkRndMusic");
    from->setFocus();
    EXPECT_FALSE(SignOf(*config)->isVisible());
    QTest::keyClick(from, Qt::Key_Tab);
    EXPECT_TRUE(IsMarked(onto));
    QTest::mousePress(Find(*config, "lblSkin"), Qt::RightButton);
    EXPECT_FALSE(SignOf(*config)->isVisible());
    QTest::mouseRelease(Find(*config, "lblSkin"), Qt::RightButton);
    onto->setFocus();
    EXPECT_FALSE(SignOf(*config)->isVisible());
    QTest::keyClick(onto, Qt::Key_F12);
    EXPECT_TRUE(IsMarked(onto));
}

TEST_F(PlaceMarkerTest, DoesNotComeForAModifierOrForWhatIsPressedWithOne) {
    auto* const control = Find(*config, "chkGTimer");
    control->setFocus();
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr,
                              Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_NumLock}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(control, &press);
        EXPECT_FALSE(SignOf(*config)->isVisible()) << key;
    }
    for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        QTest::keyClick(control, Qt::Key_F12, with);
        EXPECT_FALSE(SignOf(*config)->isVisible()) << with;
    }
    QTest::keyClick(control, Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_TRUE(IsMarked(control));
}

TEST_F(PlaceMarkerTest, ComesWithAShortcutToo) {
    QAction shortcut;
    shortcut.setShortcut(Qt::Key_F);
    config->addAction(&shortcut);
    auto* const control = Find(*config, "chkGTimer");
    control->setFocus();
    int presses = 0;
    QObject::connect(&shortcut, &QAction::triggered, [&presses] { ++presses; });
    QTest::keyClick(config->windowHandle(), Qt::Key_F);
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(IsMarked(control));
}

TEST_F(PlaceMarkerTest, AKeyInOneWindowMarksNothingInAnother) {
    Mark(Find(*config, "chkGTimer"));
    BringToFront(high.get());
    Find(*high, "cmdOk")->setFocus();
    EXPECT_FALSE(SignOf(*config)->isVisible());
    EXPECT_FALSE(SignOf(*high)->isVisible());
    BringToFront(config.get());
    EXPECT_TRUE(IsMarked(Find(*config, "chkGTimer")));
}

TEST_F(PlaceMarkerTest, IsNotThereWhereTheWindowItselfHasTheFocus) {
    Mark(config.get());
    EXPECT_FALSE(SignOf(*config)->isVisible());
}

TEST_F(PlaceMarkerTest, StandsAroundEveryKindOfControlAtEveryScale) {
    for (QWidget* const control :
         {Find(*config, "chkGTimer"), Find(*config, "txtPlayer(1)"), Find(*config, "lstFileList"),
          Find(*config, "cmdBestOf(1)"), Find(*about, "agifHome"), Find(main, "cmdColBtn(3)"),
          Find(main, "cmdModeBtn(1)"), Hole(4)}) {
        Mark(control);
        const QRect units = control->window()->geometry();
        for (const int steps : {0, 1, 4}) {
            PressScaleKey(control, Qt::Key_Plus, steps);
            EXPECT_TRUE(IsMarked(control)) << control->objectName().toStdString() << steps;
            PressScaleKey(control, Qt::Key_0);
        }
        ASSERT_EQ(control->window()->size(), units.size());
    }
}

TEST_F(PlaceMarkerTest, GoesWithAControlThatIsMovedOrMadeLarger) {
    const Control control{Controls::cmdInput, 1};
    main.SetVisible(control, true);
    main.SetEnabled(control, true);
    auto* const button = Find(main, NameOf(control).c_str());
    Mark(button);
    ASSERT_TRUE(IsMarked(button));
    main.SetLeft(control, 140);
    EXPECT_TRUE(IsMarked(button));
    main.SetTop(control, 30);
    EXPECT_TRUE(IsMarked(button));
    main.SetWidth(control, 60);
    EXPECT_TRUE(IsMarked(button));
}

TEST_F(PlaceMarkerTest, TakesNoPressAndNoFocus) {
    auto* const button = Find(*config, "cmdBestOf(2)");
    Mark(button);
    const QPoint edge = button->geometry().topLeft() + QPoint(14, 1);
    EXPECT_EQ(config->childAt(edge), button);
    EXPECT_EQ(SignOf(*config)->focusPolicy(), Qt::NoFocus);
}

TEST_F(PlaceMarkerTest, IsNotToldToAssistiveTechnology) {
    auto* const told = QAccessible::queryAccessibleInterface(config.get());
    const int before = told->childCount();
    Mark(Find(*config, "chkGTimer"));
    ASSERT_TRUE(SignOf(*config)->isVisible());
    EXPECT_EQ(told->childCount(), before);
    for (int i = 0; i < before; ++i) EXPECT_NE(told->child(i)->object(), SignOf(*config));
}

TEST_F(PlaceMarkerTest, IsShownButIsNoPartOfTheMainWindowsPicture) {
    const Picture before = main.Image();
    const QImage unmarked = main.grab().toImage();
    Mark(Hole(2));
    const QImage marked = main.grab().toImage();
    EXPECT_NE(marked, unmarked);
    main.RepaintAll();
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            ASSERT_EQ(main.Image().At(x, y), before.At(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(PlaceMarkerTest, LeavesNoTrailsWhereTheBoardIsDrawnBeneathIt) {
    Picture& board = main.Image();
    const Point at = PegAt(3, 1);
    for (const int steps : {0, 1, 4}) {
        PressScaleKey(&main, Qt::Key_Plus, steps);
        Mark(Hole(3));
        Pixel color = 0x203040;
        // Parts of the hole, all of it, and what lies around it.
        for (const Rect& part :
             {Rect{at.x - 1, at.y - 1, 7, 9}, Rect{at.x, at.y, 44, 27},
              Rect{at.x - 9, at.y - 9, 21, 60}, Rect{at.x - 20, at.y + 11, 90, 3}}) {
            QCoreApplication::processEvents();
            for (int y = part.top; y < part.top + part.height; ++y) {
                for (int x = part.left; x < part.left + part.width; ++x) board.Set(x, y, color);
            }
            color += 0x2A1B0D;
            main.ShowNow(part);
            ExpectSame(OnScreen(main), Anew(main), "drawn on at " + std::to_string(steps));
        }
        QTest::mouseClick(&main, Qt::LeftButton, {}, QPoint(1, 1));
        QCoreApplication::processEvents();
        ExpectSame(OnScreen(main), Anew(main), "gone at " + std::to_string(steps));
        PressScaleKey(&main, Qt::Key_0);
    }
}

TEST_F(PlaceMarkerTest, ItsThreadHasTheColorOfTheSkinsClock) {
    constexpr QRgb usual = 0xF5F2EC;
    constexpr QRgb said = 0x9FF7CF;
    MakeLetteredSkin(folder, "Plain", "");
    MakeLetteredSkin(folder, "Lettered", "[Clock]\nColor=#40F0A0\n");
    global.SkinFolder = folder.path() + "\\";
    global.SkinNames = {"Plain", "Lettered"};
    for (const auto& [skin, shown, other] : {std::tuple{1, usual, said}, {2, said, usual}}) {
        global.Settings.SkinPtr = static_cast<std::int16_t>(skin);
        main.SetFonts(folder.path() + (skin == 1 ? "\\Plain" : "\\Lettered"));
        Open();
        for (QWidget* const control : {Find(main, "cmdMnuBtn(0)"), Find(*config, "cmdOk"),
                                       Find(*high, "cmdOk"), Find(*about, "cmdOk")}) {
            Mark(control);
            ASSERT_TRUE(IsMarked(control));
            const QImage sign = SignOf(*control->window())->grab().toImage();
            EXPECT_TRUE(HasPixel(sign, shown)) << control->window()->objectName().toStdString();
            EXPECT_FALSE(HasPixel(sign, other)) << control->window()->objectName().toStdString();
        }
    }
}

}  // namespace
}  // namespace quendrel::test
