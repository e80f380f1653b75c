// The main window by keys: where the focus goes, and which keys reach the game.
#include <cstdint>
#include <string>
#include <vector>

#include <QAccessible>
#include <QCursor>
#include <QKeyEvent>
#include <QTest>

#include "MainWindow.h"
#include "PlayedModes.h"
#include "ui/controls/Announcer.h"
#include "ui/layout/Control.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/InputBar.h"

namespace quendrel::test {
namespace {

class MainKeysTest : public MainWindowFixture {
protected:
    MainKeysTest() {
        folder.Write("settings.ini", "[Game]\nGameMode=0\n[Duel]\nMindDuel=True\n");
        window.Load(0);
        global.SoundAvailable = true;
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        log.Clear();
    }

    /// A key of the keyboard, as the window system tells it.
    void Strike(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.windowHandle(), key, held);
    }
    void StrikeAll(const std::vector<Qt::Key>& keys) {
        for (const Qt::Key key : keys) Strike(key);
    }

    /// A key that is held long enough to come again.
    void Repeat(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, {}, {}, true);
        QApplication::sendEvent(window.focusWidget(), &event);
    }

    void StartWithCode(const Colors& colors) {
        for (const int color : colors) random.script.push_back((color - 0.5) / 6);
        Strike(Qt::Key_S);
        log.Clear();
    }

    QWidget* Widget(Control control) {
        return window.findChild<QWidget*>(QString::fromStdString(NameOf(control)));
    }

    /// The name of what has the focus.
    std::string Focus() {
        const QWidget* const at = QApplication::focusWidget();
        return at == nullptr ? "" : at->objectName().toStdString();
    }

    /// Where the tabulator stops, from where the focus is until it is there again.
    std::string Stops() {
        const std::string first = Focus();
        std::string stops = first;
        for (int i = 0; i < 60; ++i) {
            Strike(Qt::Key_Tab);
            if (Focus() == first) return stops;
            stops += " " + Focus();
        }
        return stops + " and so on";
    }

    /// What a screen reader was given to say last.
    QString LastSaid() {
        for (QObject* const child : window.children()) {
            if (dynamic_cast<Announcer*>(child) == nullptr) continue;
            QObject* const last = child->children().back();
            return QAccessible::queryAccessibleInterface(last)->child(0)->text(QAccessible::Name);
        }
        return {};
    }

    /// What happens in the middle of a question that a key asks.
    void During(Qt::Key question, const std::function<void()>& meanwhile) {
        clock.In(100, meanwhile);
        Strike(question);
    }
};

TEST_F(MainKeysTest, TheTabulatorGoesAsTheIdleWindowIsRead) {
    EXPECT_EQ(Stops(),
              "cmdMnuBtn(6) cmdMnuBtn(2) cmdMnuBtn(1) cmdMnuBtn(0) cmdDuelBtn cmdHideBtn "
              "cmdModeBtn(0) cmdModeBtn(1) cmdModeBtn(2) cmdColBtn(0) cmdColBtn(1) cmdColBtn(2) "
              "cmdColBtn(3) cmdColBtn(4) cmdColBtn(5)");
}

TEST_F(MainKeysTest, TheRowIsOneStopBetweenTheSmallButtonsAndTheColors) {
    StartWithCode({1, 1, 2, 3});
    StrikeAll({Qt::Key_4, Qt::Key_4});
    EXPECT_EQ(Stops(),
              "lblActiveRow(3) cmdColBtn(0) cmdColBtn(1) cmdColBtn(2) cmdColBtn(3) cmdColBtn(4) "
              "cmdColBtn(5) cmdMnuBtn(4) cmdMnuBtn(2) cmdMnuBtn(1) cmdMnuBtn(0) cmdDuelBtn "
              "cmdHideBtn");
}

TEST_F(MainKeysTest, AQuestionIsTheFirstStopAndNoHasTheFocus) {
    During(Qt::Key_E, [this] {
        EXPECT_EQ(Focus(), "cmdInput(1)");
        EXPECT_EQ(Stops().substr(0, 34), "cmdInput(1) cmdDuelBtn cmdHideBtn ");
        Strike(Qt::Key_Backtab);
        EXPECT_EQ(Focus(), "cmdInput(0)");
        Strike(Qt::Key_N);
    });
    EXPECT_EQ(Focus(), "cmdMnuBtn(6)");
}

TEST_F(MainKeysTest, ARowIsFilledAndCheckedByOneKeyForEachColumnAndEnter) {
    StartWithCode({1, 1, 2, 3});
    EXPECT_EQ(Focus(), "lblActiveRow(1)");
    StrikeAll({Qt::Key_4, Qt::Key_5, Qt::Key_5, Qt::Key_4});
    EXPECT_EQ(Focus(), "lblActiveRow(4)");
    Strike(Qt::Key_Return);
    EXPECT_EQ(global.GuessRows[1], RowOfPegs({4, 5, 5, 4, 0, 0}));
    EXPECT_EQ(global.ActiveRow, 2);
    EXPECT_EQ(Focus(), "lblActiveRow(1)");
}

TEST_F(MainKeysTest, EveryKeyOfTheRowReachesIt) {
    StartWithCode({1, 1, 2, 3});
    StrikeAll({Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_Home, Qt::Key_Delete});
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 2, 3, 4, 0, 0}));
    StrikeAll({Qt::Key_Right, Qt::Key_Space});
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 4, 3, 4, 0, 0}));
    StrikeAll({Qt::Key_Left, Qt::Key_Backspace});
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 0, 3, 4, 0, 0}));
    Strike(Qt::Key_End);
    EXPECT_EQ(Focus(), "lblActiveRow(4)");
    Strike(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
    Strike(Qt::Key_6, Qt::ShiftModifier);
    EXPECT_FALSE(window.IsEnabled(ColorButton(6)));
    Strike(Qt::Key_6, Qt::ShiftModifier);
    EXPECT_TRUE(window.IsEnabled(ColorButton(6)));
}

TEST_F(MainKeysTest, AQuestionGivesTheFocusBackToTheHole) {
    StartWithCode({1, 1, 2, 3});
    StrikeAll({Qt::Key_4, Qt::Key_4});
    for (const Qt::Key no : {Qt::Key_N, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
        During(Qt::Key_W, [this, no] {
            EXPECT_EQ(Focus(), "cmdInput(1)");
            Strike(no);
        });
        EXPECT_EQ(Focus(), "lblActiveRow(3)");
    }
    EXPECT_TRUE(global.Settings.GameInProgress);
    clock.In(6000, [this] {
        EXPECT_EQ(Focus(), "cmdInput(2)");
        Strike(Qt::Key_Enter);
    });
    During(Qt::Key_W, [this] { Strike(Qt::Key_Y); });
    EXPECT_FALSE(global.Settings.GameInProgress);
    EXPECT_EQ(Focus(), "cmdMnuBtn(6)");
}

TEST_F(MainKeysTest, AButtonThatIsSwitchedOffLeavesTheFocusToTheHomeOfTheSituation) {
    const Control config = ButtonOf(CommandButton::kConfig);
    window.SetPlace(config);
    window.SetEnabled(config, false);
    EXPECT_EQ(Focus(), "cmdMnuBtn(6)");
    window.SetEnabled(config, true);
    StartWithCode({1, 1, 2, 3});
    StrikeAll({Qt::Key_4, Qt::Key_4});
    window.SetPlace(config);
    window.SetEnabled(config, false);
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
    window.SetPlace(config);
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
    window.SetPlace(ColorButton(2));
    window.SetVisible(ColorButton(2), false);
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
}

TEST_F(MainKeysTest, TheRowsOfCloneTakeTheFocusAndGiveItBack) {
    StartWithCode({1, 1, 2, 3});
    StrikeAll({Qt::Key_4, Qt::Key_4, Qt::Key_4, Qt::Key_4, Qt::Key_Return});
    StrikeAll({Qt::Key_5, Qt::Key_5, Qt::Key_5, Qt::Key_5, Qt::Key_Return});
    Strike(Qt::Key_Right);
    Strike(Qt::Key_C);
    EXPECT_EQ(Stops(),
              "lblCloneRow(1) cmdColBtn(0) cmdColBtn(1) cmdColBtn(2) cmdColBtn(3) "
              "cmdColBtn(4) cmdColBtn(5) cmdDuelBtn cmdHideBtn");
    Strike(Qt::Key_Down);
    EXPECT_EQ(Focus(), "lblCloneRow(0)");
    Strike(Qt::Key_Return);
    EXPECT_EQ(Focus(), "lblActiveRow(2)");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({4, 4, 4, 4, 0, 0}));
}

TEST_F(MainKeysTest, APressOnAHoleBringsTheFocusAndNoOtherPressMovesIt) {
    StartWithCode({1, 1, 2, 3});
    QTest::mouseClick(Widget(Hole(3)), Qt::LeftButton);
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
    for (const Control control :
         {ColorButton(5), Control{Controls::cmdTmrBtn}, Hole(5), ButtonOf(CommandButton::kCheck)}) {
        QTest::mouseClick(Widget(control), Qt::LeftButton);
        EXPECT_EQ(Focus(), "lblActiveRow(3)") << NameOf(control);
    }
    QTest::mouseClick(&window, Qt::LeftButton, {}, {400, 20});
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
    Strike(Qt::Key_Space);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 0, 5, 0, 0, 0}));
}

TEST_F(MainKeysTest, OnlySomeKeysCountAgainWhileTheyAreHeld) {
    StartWithCode({1, 1, 2, 3});
    Strike(Qt::Key_1);
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_Space, Qt::Key_Home, Qt::Key_End}) {
        Repeat(key);
        EXPECT_EQ(Focus(), "lblActiveRow(2)") << key;
    }
    Repeat(Qt::Key_Right);
    Repeat(Qt::Key_Right);
    EXPECT_EQ(Focus(), "lblActiveRow(4)");
    Repeat(Qt::Key_Left);
    EXPECT_EQ(Focus(), "lblActiveRow(3)");
    StrikeAll({Qt::Key_Home, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4});
    Repeat(Qt::Key_Return);
    EXPECT_EQ(global.ActiveRow, 1);
    Repeat(Qt::Key_Backspace);
    Repeat(Qt::Key_Backspace);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({1, 2, 0, 0, 0, 0}));
    Strike(Qt::Key_Home);
    Repeat(Qt::Key_Delete);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 2, 0, 0, 0, 0}));
}

TEST_F(MainKeysTest, ArrowsDoNotMoveTheFocusFromAButton) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        Strike(key);
        Strike(key, Qt::ShiftModifier);
        EXPECT_EQ(Focus(), "cmdMnuBtn(6)");
    }
}

TEST_F(MainKeysTest, ButtonsThatKeysPressSoundAsUnderThePointer) {
    Strike(Qt::Key_S);
    EXPECT_EQ(log.LinesFrom("sound "), "sound 0\nsound 4 alone\n");
    log.Clear();
    Strike(Qt::Key_1);
    EXPECT_EQ(log.LinesFrom("sound "), "sound 1\nsound 7\n");
    log.Clear();
    During(Qt::Key_W, [this] { Strike(Qt::Key_N); });
    EXPECT_EQ(log.LinesFrom("sound "), "sound 0\nsound 2\n");
    log.Clear();
    During(Qt::Key_M, [this] { Strike(Qt::Key_Return); });
    EXPECT_EQ(log.LinesFrom("sound "), "sound 2\nsound 2\n");
    log.Clear();
    Strike(Qt::Key_S);
    Strike(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(log.LinesFrom("sound "), "");
}

TEST_F(MainKeysTest, CtrlAndANumberChooseTheMode) {
    Strike(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(global.Settings.GameMode, 1);
    EXPECT_EQ(log.LinesFrom("sound "), "sound 6\n");
    Strike(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(global.Settings.GameMode, 2);
    Strike(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(global.Settings.GameMode, 0);
    Strike(Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(global.Settings.GameMode, 0);
    EXPECT_EQ(global.SelectedColor, 0);
}

TEST_F(MainKeysTest, SpaceAndEnterPressTheButtonThatHasTheFocus) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        window.SetPlace(ButtonOf(CommandButton::kAbout));
        log.Clear();
        Strike(key);
        EXPECT_EQ(log.LinesFrom("sound "), "sound 0\n");
        ASSERT_NE(Shown("frmAbout"), nullptr);
        Shown("frmAbout")->findChild<QAbstractButton*>("cmdOk")->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    window.SetPlace(ColorButton(3));
    Strike(Qt::Key_Space);
    EXPECT_EQ(global.SelectedColor, 3);
    window.SetPlace({Controls::cmdModeBtn, 1});
    Strike(Qt::Key_Space);
    EXPECT_EQ(global.Settings.GameMode, 1);
}

TEST_F(MainKeysTest, AButtonThatAKeyHasPressedDoesNotKeepThePointer) {
    for (const Control control : {ColorButton(3), Control{Controls::cmdModeBtn, 0}}) {
        window.SetPlace(control);
        Strike(Qt::Key_Space);
        QWidget* const button = Widget(control);
        const QPoint before = QCursor::pos();
        QMouseEvent move(QEvent::MouseMove, QPointF(-20, -20),
                         button->mapToGlobal(QPointF(-20, -20)), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(button, &move);
        EXPECT_EQ(QCursor::pos(), before) << NameOf(control);
    }
}

TEST_F(MainKeysTest, LettersAndNumbersRestWhileAnotherWindowIsInFront) {
    for (const char* const name : {"cmdMnuBtn(2)", "cmdMnuBtn(3)"}) {
        window.findChild<QAbstractButton*>(name)->setEnabled(true);
        clock.In(100, [this] {
            QWidget* const front = QApplication::activeModalWidget();
            ASSERT_NE(front, nullptr);
            StrikeAll({Qt::Key_S, Qt::Key_1, Qt::Key_I});
            Strike(Qt::Key_2, Qt::ControlModifier);
            for (const Qt::Key key : {Qt::Key_S, Qt::Key_1, Qt::Key_I}) {
                QTest::keyClick(front->windowHandle(), key);
            }
            front->hide();
        });
        Press(name);
        EXPECT_FALSE(global.Settings.GameInProgress) << name;
        EXPECT_EQ(global.SelectedColor, 0) << name;
        EXPECT_EQ(global.Settings.GameMode, 0) << name;
        EXPECT_TRUE(window.isVisible()) << name;
    }
}

TEST_F(MainKeysTest, THasTheClockSaid) {
    global.Settings.GTimer = true;
    global.ElapsedSeconds = 75;
    Strike(Qt::Key_T);
    EXPECT_EQ(LastSaid(), "Clock: 1 minute 15 seconds");
    global.Settings.GTimer = false;
    Strike(Qt::Key_T);
    EXPECT_EQ(LastSaid(), "The clock is off");
}

TEST_F(MainKeysTest, LettersAreNotTakenFromTheAboutWindow) {
    Strike(Qt::Key_A);
    QWidget* const about = Shown("frmAbout");
    ASSERT_NE(about, nullptr);
    about->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(about));
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_1, Qt::Key_I}) {
        QTest::keyClick(about->windowHandle(), key);
    }
    EXPECT_FALSE(global.Settings.GameInProgress);
    EXPECT_EQ(global.SelectedColor, 0);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MainKeysTest, ARefusedResetGivesTheFocusBackToTheHoleOfTheCode) {
    global.Settings.SetColor = true;
    During(Qt::Key_S, [this] {
        StrikeAll({Qt::Key_1, Qt::Key_2, Qt::Key_Left});
        During(Qt::Key_M, [this] {
            EXPECT_EQ(Focus(), "cmdInput(2)");
            Strike(Qt::Key_Return);
        });
        EXPECT_EQ(Focus(), "lblActiveRow(2)");
        StrikeAll({Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_Return});
    });
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 2, 3, 4, 0, 0}));
}

TEST_F(MainKeysTest, TheCodeIsSetByKeys) {
    global.Settings.SetColor = true;
    During(Qt::Key_S, [this] {
        EXPECT_EQ(Focus(), "lblActiveRow(1)");
        StrikeAll({Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4});
        EXPECT_EQ(Focus(), "lblActiveRow(4)");
        Strike(Qt::Key_Return);
    });
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 2, 3, 4, 0, 0}));
    EXPECT_EQ(Focus(), "lblActiveRow(1)");
}

TEST_F(MainKeysTest, WhatDoesNothingTakesNoFocus) {
    EXPECT_EQ(Widget({Controls::cmdTmrBtn})->focusPolicy(), Qt::NoFocus);
    for (int column = 1; column <= 6; ++column) {
        EXPECT_TRUE(Widget(Hole(column))->focusPolicy() & Qt::ClickFocus) << column;
    }
}

}  // namespace
}  // namespace quendrel::test
