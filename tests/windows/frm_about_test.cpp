// The about window itself.
#include <QTest>
#include <gtest/gtest.h>

#include "Devices.h"
#include "Drag.h"
#include "audio/SoundEffects.h"
#include "ui/PictureFile.h"
#include "ui/frmAbout.h"

namespace quendrel::test {
namespace {

class FrmAboutTest : public ::testing::Test {
protected:
    FrmAboutTest() {
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier"};
    }

    Log log;
    Global global;
    RecordingSoundPlayer soundPlayer{log};
    RecordingLinkOpener links{log};
    PictureFileReader pictures;
    SoundEffects sounds{global, soundPlayer};
};

TEST_F(FrmAboutTest, EscapeIsOkWhereverTheKeyboardIs) {
    frmAbout about(global, pictures, sounds, links);
    for (const char* const name : {"cmdOk", "agifEmail", "agifHome"}) {
        about.show();
        QTest::keyClick(about.findChild<QWidget*>(name), Qt::Key_Escape);
        EXPECT_FALSE(about.isVisible()) << name;
    }
    EXPECT_EQ(log.Text(), "");
}

TEST_F(FrmAboutTest, IsNotDraggedByALink) {
    frmAbout about(global, pictures, sounds, links);
    about.setGeometry(100, 100, about.width(), about.height());
    about.show();
    EXPECT_NE(DraggedBy(about, {5, about.height() / 2}), QPoint(0, 0));
    const QRect link = about.findChild<QWidget*>("agifHome")->geometry();
    EXPECT_EQ(DraggedBy(about, link.center(), Qt::LeftButton), QPoint(0, 0));
    EXPECT_EQ(log.Text(), "");
}

}  // namespace
}  // namespace quendrel::test
