// The music: what the device is told, in order, and which tune comes next.
#include "audio/Music.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "Devices.h"
#include "TemporaryFolder.h"
#include "VirtualClock.h"
#include "audio/Pause.h"
#include "audio/Playlist.h"

namespace quendrel::test {
namespace {

class MusicTest : public ::testing::Test {
protected:
    MusicTest() {
        global.SoundAvailable = true;
        global.MusicFolder = "/game\\Music\\";
    }

    /// A list of the tunes "A", "B", ...
    void List(int tunes) {
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(tunes));
        for (int i = 0; i < tunes; ++i) names.emplace_back(1, static_cast<char>('A' + i));
        SetPlaylist(global, names);
    }

    void Play(int tunes) {
        List(tunes);
        music.MusicCommand("Play");
        log.Clear();
    }

    /// The tune is found playing by a check, and then sounds to its end.
    void EndTune() {
        music.MusicCommand("Check");
        mmcMidi.mode = MidiMode::kStopped;
        music.MusicCommand("Check");
    }

    char Current() const { return static_cast<char>('A' + global.MusicState.Current); }

    /// The current tune and those that follow it.
    std::string Tunes(int count) {
        std::string tunes;
        for (int i = 0; i < count; ++i, EndTune()) tunes += Current();
        return tunes;
    }

    Log log;
    VirtualClock clock{log};
    ScriptedRandom random{log};
    RecordingMidiDevice mmcMidi{log};
    Global global;
    Music music{global, mmcMidi, random, clock};
};

TEST_F(MusicTest, PlayStartsTheFirstTune) {
    List(3);
    music.MusicCommand("Play");
    EXPECT_EQ(log.Text(),
              "seed\n"
              "midi: close\n"
              "midi: /game/Music/A.mid\n"
              "midi: open\n"
              "midi: play\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
    EXPECT_EQ(global.MusicState.Current, 0);
}

TEST_F(MusicTest, AnEmptyListPlaysNothing) {
    music.MusicCommand("Play");
    Pause(clock, 5000, true);
    EXPECT_EQ(log.Text(), "seed\nwait 5000\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, WithoutASoundDeviceNoCommandDoesAnything) {
    List(3);
    global.SoundAvailable = false;
    for (const char* command : {"Play", "Check", "Pause", "Stop"}) music.MusicCommand(command);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, AnyOtherWordOnlySeedsTheGenerator) {
    Play(3);
    for (const char* word : {"play", "STOP", "", "Resume"}) music.MusicCommand(word);
    EXPECT_EQ(log.Text(), "seed\nseed\nseed\nseed\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, TheTimerLooksEveryHalfSecondAndLeavesAPlayingTuneAlone) {
    Play(3);
    Pause(clock, 1700, true);
    EXPECT_EQ(log.Text(), "wait 500\nseed\nwait 500\nseed\nwait 500\nseed\nwait 200\n");
}

TEST_F(MusicTest, AnEndedTuneIsFollowedByTheNextAtTheNextLook) {
    Play(3);
    Pause(clock, 600, true);
    mmcMidi.mode = MidiMode::kStopped;
    log.Clear();
    Pause(clock, 500, true);
    EXPECT_EQ(log.Text(),
              "wait 400\n"
              "seed\n"
              "midi: close\n"
              "midi: /game/Music/B.mid\n"
              "midi: open\n"
              "midi: play\n"
              "wait 100\n");
}

TEST_F(MusicTest, InOrderTheListBeginsAgainAfterItsLastTune) {
    Play(3);
    EXPECT_EQ(Tunes(7), "ABCABCA");
}

TEST_F(MusicTest, AListOfOneTuneRepeatsIt) {
    Play(1);
    EXPECT_EQ(Tunes(3), "AAA");
    global.Settings.RndMusic = true;
    Play(1);
    EXPECT_EQ(Tunes(3), "AAA");
}

TEST_F(MusicTest, PauseHoldsTheTuneAndPauseAgainLetsItGoOn) {
    Play(3);
    music.MusicCommand("Pause");
    EXPECT_EQ(log.Text(), "seed\nmidi: pause\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPaused);
    EXPECT_TRUE(global.MusicState.Paused);
    log.Clear();
    music.MusicCommand("Pause");
    EXPECT_EQ(log.Text(), "seed\nmidi: open\nmidi: play\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
    EXPECT_FALSE(global.MusicState.Paused);
}

TEST_F(MusicTest, ALookLeavesAPausedTuneAlone) {
    Play(3);
    music.MusicCommand("Pause");
    log.Clear();
    Pause(clock, 1200, true);
    EXPECT_EQ(log.Text(), "wait 500\nseed\nwait 500\nseed\nwait 200\n");
    EXPECT_EQ(Current(), 'A');
}

TEST_F(MusicTest, PausedBetweenTwoTunesTheMusicStaysSilentUntilItGoesOn) {
    Play(3);
    mmcMidi.mode = MidiMode::kStopped;
    music.MusicCommand("Pause");
    mmcMidi.mode = MidiMode::kStopped;
    log.Clear();
    Pause(clock, 2000, true);
    EXPECT_EQ(log.Text(), "wait 500\nseed\nwait 500\nseed\nwait 500\nseed\nwait 500\nseed\n");
    EXPECT_EQ(Current(), 'A');
    music.MusicCommand("Pause");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, ATuneThatStartsIsNoLongerPaused) {
    Play(3);
    music.MusicCommand("Pause");
    music.MusicCommand("Play");
    EXPECT_FALSE(global.MusicState.Paused);
    EndTune();
    EXPECT_EQ(Current(), 'B');
}

TEST_F(MusicTest, PausingStoppedMusicDoesNothing) {
    List(3);
    music.MusicCommand("Pause");
    music.MusicCommand("Pause");
    EXPECT_EQ(log.Text(), "seed\nseed\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    EXPECT_FALSE(global.MusicState.Paused);
}

TEST_F(MusicTest, StopEndsTheTuneAndTheLooking) {
    Play(3);
    music.MusicCommand("Stop");
    Pause(clock, 2000, true);
    EXPECT_EQ(log.Text(), "seed\nmidi: stop\nmidi: close\nwait 2000\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, PausedMusicCanBeStopped) {
    Play(3);
    music.MusicCommand("Pause");
    log.Clear();
    music.MusicCommand("Stop");
    EXPECT_EQ(log.Text(), "seed\nmidi: stop\nmidi: close\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, PausedMusicThatWasStoppedStaysStopped) {
    Play(3);
    music.MusicCommand("Pause");
    music.MusicCommand("Stop");
    log.Clear();
    music.MusicCommand("Pause");
    EXPECT_EQ(log.Text(), "seed\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, PlayStartsAgainAtTheFirstTune) {
    Play(3);
    EndTune();
    EXPECT_EQ(Current(), 'B');
    music.MusicCommand("Play");
    EXPECT_EQ(Current(), 'A');
}

TEST_F(MusicTest, ATuneThatCannotBeOpenedIsPassedOverAtTheNextLook) {
    mmcMidi.damaged = {"/game/Music/B.mid"};
    Play(3);
    EndTune();
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 600, true);
    EXPECT_EQ(Current(), 'C');
    EXPECT_EQ(mmcMidi.mode, MidiMode::kPlaying);
}

TEST_F(MusicTest, ATuneThatIsOverAtOnceIsPassedOverToo) {
    Play(2);
    mmcMidi.mode = MidiMode::kStopped;
    Pause(clock, 500, true);
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 5000, true);
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, AListInWhichNothingOpensIsTriedOnceRoundAndThenStopped) {
    mmcMidi.damaged = {"/game/Music/A.mid", "/game/Music/B.mid"};
    List(2);
    music.MusicCommand("Play");
    Pause(clock, 5000, true);
    EXPECT_EQ(log.Text(),
              "seed\n"
              "midi: close\nmidi: /game/Music/A.mid\nmidi: open\nmidi: play\n"
              "wait 500\n"
              "seed\n"
              "midi: close\nmidi: /game/Music/B.mid\nmidi: open\nmidi: play\n"
              "wait 500\n"
              "seed\n"
              "midi: stop\nmidi: close\n"
              "wait 4000\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, ShuffledTooNothingSpinsWhereNothingOpens) {
    global.Settings.RndMusic = true;
    mmcMidi.damaged = {"/game/Music/A.mid", "/game/Music/B.mid", "/game/Music/C.mid"};
    random.script = {0.9, 0.9, 0.1, 0.5};  // C, C again, A, B
    Play(3);
    Pause(clock, 1400, true);
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
    Pause(clock, 200, true);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, TheOneTuneThatOpensIsFoundAcrossTheBordersOfCycles) {
    global.Settings.RndMusic = true;
    mmcMidi.damaged = {"/game/Music/B.mid"};
    random.script = {0.1, 0.9, 0.9, 0.1};  // A B, B A
    Play(2);
    EndTune();
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 600, true);
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 500, true);
    EXPECT_EQ(Current(), 'A');
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, WhatWasRemovedWhilePlayingEndsInSilence) {
    Play(2);
    Pause(clock, 600, true);
    mmcMidi.damaged = {"/game/Music/A.mid", "/game/Music/B.mid"};
    mmcMidi.mode = MidiMode::kStopped;
    Pause(clock, 3000, true);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, PlayTriesEveryTuneAgainThatWasNotHeardBefore) {
    mmcMidi.damaged = {"/game/Music/A.mid", "/game/Music/B.mid"};
    Play(2);
    Pause(clock, 1100, true);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    mmcMidi.damaged = {"/game/Music/A.mid"};
    Play(2);
    Pause(clock, 600, true);
    EXPECT_EQ(Current(), 'B');
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, ATuneThatIsHeardEndsTheCountOfThoseThatWereNot) {
    mmcMidi.damaged = {"/game/Music/A.mid"};
    Play(2);
    Pause(clock, 1100, true);
    EXPECT_EQ(Current(), 'B');
    mmcMidi.damaged = {"/game/Music/B.mid"};
    EndTune();
    EndTune();
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 600, true);
    EXPECT_EQ(Current(), 'A');
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(MusicTest, ATuneThatIsNotHeardIsCountedAfterOneThatWas) {
    Play(3);
    mmcMidi.damaged = {"/game/Music/A.mid", "/game/Music/B.mid", "/game/Music/C.mid"};
    EndTune();
    EXPECT_EQ(Current(), 'B');
    Pause(clock, 1100, true);
    EXPECT_EQ(Current(), 'A');
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
    Pause(clock, 500, true);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(MusicTest, PlayBeginsANewCycleInTheMiddleOfOne) {
    global.Settings.RndMusic = true;
    random.script = {0.1, 0.5};  // A B
    Play(3);
    EndTune();
    EXPECT_EQ(Current(), 'B');
    //               B    | B    A    | A    C    | C (a new cycle)
    random.script = {0.5, 0.5, 0.1, 0.1, 0.9, 0.9};
    Play(3);
    EXPECT_EQ(Tunes(3), "BAC");
    EXPECT_EQ(Current(), 'C');
    EXPECT_EQ(global.MusicState.PlayedCount, 0);
    EXPECT_TRUE(random.script.empty());
}

TEST_F(MusicTest, ALongerListIsShuffledWhole) {
    global.Settings.RndMusic = true;
    random.script = {0.1};
    Play(2);
    //               A    | D    | C    | B
    random.script = {0.1, 0.9, 0.6, 0.3};
    Play(4);
    EXPECT_EQ(Tunes(4), "ADCB");
}

TEST_F(MusicTest, AShuffledStartDrawsAmongAllTunes) {
    global.Settings.RndMusic = true;
    List(8);
    for (const auto& [drawn, tune] : {std::pair{0.0, 'A'},
                                      {0.124, 'A'},
                                      {0.125, 'B'},
                                      {0.5, 'E'},
                                      {0.874, 'G'},
                                      {0.875, 'H'},
                                      {0.999, 'H'}}) {
        random.script = {drawn};
        music.MusicCommand("Play");
        EXPECT_EQ(Current(), tune) << drawn;
        EXPECT_EQ(global.MusicState.PlayedCount, 0);
        EXPECT_EQ(global.MusicState.Played.size(), 8U);
        EXPECT_EQ(global.MusicState.Played.front(), tune - 'A');
    }
}

TEST_F(MusicTest, ACycleDrawsUntilTheTuneIsNewAndTheNextOneDrawsOnce) {
    global.Settings.RndMusic = true;
    //               A    | A    C    | C    A    B  | B (a new cycle)
    random.script = {0.1, 0.2, 0.7, 0.8, 0.0, 0.4, 0.5};
    Play(3);
    EXPECT_EQ(Tunes(3), "ACB");
    EXPECT_EQ(Current(), 'B');
    EXPECT_EQ(global.MusicState.PlayedCount, 0);
    EXPECT_TRUE(random.script.empty());
}

/// A generator as good as the game's, the same every time.
class SeededRandom : public Random {
public:
    void SeedFromClock() override {}
    double Next() override { return std::uniform_real_distribution<double>()(generator_); }

private:
    std::mt19937 generator_{20};
};

TEST(Shuffle, EveryOfTenThousandCyclesPlaysEveryTuneOnceAndMayBeginWithTheLast) {
    // A file that is there is found without a look at the whole folder.
    const TemporaryFolder folder;
    folder.Write("tune.mid", "");
    for (const int tunes : {1, 2, 3, 8}) {
        Log log;
        VirtualClock clock{log};
        SeededRandom random;
        RecordingMidiDevice mmcMidi{log};
        Global global;
        Music music{global, mmcMidi, random, clock};
        global.MusicFolder = folder.path() + "\\";
        global.SoundAvailable = true;
        global.Settings.RndMusic = true;
        SetPlaylist(global, std::vector<std::string>(static_cast<std::size_t>(tunes), "tune"));

        music.MusicCommand("Play");
        int repeats = 0;
        int previous = -1;
        for (int cycle = 0; cycle < 10000; ++cycle) {
            std::vector<int> played(static_cast<std::size_t>(tunes));
            for (int i = 0; i < tunes; ++i) {
                const int current = global.MusicState.Current;
                ++played.at(static_cast<std::size_t>(current));
                if (i == 0 && current == previous) ++repeats;
                previous = current;
                music.MusicCommand("Check");
                mmcMidi.mode = MidiMode::kStopped;
                music.MusicCommand("Check");
            }
            ASSERT_EQ(std::count(played.begin(), played.end(), 1), tunes) << "cycle " << cycle;
            log.Clear();
        }
        // Each tune is as likely as any other to begin a cycle, the last one too.
        EXPECT_NEAR(repeats, 10000.0 / tunes, 200) << tunes << " tunes";
    }
}

TEST(Shuffle, TheLongestListIsShuffledWithoutANoticeableWait) {
    Log log;
    VirtualClock clock{log};
    SeededRandom random;
    RecordingMidiDevice mmcMidi{log};
    Global global;
    Music music{global, mmcMidi, random, clock};
    global.SoundAvailable = true;
    global.Settings.RndMusic = true;
    SetPlaylist(global, std::vector<std::string>(32768, "tune"));
    music.MusicCommand("Play");

    // As if all tunes but the one of index 1234 had been played.
    MusicStateRecord& state = global.MusicState;
    for (std::size_t i = 0; i < state.Played.size(); ++i) {
        state.Played[i] = static_cast<std::int16_t>(i == 1234 ? 0 : i);
    }
    state.PlayedCount = 32766;
    mmcMidi.mode = MidiMode::kStopped;
    music.MusicCommand("Check");
    EXPECT_EQ(state.Current, 1234);
    EXPECT_EQ(state.PlayedCount, 32767);
}

TEST_F(MusicTest, APreviewStopsTheMusicAndPlaysTheTune) {
    Play(3);
    music.Listen("Other");
    EXPECT_EQ(log.Text(),
              "seed\nmidi: stop\nmidi: close\n"
              "midi: /game/Music/Other.mid\nmidi: open\nmidi: play\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    EXPECT_EQ(mmcMidi.mode, MidiMode::kPlaying);
}

TEST_F(MusicTest, APreviewReplacesAnother) {
    music.Listen("One");
    log.Clear();
    music.Listen("Two");
    EXPECT_EQ(log.Text(), "midi: close\nmidi: /game/Music/Two.mid\nmidi: open\nmidi: play\n");
}

TEST_F(MusicTest, WithoutATuneTheLastOneIsPlayedAgain) {
    music.Listen("One");
    log.Clear();
    music.Listen(std::nullopt);
    EXPECT_EQ(log.Text(), "midi: close\nmidi: open\nmidi: play\n");
    EXPECT_EQ(mmcMidi.mode, MidiMode::kPlaying);
}

TEST_F(MusicTest, NothingFollowsAPreview) {
    Play(3);
    music.Listen("Other");
    mmcMidi.mode = MidiMode::kStopped;
    log.Clear();
    Pause(clock, 5000, true);
    EXPECT_EQ(log.Text(), "wait 5000\n");
}

TEST_F(MusicTest, APreviewIsEndedButNotMusic) {
    Play(3);
    EXPECT_FALSE(music.EndListening());
    EXPECT_EQ(log.Text(), "");
    music.Listen("Other");
    log.Clear();
    EXPECT_TRUE(music.EndListening());
    EXPECT_EQ(log.Text(), "midi: stop\nmidi: close\n");
    EXPECT_FALSE(music.EndListening());
}

}  // namespace
}  // namespace quendrel::test
