// Skins that are dropped on the windows, or pasted there.
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <gtest/gtest.h>

#include "GiftDrag.h"
#include "LetteredSkin.h"
#include "MainWindow.h"
#include "SkinCopy.h"
#include "ui/controls/Announcer.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

constexpr QRgb kGreen = 0x20E040;

/// A game with one skin, and another one that is given, whose clock is green.
class DroppedSkinTest : public MainWindowFixture {
protected:
    DroppedSkinTest() {
        fs::create_directories(folder.path() + "/Skin");
        fs::create_directory_symlink(FirstSkin(), folder.path() + "/Skin/Atelier");
        global.SkinFolder = folder.path() + "\\Skin\\";
        window.Load(0);
        window.show();
        CopySkin(mine);
        folder.Write("A gift/Fonts.ini", "[Clock]\nColor=#20E040\n");
    }

    void ExpectPutOn() {
        EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"A gift", "Atelier"}));
        EXPECT_EQ(global.Settings.SkinPtr, 1);
        EXPECT_TRUE(HasPixel(window.findChild<QWidget*>("lblGTimer")->grab().toImage(), kGreen));
    }

    /// What a screen reader was given to say last.
    std::string Announced() {
        for (QObject* const child : window.children()) {
            const auto* const announcer = dynamic_cast<Announcer*>(child);
            if (announcer == nullptr || announcer->children().isEmpty()) continue;
            const auto* const last =
                QAccessible::queryAccessibleInterface(announcer->children().back());
            return last->child(0)->text(QAccessible::Name).toStdString();
        }
        return "nothing";
    }

    void ExpectNotTaken() {
        QCoreApplication::processEvents();
        EXPECT_EQ(global.SkinNames, std::vector<std::string>{"Atelier"});
        EXPECT_FALSE(fs::exists(folder.path() + "/Skin/A gift"));
    }

    /// Drops the gift, and lets what follows happen.
    void DropOn(QWidget* widget) const {
        GiftDrag drag(mine);
        drag.Enter(widget);
        drag.Drop(widget);
        QCoreApplication::processEvents();
    }

    QAbstractButton* ConfigButton() { return window.findChild<QAbstractButton*>("cmdMnuBtn(2)"); }

    /// Does something while the configuration window is open, and closes that.
    void InConfig(const std::function<void(QWidget*)>& act) {
        clock.In(0, [act] {
            QWidget* const config = Shown("frmConfig");
            ASSERT_NE(config, nullptr);
            act(config);
            config->hide();
        });
        ConfigButton()->click();
    }

    const std::string mine = folder.path() + "/A gift";
};

TEST_F(DroppedSkinTest, OnTheMainWindowItIsTakenOnceTheDropIsOverAndPutOn) {
    GiftDrag drag(mine);
    EXPECT_TRUE(drag.Enter(&window));
    EXPECT_TRUE(drag.Move(&window));
    EXPECT_EQ(drag.Drop(&window), Qt::CopyAction);
    EXPECT_EQ(global.SkinNames.size(), 1U);
    QCoreApplication::processEvents();
    ExpectPutOn();
    EXPECT_EQ(Announced(), "Skin: A gift");
}

TEST_F(DroppedSkinTest, OnAnyPartOfTheMainWindowItIsWelcome) {
    for (const char* const name : {"cmdMnuBtn(6)", "lblActiveRow(1)", "lblDispRow(1)"}) {
        EXPECT_TRUE(GiftDrag(mine).Enter(window.findChild<QWidget*>(name))) << name;
    }
}

TEST_F(DroppedSkinTest, OnlyOneFolderOrZipOfThisMachineIsWelcome) {
    const auto url = [this](const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString(folder.path() + "/" + name));
    };
    for (const char* const name : {"a.zip", "b.ZIP", "c.txt", "zip"}) folder.Write(name, "");
    EXPECT_TRUE(GiftDrag({url("a.zip")}).Enter(&window));
    EXPECT_TRUE(GiftDrag({url("b.ZIP")}).Enter(&window));
    EXPECT_FALSE(GiftDrag({url("c.txt")}).Enter(&window));
    EXPECT_FALSE(GiftDrag({url("zip")}).Enter(&window));
    EXPECT_FALSE(GiftDrag({url("none.zip")}).Enter(&window));
    EXPECT_FALSE(GiftDrag({url("a.zip"), url("A gift")}).Enter(&window));
    EXPECT_FALSE(GiftDrag({QUrl("https://www.brimwell.example/a.zip")}).Enter(&window));
    EXPECT_FALSE(GiftDrag(QList<QUrl>{}).Enter(&window));
}

TEST_F(DroppedSkinTest, ItIsCopiedAndNeverMovedAway) {
    GiftDrag drag(mine);
    EXPECT_FALSE(drag.Enter(&window, Qt::MoveAction));
    EXPECT_TRUE(drag.Enter(&window, Qt::MoveAction | Qt::CopyAction));
    drag.keys = Qt::ShiftModifier;
    EXPECT_EQ(drag.Drop(&window, Qt::MoveAction | Qt::CopyAction), Qt::CopyAction);
}

TEST_F(DroppedSkinTest, WhereTheConfigurationCannotBeOpenedNoSkinIsWelcome) {
    GiftDrag drag(mine);
    ASSERT_TRUE(drag.Enter(&window));
    ConfigButton()->setEnabled(false);
    EXPECT_FALSE(drag.Move(&window));
    EXPECT_EQ(drag.Drop(&window), Qt::IgnoreAction);
    EXPECT_FALSE(drag.Enter(&window));
    ExpectNotTaken();
}

TEST_F(DroppedSkinTest, WhileStartClosesTheCoversNoSkinIsWelcome) {
    bool asked = false;
    clock.In(100, [&] {
        EXPECT_TRUE(ConfigButton()->isEnabled());
        EXPECT_FALSE(GiftDrag(mine).Enter(&window));
        asked = true;
    });
    Press("cmdMnuBtn(6)");
    EXPECT_TRUE(asked);
    EXPECT_TRUE(GiftDrag(mine).Enter(&window));
}

TEST_F(DroppedSkinTest, WhatCannotBeTakenAnyMoreWhenTheDropIsOverIsNot) {
    GiftDrag drag(mine);
    ASSERT_TRUE(drag.Enter(&window));
    ASSERT_EQ(drag.Drop(&window), Qt::CopyAction);
    ConfigButton()->setEnabled(false);
    ExpectNotTaken();
}

TEST_F(DroppedSkinTest, AnOpenWindowTakesItForTheMainOneUnlessItIsAnother) {
    InConfig([this](QWidget* config) {
        EXPECT_TRUE(GiftDrag(mine).Enter(config));
        EXPECT_FALSE(GiftDrag(mine).Enter(&window));
    });
    Press("cmdMnuBtn(1)");
    EXPECT_FALSE(GiftDrag(mine).Enter(Shown("frmAbout")));
}

TEST_F(DroppedSkinTest, UnderABoxTheConfigurationTakesNone) {
    fs::remove(mine + "/Game/Dots.bmp");
    bool asked = false;
    InConfig([&](QWidget* config) {
        clock.In(0, [&, config] {
            EXPECT_FALSE(GiftDrag(mine).Enter(config));
            asked = true;
            QApplication::activeModalWidget()->close();
        });
        DropOn(config);
    });
    EXPECT_TRUE(asked);
}

TEST_F(DroppedSkinTest, OnTheConfigurationItIsBrowsedToAndTheSkinInUseStays) {
    InConfig([this](QWidget* config) {
        DropOn(config);
        EXPECT_EQ(config->findChild<QLabel*>("lblSkin")->text(), "A gift");
    });
    EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"A gift", "Atelier"}));
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_FALSE(HasPixel(window.findChild<QWidget*>("lblGTimer")->grab().toImage(), kGreen));
}

TEST_F(DroppedSkinTest, OnTheConfigurationOkPutsItOn) {
    InConfig([this](QWidget* config) {
        DropOn(config);
        config->findChild<QAbstractButton*>("cmdOk")->click();
    });
    ExpectPutOn();
}

TEST_F(DroppedSkinTest, OnANameBoxItIsTheWindows) {
    InConfig([this](QWidget* config) {
        auto* const box = config->findChild<QLineEdit*>("txtPlayer(1)");
        EXPECT_TRUE(GiftDrag(mine).Enter(box));
        DropOn(box);
        EXPECT_EQ(box->text(), "Player 1");
        EXPECT_EQ(config->findChild<QLabel*>("lblSkin")->text(), "A gift");
    });
}

TEST_F(DroppedSkinTest, ASkinThatIsCopiedIsPasted) {
    auto* const copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile(QString::fromStdString(mine))});
    QGuiApplication::clipboard()->setMimeData(copied);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_V, Qt::ControlModifier);
    ExpectPutOn();
}

TEST_F(DroppedSkinTest, WhileTheGameIsBusyThePointerWaitsOnAllWindows) {
    window.ShowBusy(true);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    window.ShowBusy(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(DroppedSkinTest, WhyItCannotBeTakenIsSaidInABoxOverTheWindow) {
    fs::remove(mine + "/Game/Dots.bmp");
    std::string said;
    const QWidget* over = nullptr;
    clock.In(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        said = box->text().toStdString();
        over = box->parentWidget();
        EXPECT_FALSE(GiftDrag(mine).Enter(&window));
        box->accept();
    });
    GiftDrag drag(mine);
    drag.Enter(&window);
    drag.Drop(&window);
    QApplication::setActiveWindow(nullptr);  // the giver's is another program's
    ExpectNotTaken();
    EXPECT_EQ(said, "The skin cannot be taken: " + mine +
                        ": is no whole skin:\nGame/Dots.bmp: is missing; it is a picture of 44 x "
                        "11 pixels");
    EXPECT_EQ(over, &window);
}

}  // namespace
}  // namespace quendrel::test
