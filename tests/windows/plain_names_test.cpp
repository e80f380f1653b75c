// Names of files and players are shown and read out as they stand, whatever markup they look like.
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <gtest/gtest.h>

#include "AllWindows.h"

namespace quendrel::test {
namespace {

const std::string kMarkup = "<b>x<img src=y.png>";

class PlainNamesTest : public AllWindows {
protected:
    static std::string ReadOut(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).toStdString();
    }
};

TEST_F(PlainNamesTest, NoLabelOfAnyWindowTakesItsTextForMarkup) {
    Open();
    int labels = 0;
    for (const QWidget* const window : All()) {
        for (const QLabel* const label : window->findChildren<QLabel*>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
            ++labels;
        }
    }
    EXPECT_EQ(labels, 4 + 1 + 30 + 2);  // messages, clock, highscores, skin and rounds
}

TEST_F(PlainNamesTest, ABoxShowsWhatItIsGivenAsItStands) {
    bool looked = false;
    clock.In(100, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        const auto* const text = box->findChild<QLabel*>("qt_msgbox_label");
        EXPECT_EQ(text->text().toStdString(), kMarkup);
        EXPECT_EQ(text->textFormat(), Qt::PlainText);
        looked = true;
        box->close();
    });
    main.ShowTrouble(kMarkup);
    EXPECT_TRUE(looked);
}

TEST_F(PlainNamesTest, ATuneASkinAndAPlayerAreReadOutAsTheyStand) {
    std::filesystem::create_directory_symlink(std::string(QUENDREL_SKIN_FOLDER) + "/Atelier",
                                              folder.path() + "/" + kMarkup);
    global.SkinFolder = folder.path() + "\\";
    global.SkinNames = {kMarkup};
    SetPlaylist(global, {kMarkup});
    global.HighscoreList[1].Name = kMarkup;
    Open();
    EXPECT_EQ(ReadOut(Find(*config, "lblSkin")), "Skin: " + kMarkup);
    EXPECT_EQ(ReadOut(Find(*high, "lblHighName(1)")), kMarkup);
    const auto* const tunes = QAccessible::queryAccessibleInterface(Find(*config, "lstPlayList"));
    EXPECT_EQ(tunes->child(0)->text(QAccessible::Name).toStdString(), kMarkup);
}

}  // namespace
}  // namespace quendrel::test
