// The about window itself.
#include <functional>

#include <QTest>
#include <gtest/gtest.h>

#include "Balloon.h"
#include "Devices.h"
#include "Drag.h"
#include "Keys.h"
#include "audio/SoundEffects.h"
#include "ui/picture/PictureFile.h"
#include "ui/windows/frmAbout.h"

namespace quendrel::test {
namespace {

class FrmAboutTest : public ::testing::Test {
protected:
    FrmAboutTest() {
        global.SoundAvailable = true;
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier"};
    }

    Log log;
    Global global;
    RecordingSoundPlayer soundPlayer{log};
    RecordingLinkOpener links{log};
    const PictureReader pictures = ReadPictureFile;
    SoundEffects sounds{global, soundPlayer};
};

TEST_F(FrmAboutTest, EscapeIsOkWhereverTheKeyboardIs) {
    frmAbout about(global, pictures, sounds, std::ref(links));
    for (const char* const name : {"cmdOk", "agifEmail", "agifHome"}) {
        about.show();
        QTest::keyClick(about.findChild<QWidget*>(name), Qt::Key_Escape);
        EXPECT_FALSE(about.isVisible()) << name;
    }
    EXPECT_EQ(log.Text(), "");
}

TEST_F(FrmAboutTest, AWindowThatHasClosedDoesNotCloseAgain) {
    frmAbout about(global, pictures, sounds, std::ref(links));
    int closed = 0;
    about.onClosed = [&closed] { ++closed; };
    about.show();
    for (int click = 0; click < 2; ++click) {
        QTest::mouseClick(about.findChild<QWidget*>("cmdOk"), Qt::LeftButton);
    }
    about.onCloseRequest();
    EXPECT_EQ(closed, 1);
}

TEST_F(FrmAboutTest, TheTabulatorGoesTheWayTheWindowIsReadFromOkOn) {
    const frmAbout about(global, pictures, sounds, std::ref(links));
    EXPECT_EQ(TabOrder(about, "agifEmail"), (QStringList{"agifEmail", "agifHome", "cmdOk"}));
    EXPECT_EQ(about.focusWidget(), about.findChild<QWidget*>("cmdOk"));
}

TEST_F(FrmAboutTest, EverythingThatCanBePressedHasItsBalloonUnlessHelpIsOff) {
    const auto says = [](frmAbout& about, const char* name, const char* words) {
        PointAt(about.findChild<QWidget*>(name), {5, 5});
        return BalloonSays(about, words);
    };
    global.Settings.ToolTips = true;
    frmAbout about(global, pictures, sounds, std::ref(links));
    about.show();
    EXPECT_TRUE(says(about, "agifEmail", "Click here to send us an Email"));
    EXPECT_TRUE(says(about, "agifHome", "Click here to visit the Brimwell homepage"));
    EXPECT_TRUE(says(about, "cmdOk", "Press here to continue."));
    global.Settings.ToolTips = false;
    frmAbout silent(global, pictures, sounds, std::ref(links));
    silent.show();
    EXPECT_FALSE(says(silent, "cmdOk", "Press here to continue."));
}

TEST_F(FrmAboutTest, KeysPressWhatHasTheFocus) {
    frmAbout about(global, pictures, sounds, std::ref(links));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        EXPECT_EQ(SoundsOfKey(log, about.findChild<QWidget*>("agifEmail"), key), "");
        EXPECT_EQ(log.Text(), "open mailto:games@brimwell.example\n");
        EXPECT_EQ(SoundsOfKey(log, about.findChild<QWidget*>("agifHome"), key), "");
        EXPECT_EQ(log.Text(), "open https://www.brimwell.example/\n");
        EXPECT_EQ(SoundsOfKey(log, about.findChild<QWidget*>("cmdOk"), key), "sound 6\n");
        EXPECT_FALSE(about.isVisible());
    }
}

TEST_F(FrmAboutTest, EachLinkOpensItsOwnAddressWhereItStands) {
    struct Link {
        const char* name;
        QRect place;
        const char* opened;
        std::int32_t answer;
    };
    frmAbout about(global, pictures, sounds, std::ref(links));
    about.show();
    for (const Link& link :
         {Link{"agifEmail", {160, 192, 72, 60}, "open mailto:games@brimwell.example\n", 42},
          Link{"agifHome", {263, 192, 72, 60}, "open https://www.brimwell.example/\n", 7}}) {
        auto* const button = about.findChild<QWidget*>(link.name);
        EXPECT_EQ(button->geometry(), link.place);
        links.answer = link.answer;
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(log.Text(), link.opened);
        EXPECT_EQ(global.ShellResult, link.answer);
        log.Clear();
    }
}

TEST_F(FrmAboutTest, IsNotDraggedByALink) {
    frmAbout about(global, pictures, sounds, std::ref(links));
    about.setGeometry(100, 100, about.width(), about.height());
    about.show();
    EXPECT_NE(DraggedBy(about, {5, about.height() / 2}), QPoint(0, 0));
    const QRect link = about.findChild<QWidget*>("agifHome")->geometry();
    EXPECT_EQ(DraggedBy(about, link.center(), Qt::LeftButton), QPoint(0, 0));
    EXPECT_EQ(log.Text(), "");
}

TEST_F(FrmAboutTest, TheAnimationsStandOnTheFloorOfTheirNiches) {
    constexpr QRgb floor = 0xFF191512;
    frmAbout about(global, pictures, sounds, std::ref(links));
    about.show();
    const QImage shown = about.grab().toImage();
    for (const QRect& niche :
         {QRect(160, 192, 72, 60), QRect(263, 192, 72, 60), QRect(50, 68, 52, 168)}) {
        EXPECT_EQ(shown.pixel(niche.topLeft()), floor) << niche.left();
        EXPECT_EQ(shown.pixel(niche.bottomRight()), floor) << niche.left();
    }
}

}  // namespace
}  // namespace quendrel::test
