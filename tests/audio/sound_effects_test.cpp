// The numbered sound effects.
#include <gtest/gtest.h>

#include "Devices.h"
#include "audio/SoundEffects.h"

namespace quendrel::test {
namespace {

class SoundEffectsTest : public ::testing::Test {
protected:
    Log log;
    RecordingSoundPlayer player{log};
    Global global;
    SoundEffects sounds{global, player};
};

TEST_F(SoundEffectsTest, LoadsTheElevenFilesInTheOrderOfTheirSlots) {
    global.SoundFolder = "/game\\Sound\\";
    sounds.Load();
    EXPECT_EQ(log.Text(),
              "open the sound device\n"
              "slot 0 is /game/Sound/BigClick.wav\n"
              "slot 1 is /game/Sound/SelectColor.wav\n"
              "slot 2 is /game/Sound/SmallClick.wav\n"
              "slot 3 is /game/Sound/ShowCode.wav\n"
              "slot 4 is /game/Sound/StartGame.wav\n"
              "slot 5 is /game/Sound/GotIt.wav\n"
              "slot 6 is /game/Sound/MediumClick.wav\n"
              "slot 7 is /game/Sound/PutColor.wav\n"
              "slot 8 is /game/Sound/Black.wav\n"
              "slot 9 is /game/Sound/White.wav\n"
              "slot 10 is /game/Sound/NoGood.wav\n");
    EXPECT_TRUE(global.SoundAvailable);
}

TEST_F(SoundEffectsTest, ADeviceThatAnswersOneOrMoreSilencesTheGame) {
    player.answer = 1;
    sounds.Load();
    sounds.PlaySoundFx(SoundSlot::kBigClick, SoundMode::kOnce);
    EXPECT_EQ(log.Text(), "open the sound device\n");
    EXPECT_FALSE(global.SoundAvailable);
}

TEST_F(SoundEffectsTest, ADeviceThatAnswersLessThanZeroIsReady) {
    player.answer = -1;
    sounds.Load();
    EXPECT_TRUE(global.SoundAvailable);
}

TEST_F(SoundEffectsTest, TheModeSaysHowASlotIsPlayed) {
    global.SoundAvailable = true;
    sounds.PlaySoundFx(SoundSlot::kPutColor, SoundMode::kOnce);
    sounds.PlaySoundFx(SoundSlot::kStartGame, SoundMode::kLooping);
    sounds.PlaySoundFx(SoundSlot::kStartGame, SoundMode::kAlone);
    sounds.PlaySoundFx(SoundSlot::kPutColor, static_cast<SoundMode>(9));
    EXPECT_EQ(log.Text(), "sound 7\nsound 4 looping\nsound 4 alone\nsound 7\n");
}

TEST_F(SoundEffectsTest, TheSettingTakesEffectAtTheNextSound) {
    global.SoundAvailable = true;
    global.Settings.SoundFx = false;
    sounds.PlaySoundFx(SoundSlot::kPutColor, SoundMode::kOnce);
    EXPECT_EQ(log.Text(), "");
    global.Settings.SoundFx = true;
    sounds.PlaySoundFx(SoundSlot::kPutColor, SoundMode::kOnce);
    EXPECT_EQ(log.Text(), "sound 7\n");
}

}  // namespace
}  // namespace quendrel::test
