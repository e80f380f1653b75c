// The sound device's rest, on a device that obeys at once or slowly, under the virtual clock.
#include <gtest/gtest.h>

#include "Log.h"
#include "VirtualClock.h"
#include "platform/SoundDevice.h"
#include "platform/SoundRest.h"

namespace quendrel::test {
namespace {

using namespace std::chrono_literals;

class ScriptedDevice : public SoundDevice {
public:
    explicit ScriptedDevice(Log& log) : log_(log) {}

    /// How long it takes to open; nobody waits for it but IsOpen.
    std::chrono::milliseconds takes = 0ms;
    bool isThere = true;
    bool isInUse = false;

    void Open() override {
        log_.Add("open");
        isOpen_ = isThere;
    }
    void Close() override {
        log_.Add("close");
        isOpen_ = false;
    }
    bool IsOpen(std::chrono::milliseconds atMost) const override {
        return isOpen_ && takes <= atMost;
    }
    bool IsLost() override { return !isThere; }
    bool IsInUse() const override { return isInUse; }

private:
    Log& log_;
    bool isOpen_ = false;
};

class SoundRestTest : public ::testing::Test {
protected:
    void Wait(int milliseconds) {
        const std::int64_t end = clock.Now() + milliseconds;
        while (clock.Now() < end) clock.PumpEvents(static_cast<int>(end - clock.Now()));
    }

    /// The player does something four times a second.
    void PlayFor(int seconds) {
        for (int i = 0; i < 4 * seconds; ++i) {
            Wait(250);
            rest.Wake();
        }
    }

    Log log;
    VirtualClock clock{log};
    ScriptedDevice device{log};
    SoundRest rest{clock, device};
};

TEST_F(SoundRestTest, NothingIsOpenedBeforeItIsWoken) {
    Wait(60000);
    EXPECT_EQ(log.Text(), "wait 60000\n");
}

TEST_F(SoundRestTest, TheDeviceIsClosedAfterTenSecondsAndNothingTicksAnyMore) {
    rest.Wake();
    EXPECT_TRUE(clock.IsOn(0));
    Wait(60000);
    EXPECT_EQ(log.Text(), "open\nwait 10000\nclose\nwait 50000\n");
    EXPECT_FALSE(clock.IsOn(0));
}

TEST_F(SoundRestTest, WhatThePlayerDoesLetsTenSecondsBegin) {
    rest.Wake();
    PlayFor(25);
    Wait(60000);
    EXPECT_EQ(log.Text(), "open\nwait 35000\nclose\nwait 50000\n");
}

TEST_F(SoundRestTest, ADeviceInUseStaysOpenAndRestsTenSecondsAfterwards) {
    rest.Wake();
    device.isInUse = true;
    Wait(600000);
    device.isInUse = false;
    Wait(60000);
    EXPECT_EQ(log.Text(), "open\nwait 610000\nclose\nwait 50000\n");
}

TEST_F(SoundRestTest, AGapBetweenTwoTunesIsNoRest) {
    rest.Wake();
    for (int tune = 0; tune < 5; ++tune) {
        device.isInUse = true;
        Wait(20000);
        device.isInUse = false;
        Wait(8000);
    }
    EXPECT_EQ(log.Text(), "open\nwait 140000\n");
}

TEST_F(SoundRestTest, AfterARestTheNextWakeOpensTheDevice) {
    rest.Wake();
    Wait(20000);
    rest.Wake();
    EXPECT_EQ(log.Text(), "open\nwait 10000\nclose\nwait 10000\nopen\n");
}

TEST_F(SoundRestTest, ASoundFindsTheRestingDeviceOpen) {
    EXPECT_TRUE(rest.IsAwake());
    Wait(20000);
    EXPECT_TRUE(rest.IsAwake());
    EXPECT_EQ(log.Text(), "open\nwait 10000\nclose\nwait 10000\nopen\n");
}

TEST_F(SoundRestTest, ASlowDeviceIsWaitedForAsLongAsASoundMayBeLate) {
    device.takes = 50ms;
    EXPECT_TRUE(rest.IsAwake());
    device.takes = 51ms;
    EXPECT_FALSE(rest.IsAwake());
}

TEST_F(SoundRestTest, AMissingDeviceIsLookedForOnceInTenSecondsAndOnlyWhileThePlayerDoesSomething) {
    device.isThere = false;
    PlayFor(12);
    EXPECT_FALSE(rest.IsAwake());
    Wait(60000);
    EXPECT_EQ(log.Text(),
              "wait 250\nopen\nwait 10000\nclose\nopen\nwait 10000\nclose\nwait 51750\n");
}

TEST_F(SoundRestTest, AMissingDeviceThatComesIsFound) {
    device.isThere = false;
    EXPECT_FALSE(rest.IsAwake());
    device.isThere = true;
    PlayFor(11);
    EXPECT_TRUE(rest.IsAwake());
}

TEST_F(SoundRestTest, ALostDeviceIsClosedWithinASecondAndTheNextWakeOpensAnother) {
    rest.Wake();
    device.isInUse = true;
    Wait(5500);
    device.isThere = false;
    Wait(60000);
    device.isThere = true;
    EXPECT_TRUE(rest.IsAwake());
    EXPECT_EQ(log.Text(), "open\nwait 6000\nclose\nwait 59500\nopen\n");
}

TEST_F(SoundRestTest, ItIsSaidWithinASecondThatTheDeviceIsOpenAndBeforeItIsClosed) {
    rest.onOpen = [this] { log.Add("is open"); };
    rest.onClose = [this] { log.Add("is about to close"); };
    device.takes = 1ms;
    rest.Wake();
    Wait(1000);
    EXPECT_EQ(log.Text(), "open\nwait 1000\n");
    device.takes = 0ms;
    Wait(1000);
    EXPECT_EQ(log.Text(), "open\nwait 2000\nis open\n");
    Wait(7000);
    log.Clear();
    Wait(1000);
    EXPECT_EQ(log.Text(), "wait 1000\nis open\nis about to close\nclose\n");
}

}  // namespace
}  // namespace quendrel::test
