// What is thrown where the toolkit calls the program: it comes out of the event pump.
#include "platform/Doors.h"

#include <csignal>
#include <memory>
#include <new>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

#include "Devices.h"
#include "TemporaryFolder.h"
#include "Thrown.h"
#include "audio/SoundEffects.h"
#include "platform/Errors.h"
#include "platform/desktop/EndSignals.h"
#include "platform/desktop/OnlyGame.h"
#include "platform/desktop/QtClock.h"
#include "platform/desktop/QtTray.h"
#include "settings/PlaylistEditor.h"
#include "settings/TuneListBox.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MouseButton.h"
#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureFile.h"
#include "ui/picture/PictureImage.h"
#include "ui/skin/MainSkin.h"
#include "ui/windows/SkinnedWindow.h"
#include "ui/windows/frmAbout.h"

namespace quendrel::test {
namespace {

constexpr const char* kWrong = "it went wrong";

class Doors : public ::testing::Test {
protected:
    Doors() {
        window.resize(200, 200);
        button.setGeometry(10, 10, 20, 20);
        target.setGeometry(50, 50, 20, 20);
        list.setGeometry(100, 100, 80, 80);
        list.ShowTunes({{"Air", "Bourree"}, 0});
        window.show();
    }

    Log log;
    ViewScale scale;
    SkinnedWindow window{"window", scale};
    ImageButton button{&window};
    ClickTarget target{&window, ClickTarget::Look::kInvisible};
    TuneListBox list{&window};
};

TEST_F(Doors, ThePressOfAButtonIsOne) {
    button.onPress = [](MouseButton) { Fail(); };
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(&button, Qt::RightButton); }), kWrong);
    EXPECT_EQ(ThrownAfter([this] { QTest::keyPress(&button, Qt::Key_Space); }), kWrong);
}

TEST_F(Doors, TheReleaseOfAButtonIsOneAndNoClickComesOfIt) {
    button.onRelease = [](MouseButton) { Fail(); };
    button.onClick = [this] { log.Add("click"); };
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(&button, Qt::LeftButton); }), kWrong);
    EXPECT_EQ(ThrownAfter([this] { QTest::keyClick(&button, Qt::Key_Space); }), kWrong);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(Doors, TheClickOfAButtonIsOne) {
    button.onClick = Fail;
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(&button, Qt::LeftButton); }), kWrong);
    EXPECT_EQ(ThrownAfter([this] { button.click(); }), kWrong);
}

TEST_F(Doors, WhatAssistiveTechnologyDoesWithAButtonIsOne) {
    button.onPress = [](MouseButton) { Fail(); };
    button.otherAction = {[] { return "Switch off"; }, Fail};
    for (const char* const deed : {"Press", "Switch off"}) {
        EXPECT_EQ(
            ThrownAfter([&] {
                QAccessible::queryAccessibleInterface(&button)->actionInterface()->doAction(deed);
            }),
            kWrong)
            << deed;
    }
}

TEST_F(Doors, ThePressTheClickAndTheDoubleClickOfATargetAreThree) {
    target.onDoubleClick = Fail;
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseDClick(&target, Qt::LeftButton); }), kWrong);
    target.onClick = Fail;
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(&target, Qt::LeftButton); }), kWrong);
    target.onClick = [] {};
    target.onPress = [](MouseButton) { Fail(); };
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(&target, Qt::LeftButton); }), kWrong);
}

TEST_F(Doors, TheWishToCloseAWindowIsOneAndTheWindowStays) {
    window.onCloseRequest = Fail;
    EXPECT_EQ(ThrownAfter([this] { window.close(); }), kWrong);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Doors, ThePressOfAListIsOneByMouseAndByKeyboard) {
    list.onPress = [](int) { Fail(); };
    EXPECT_EQ(ThrownAfter([this] { QTest::mouseClick(list.viewport(), Qt::LeftButton); }), kWrong);
    EXPECT_EQ(ThrownAfter([this] { QTest::keyClick(&list, Qt::Key_Down); }), kWrong);
}

TEST_F(Doors, ALinkIsOneAndTheEndOfTheAboutWindow) {
    const auto noLinks = [](const std::string&) -> std::int32_t { Fail(); };
    Global global;
    global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
    global.SkinNames = {"Atelier"};
    global.ShellResult = 5;
    RecordingSoundPlayer soundPlayer(log);
    SoundEffects sounds(global, soundPlayer);
    const PictureReader pictures = ReadPictureFile;
    frmAbout about(global, pictures, sounds, noLinks);
    about.onClosed = Fail;
    about.show();
    for (const char* const name : {"agifEmail", "agifHome", "cmdOk"}) {
        auto* const control = about.findChild<QWidget*>(name);
        EXPECT_EQ(ThrownAfter([=] { QTest::mouseClick(control, Qt::LeftButton); }), kWrong) << name;
    }
    about.show();
    EXPECT_EQ(ThrownAfter([&] { QTest::keyClick(&about, Qt::Key_Escape); }), kWrong);
    EXPECT_EQ(global.ShellResult, 5);
}

/// More pixels than a process has addresses.
TEST(SpareMemory, ThatDoesNotSufficeToPaintWithIsToldByTheEventPump) {
    constexpr int kSide = 6'000'000;
    QImage screen(1, 1, QImage::Format_RGB32);
    const QImage image(1, 1, QImage::Format_RGB32);
    QPainter painter(&screen);
    EXPECT_EQ(ThrownAfter([&] { PaintImage(painter, image, QRect(0, 0, kSide, kSide)); }),
              std::bad_alloc().what());
}

/// An image without a row stands for one that there is no memory for: the toolkit makes both empty.
TEST_F(Doors, APictureThatAButtonHasNoMemoryForIsToldWhereItIsPutOn) {
    ButtonPictures pictures;
    pictures.up = Picture(20, 20, 0x808080);
    button.SetPictures(pictures);
    for (Picture ButtonPictures::*const state : {&ButtonPictures::up, &ButtonPictures::disabled,
                                                 &ButtonPictures::down, &ButtonPictures::over}) {
        ButtonPictures lacking = pictures;
        lacking.*state = Picture(20, 0);
        EXPECT_THROW(button.SetPictures(lacking), std::bad_alloc);
        EXPECT_EQ(button.size(), QSize(20, 20));
    }
}

TEST(SpareMemory, ThatDoesNotSufficeForAnImageOnAGroundIsTold) {
    EXPECT_THROW(OnGround(QImage(), 0x191512), std::bad_alloc);
    QImage clear(1, 1, QImage::Format_ARGB32);
    clear.fill(qRgba(200, 100, 0, 0));
    EXPECT_EQ(OnGround(clear, 0x191512).pixel(0, 0), 0xFF191512);
}

TEST_F(Doors, TheTickOfATimerIsOne) {
    QtClock clock;
    const auto timer = clock.MakeTimer(10, Fail);
    EXPECT_EQ(ThrownAfter([&] { timer->SwitchOn(); }), kWrong);
}

TEST_F(Doors, TheMenuOfTheTrayIconIsOneAndTheEndOfTheTray) {
    QtTray tray;
    const auto resume = [] {
        for (QWidget* const widget : QApplication::allWidgets()) {
            const auto* const menu = qobject_cast<QMenu*>(widget);
            if (menu != nullptr) menu->actions().constFirst()->trigger();
        }
    };
    const auto show = [&](const std::function<void()>& back, const std::function<void()>& gone) {
        tray.Show("Quendrel", back, gone);
    };
    show(Fail, [] {});
    EXPECT_EQ(ThrownAfter(resume), kWrong);
    ASSERT_FALSE(tray.IsAvailable());
    EXPECT_EQ(ThrownAfter([&] { show([] {}, Fail); }), kWrong);
}

TEST_F(Doors, ASignalToEndIsOne) {
    const EndSignals requests(*qApp, Fail);
    EXPECT_EQ(ThrownAfter([] { ASSERT_EQ(raise(SIGTERM), 0); }), kWrong);
}

TEST_F(Doors, ASecondStartIsOneAndTheOtherGameTakesThePlaceOfTheFailedOne) {
    const TemporaryFolder folder;
    auto game = std::make_unique<OnlyGame>(folder.path(), "settings");
    ASSERT_TRUE(game->Claim());
    game->onSecondStart = []() -> bool { Fail(); };
    bool claimed = false;
    std::unique_ptr<QThread> second;
    EXPECT_EQ(ThrownAfter([&] {
                  second.reset(QThread::create([&] {
                      OnlyGame other(folder.path(), "settings");
                      claimed = other.Claim();
                  }));
                  second->start();
              }),
              kWrong);
    game.reset();
    second->wait();
    EXPECT_TRUE(claimed);
}

/// Memory may be short where the toolkit calls.
TEST_F(Doors, NothingHasToBeAllocatedToEnterOne) {
    const std::string longText(100, 'x');
    const auto deed = [this, longText] { log.Add(longText); };
    EXPECT_TRUE(noexcept(AtDoor(deed)));
    AtDoor(deed);
    EXPECT_EQ(log.Text(), longText + "\n");
}

TEST_F(Doors, TheEndOfTheProgramComesOutToo) {
    QtClock clock;
    button.onClick = [] { throw ProgramEnded{}; };
    button.click();
    EXPECT_THROW(clock.PumpEvents(0), ProgramEnded);
}

TEST_F(Doors, AllAreShutUntilWhatWasThrownIsOut) {
    target.onClick = Fail;
    button.onClick = [this] { log.Add("click"); };
    EXPECT_EQ(ThrownAfter([this] {
                  QTest::mouseClick(&target, Qt::LeftButton);
                  QTest::mouseClick(&button, Qt::LeftButton);
                  button.onPress = [](MouseButton) { throw std::runtime_error("another"); };
                  QTest::mousePress(&button, Qt::LeftButton);
              }),
              kWrong);
    EXPECT_EQ(log.Text(), "");
    button.onPress = [](MouseButton) {};
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(log.Text(), "click\n");
}

}  // namespace
}  // namespace quendrel::test
