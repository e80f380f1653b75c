// The highscore window itself: its name entry and its keys.
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "Devices.h"
#include "Keys.h"
#include "LetteredSkin.h"
#include "RecordingWindow.h"
#include "TemporaryFolder.h"
#include "Thrown.h"
#include "audio/SoundEffects.h"
#include "scores/HighscoreStore.h"
#include "scores/frmHigh.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::test {
namespace {

class FrmHighTest : public ::testing::Test {
protected:
    FrmHighTest() {
        global.SoundAvailable = true;
        global.Settings.GameMode = 0;
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier"};
        global.HighFolder = folder.path() + "\\High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        store.LoadHighscores();
    }

    void Open() {
        high = std::make_unique<frmHigh>(global, pictures, sounds, store, window);
        high->show();
        entry = high->findChild<QLineEdit*>("txtEnterName");
    }

    /// After a win in 75 seconds, which waits for its name.
    void OpenForAName() {
        global.ElapsedSeconds = 75;
        global.ActiveRow = 4;
        global.NewScorePending = true;
        Open();
    }

    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        entry->paste();
    }

    TemporaryFolder folder;
    Log log;
    RecordingSoundPlayer soundPlayer{log};
    RecordingWindow window{log};
    const PictureReader pictures = ReadPictureFile;
    Global global;
    SoundEffects sounds{global, soundPlayer};
    HighscoreStore store{global};
    std::unique_ptr<frmHigh> high;
    QLineEdit* entry = nullptr;
};

TEST_F(FrmHighTest, WhatAFileCannotHoldShowsAsAQuestionMarkAsSoonAsItIsTyped) {
    OpenForAName();
    for (const QString key : {"Z", "o", "é", " ", "Ж"}) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, key);
        QCoreApplication::sendEvent(entry, &press);
    }
    EXPECT_EQ(entry->text(), "Zoé ?");
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Zoé ?", 4, 75}));
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Zoé ?", 4, 75}));
}

TEST_F(FrmHighTest, WhatIsThrownOnReturnComesOutOfTheEventPump) {
    folder.Write("High", "no folder");
    window.onTrouble = Fail;
    OpenForAName();
    entry->setText("Anna");
    EXPECT_EQ(ThrownAfter([this] { QTest::keyClick(entry, Qt::Key_Return); }), "it went wrong");
}

TEST_F(FrmHighTest, TheCursorStaysBehindWhatCame) {
    OpenForAName();
    entry->setText("Anna");
    entry->setCursorPosition(2);
    Paste("→😀");
    EXPECT_EQ(entry->text(), "An??na");
    EXPECT_EQ(entry->cursorPosition(), 4);
    QTest::keyClicks(entry, "x");
    EXPECT_EQ(entry->text(), "An??xna");
}

TEST_F(FrmHighTest, ALineBreakThatIsPastedIsABlank) {
    OpenForAName();
    Paste("Anna\r\nof\tKiel\n");
    EXPECT_EQ(entry->text(), "Anna of Kiel ");
    EXPECT_EQ(entry->cursorPosition(), 13);
}

TEST_F(FrmHighTest, AnAccentThatComesAfterItsLetterIsOneCharacterWithIt) {
    OpenForAName();
    Paste(QString("Zoe") + QChar(0x0301));
    EXPECT_EQ(entry->text(), "Zoé");
    EXPECT_EQ(entry->cursorPosition(), 3);
}

TEST_F(FrmHighTest, WhatTheInputMethodBringsIsMadeAName) {
    OpenForAName();
    QInputMethodEvent commit;
    commit.setCommitString("安\nna");
    QCoreApplication::sendEvent(entry, &commit);
    EXPECT_EQ(entry->text(), "? na");
    EXPECT_EQ(entry->cursorPosition(), 4);
}

TEST_F(FrmHighTest, WhatTheInputMethodStillComposesBelongsToTheName) {
    OpenForAName();
    QTest::keyClicks(entry, "An");
    QInputMethodEvent composing(QString("h") + QChar(0x0301) + "Ж", {});
    QCoreApplication::sendEvent(entry, &composing);
    QTest::mouseClick(high->findChild<QWidget*>("cmdOk"), Qt::LeftButton);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Anh??", 4, 75}));
}

TEST_F(FrmHighTest, EnterThatIsStillHeldFromTheGameDoesNotEndTheEntry) {
    OpenForAName();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
        QCoreApplication::sendEvent(entry, &repeated);
    }
    EXPECT_TRUE(global.NewScorePending);
    EXPECT_TRUE(high->isVisible());
    QTest::keyClicks(entry, "Ann");
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Ann", 4, 75}));
}

TEST_F(FrmHighTest, WhatIsDroppedIsMadeAName) {
    OpenForAName();
    QMimeData text;
    text.setText("Ж\nna");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(entry, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(entry, &drop);
    EXPECT_EQ(entry->text(), "? na");
}

TEST_F(FrmHighTest, ANameThatIsOfferedShowsAsItWillBeStoredAndSelected) {
    global.Settings.MindDuel = true;
    global.Settings.PlayerNames[1] = "Жanna";
    OpenForAName();
    EXPECT_EQ(entry->text(), "?anna");
    EXPECT_EQ(entry->selectedText(), "?anna");
}

TEST_F(FrmHighTest, DefaultHasItsBalloonAlsoWithoutAFileToClear) {
    global.Settings.ToolTips = true;
    Open();
    auto* const cmdDefault = high->findChild<QWidget*>("cmdDefault");
    ASSERT_FALSE(cmdDefault->isEnabled());
    PointAt(cmdDefault, {5, 5});
    EXPECT_TRUE(BalloonSays(*high,
                            "Press here to restore Brimwell® Settings. This will clear the "
                            "highscore list to it's default state, so be careful."));
}

TEST_F(FrmHighTest, OkHasItsBalloonUnlessHelpIsOff) {
    const QString help = "Press here when you are ready to continue.";
    for (const bool isOn : {true, false}) {
        global.Settings.ToolTips = isOn;
        Open();
        PointAt(high->findChild<QWidget*>("cmdOk"), {5, 5});
        EXPECT_EQ(BalloonSays(*high, help), isOn);
    }
}

TEST_F(FrmHighTest, ItsTextsHaveTheFontAndColorOfTheSkin) {
    MakeLetteredSkin(folder, "Lettered", "[Highscores]\nFace=Inter\nSize=80\nColor=#20E040\n");
    global.SkinFolder = folder.path() + "\\";
    global.SkinNames = {"Lettered"};
    OpenForAName();
    for (const char* const name :
         {"lblHighName(3)", "lblHighRow(3)", "lblHighTime(3)", "txtEnterName"}) {
        EXPECT_EQ(high->findChild<QWidget*>(name)->font().family(), "Inter") << name;
        EXPECT_EQ(high->findChild<QWidget*>(name)->font().pixelSize(), 14) << name;
    }
    EXPECT_TRUE(HasPixel(high->grab().toImage(), 0x20E040));
}

TEST_F(FrmHighTest, ItsTextsAreAsUsualInASkinWithoutFonts) {
    MakeLetteredSkin(folder, "Plain", "");
    global.SkinFolder = folder.path() + "\\";
    global.SkinNames = {"Plain"};
    Open();
    const QFont font = high->findChild<QWidget*>("lblHighName(3)")->font();
    EXPECT_EQ(font.family(), "Yanone Kaffeesatz");
    EXPECT_EQ(font.weight(), 500);
    EXPECT_EQ(font.pixelSize(), 18);
    EXPECT_TRUE(HasPixel(high->grab().toImage(), 0xEBE6DA));
}

TEST_F(FrmHighTest, TheTabulatorGoesTheWayTheWindowIsReadFromOkOn) {
    Open();
    EXPECT_EQ(TabOrder(*high, "txtEnterName"),
              (QStringList{"txtEnterName", "cmdDefault", "cmdOk"}));
    EXPECT_EQ(high->focusWidget(), high->findChild<QWidget*>("cmdOk"));
}

TEST_F(FrmHighTest, AButtonPressedByKeySoundsAndActsAsByMouse) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        store.SaveHighscores();
        Open();
        EXPECT_EQ(SoundsOfKey(log, high->findChild<QWidget*>("cmdDefault"), key), "sound 6\n");
        EXPECT_FALSE(store.HasFile());
        EXPECT_EQ(SoundsOfKey(log, high->findChild<QWidget*>("cmdOk"), key), "sound 6\n");
        EXPECT_FALSE(high->isVisible());
    }
}

TEST_F(FrmHighTest, EnterInTheNameIsNoPressOfAButton) {
    OpenForAName();
    EXPECT_EQ(high->focusWidget(), entry);
    QTest::keyClicks(entry, "Anna");
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_FALSE(high->isVisible());
    EXPECT_EQ(log.LinesFrom("sound "), "");
    EXPECT_EQ(global.HighscoreList[1].Name, "Anna");
}

TEST_F(FrmHighTest, AWinThatIsGivenUpLeavesTheFocusOnOk) {
    store.SaveHighscores();
    OpenForAName();
    QTest::mouseClick(high->findChild<QWidget*>("cmdDefault"), Qt::LeftButton);
    EXPECT_EQ(high->focusWidget(), high->findChild<QWidget*>("cmdOk"));
}

TEST_F(FrmHighTest, ThePictureAndTheSpokenNameAreThoseOfTheMode) {
    int mode = 0;
    for (const std::string name : {"Easy", "Medium", "Hard"}) {
        global.Settings.GameMode = static_cast<std::uint8_t>(mode++);
        Open();
        auto* const cmdMode = high->findChild<QWidget*>("cmdMode");
        EXPECT_EQ(cmdMode->accessibleName().toStdString(), name);
        const std::string file = QUENDREL_SKIN_FOLDER "/Atelier/High/Interface/" + name + ".bmp";
        EXPECT_EQ(cmdMode->grab().toImage().convertToFormat(QImage::Format_RGB32),
                  QImage(QString::fromStdString(file)).convertToFormat(QImage::Format_RGB32))
            << name;
    }
}

TEST_F(FrmHighTest, EscapeIsOk) {
    Open();
    QTest::keyClick(high.get(), Qt::Key_Escape);
    EXPECT_FALSE(high->isVisible());
}

TEST_F(FrmHighTest, EscapeIsOkWhereverTheKeyboardIs) {
    for (const char* const name : {"cmdOk", "cmdDefault"}) {
        Open();
        QTest::keyClick(high->findChild<QWidget*>(name), Qt::Key_Escape);
        EXPECT_FALSE(high->isVisible()) << name;
    }
}

TEST_F(FrmHighTest, EscapeDoesNothingWhileANameIsEntered) {
    OpenForAName();
    QTest::keyClicks(entry, "Anna");
    QTest::keyClick(entry, Qt::Key_Escape);
    QTest::keyClick(high.get(), Qt::Key_Escape);
    EXPECT_TRUE(high->isVisible());
    EXPECT_EQ(entry->text(), "Anna");
    EXPECT_TRUE(global.NewScorePending);
}

TEST_F(FrmHighTest, EscapeIsOkAgainOnceTheWinIsGivenUp) {
    store.SaveHighscores();
    OpenForAName();
    QTest::mouseClick(high->findChild<QWidget*>("cmdDefault"), Qt::LeftButton);
    QTest::keyClick(high.get(), Qt::Key_Escape);
    EXPECT_FALSE(high->isVisible());
}

}  // namespace
}  // namespace quendrel::test
