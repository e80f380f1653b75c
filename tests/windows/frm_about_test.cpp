// The about window itself.
#include <QTest>
#include <gtest/gtest.h>

#include "Devices.h"
#include "audio/SoundEffects.h"
#include "ui/PictureFile.h"
#include "ui/frmAbout.h"

namespace quendrel::test {
namespace {

TEST(FrmAbout, EscapeIsOkWhereverTheKeyboardIs) {
    Log log;
    Global global;
    global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
    global.SkinNames = {"Atelier"};
    RecordingSoundPlayer soundPlayer(log);
    RecordingLinkOpener links(log);
    PictureFileReader pictures;
    SoundEffects sounds(global, soundPlayer);
    frmAbout about(global, pictures, sounds, links);
    for (const char* const name : {"cmdOk", "agifEmail", "agifHome"}) {
        about.show();
        QTest::keyClick(about.findChild<QWidget*>(name), Qt::Key_Escape);
        EXPECT_FALSE(about.isVisible()) << name;
    }
    EXPECT_EQ(log.Text(), "");
}

}  // namespace
}  // namespace quendrel::test
