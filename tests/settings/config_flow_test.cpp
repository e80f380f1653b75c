// The configuration window's working copy: what it holds, takes over, throws away and restores.
#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "ConfigFixture.h"
#include "audio/Playlist.h"
#include "platform/Errors.h"
#include "settings/ConfigFlow.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/ConfigControls.h"

namespace quendrel::test {
namespace {

using Names = std::vector<std::string>;
using enum Switch;

class RecordingConfigView : public ConfigView {
public:
    explicit RecordingConfigView(Log& log) : log_(log) {}

    /// The skin that is damaged.
    int damaged = 0;
    bool closed = false;
    /// What the window was asked to show, as `look` found it then.
    std::string shown;
    std::function<std::string()> look;

    void LoadConfigSkin(int skin) override {
        log_.Add("skin " + std::to_string(skin));
        if (skin == damaged) throw FileError("/skin/Config.bmp", "No such file or directory");
    }
    void PreviewSkin(int skin) override { LoadConfigSkin(skin); }
    void SwitchHelp(bool on) override { log_.Add(on ? "own help on" : "own help off"); }
    void ShowAll() override { shown = look(); }
    void CloseWindow() override {
        closed = true;
        log_.Add("close");
    }

private:
    Log& log_;
};

class ConfigFlowTest : public ConfigFixture {
protected:
    ConfigFlowTest() {
        global.SoundAvailable = true;
        global.AppFolder = folder.path() + "\\";
        global.MusicFolder = folder.path() + "\\Music\\";
        global.SkinNames = {"Atelier", "Beacon", "Carbon"};
        std::filesystem::create_directories(folder.path() + "/Music");
        for (const char* file : {"A.mid", "B.mid", "C.mid"}) {
            folder.Write("Music/" + std::string(file), "x");
        }
        SetPlaylist(global, {"A", "B"});
        view.look = [this] { return WorkingCopy(); };
    }

    /// In every test, the window must show the working copy as it is at the end.
    void TearDown() override {
        if (view.shown.empty()) return;
        EXPECT_EQ(view.shown, WorkingCopy());
    }

    /// Without the players' names, which are typed into their boxes.
    std::string WorkingCopy() const {
        std::string text = config.SkinName() + ", rounds " + std::to_string(config.BestOf());
        for (const SwitchDesign& design : kConfigSwitches) {
            if (config.IsOn(design.which)) text += ", " + std::string(design.name);
        }
        for (const TuneList* list :
             {&config.playlist().FileList(), &config.playlist().PlayList()}) {
            text += "; tunes";
            for (const std::string& tune : list->items) text += ' ' + tune;
            text += ", selected " + std::to_string(list->selected);
        }
        return text;
    }

    void Open() {
        config.Load();
        log.Clear();
    }

    /// Music plays, is paused, or a preview sounds while it is stopped.
    void PlayMusic() { music.MusicCommand("Play"); }
    void Preview() { music.Listen("C"); }

    std::string Tune(const std::string& name) const {
        return "midi: close\nmidi: " + folder.path() + "/Music/" + name +
               ".mid\nmidi: open\nmidi: play\n";
    }

    RecordingConfigView view{log};
    ConfigFlow config{global, mainView, duel, sounds, music, view};
};

// Loading

TEST_F(ConfigFlowTest, LoadsTheSkinInUseAndThenItsOwnHelp) {
    global.Settings.SkinPtr = 2;
    config.Load();
    EXPECT_EQ(log.Text(), "skin 2\nown help on\n");
    EXPECT_EQ(config.SkinName(), "Beacon");
}

TEST_F(ConfigFlowTest, OpensWithoutItsHelpWhereThatIsOff) {
    global.Settings.ToolTips = false;
    config.Load();
    EXPECT_EQ(log.Text(), "skin 1\nown help off\n");
}

TEST_F(ConfigFlowTest, HoldsEverySwitchAsItIsSet) {
    SettingsRecord& settings = global.Settings;
    const std::vector<std::pair<Switch, bool SettingsRecord::*>> table{
        {chkToolTips, &SettingsRecord::ToolTips}, {chkSoundFx, &SettingsRecord::SoundFx},
        {chkMusic, &SettingsRecord::Music},       {chkRndMusic, &SettingsRecord::RndMusic},
        {chkSetColor, &SettingsRecord::SetColor}, {chkGTimer, &SettingsRecord::GTimer},
        {chkRndSkin, &SettingsRecord::RndSkin},   {chkPrvSkin, &SettingsRecord::PrvSkin},
        {chkMindDuel, &SettingsRecord::MindDuel}};
    for (const auto& [which, field] : table) {
        for (const auto& [other, otherField] : table) settings.*otherField = false;
        settings.*field = true;
        config.Load();
        for (const auto& [other, otherField] : table) {
            EXPECT_EQ(config.IsOn(other), other == which);
        }
    }
}

TEST_F(ConfigFlowTest, HoldsNamesRoundsAndBothLists) {
    global.Settings.PlayerNames[1] = "Ada";
    global.Settings.PlayerNames[2] = "Bob";
    global.Settings.BestOf = 7;
    Open();
    EXPECT_EQ(config.PlayerName(1), "Ada");
    EXPECT_EQ(config.PlayerName(2), "Bob");
    EXPECT_EQ(config.BestOf(), 7);
    EXPECT_EQ(config.playlist().FileList().items, (Names{"A", "B", "C"}));
    EXPECT_EQ(config.playlist().FileList().selected, 0);
    EXPECT_EQ(config.playlist().PlayList().items, (Names{"A", "B"}));
}

TEST_F(ConfigFlowTest, LocksClockAndDuelDuringARound) {
    Open();
    for (const Switch which : {chkGTimer, chkMindDuel}) EXPECT_FALSE(config.IsLocked(which));
    global.Settings.GameInProgress = true;
    for (const Switch which : {chkGTimer, chkMindDuel}) EXPECT_TRUE(config.IsLocked(which));
    for (const Switch which :
         {chkToolTips, chkSoundFx, chkMusic, chkRndMusic, chkSetColor, chkRndSkin, chkPrvSkin}) {
        EXPECT_FALSE(config.IsLocked(which));
    }
}

TEST_F(ConfigFlowTest, ADamagedSkinInUseKeepsTheWindowFromOpening) {
    view.damaged = 1;
    EXPECT_THROW(config.Load(), FileError);
}

// Sounds

TEST_F(ConfigFlowTest, SmallButtonsClickSmallAndLargeOnesLouderForTheLeftMouseButtonOnly) {
    Open();
    for (const MouseButton button :
         {MouseButton::kLeft, MouseButton::kRight, MouseButton::kOther}) {
        config.PressSwitch(button);
        config.PressLargeButton(button);
        config.PressBestOf(2, button);
        config.PressSkin(2, button);
    }
    EXPECT_EQ(log.Text(), "sound 2\nsound 6\nsound 2\nsound 2\n");
    EXPECT_EQ(config.BestOf(), 6);
    EXPECT_EQ(config.SkinName(), "Beacon");
}

// Switches

TEST_F(ConfigFlowTest, ASwitchedHelpIsTriedOutInTheWindowItself) {
    Open();
    config.ClickSwitch(chkToolTips);
    config.ClickSwitch(chkToolTips);
    EXPECT_EQ(log.Text(), "own help off\nown help on\n");
}

TEST_F(ConfigFlowTest, SwitchingChangesTheWorkingCopyOnly) {
    Open();
    for (const Switch which : {chkToolTips, chkSoundFx, chkMusic, chkRndMusic, chkSetColor,
                               chkGTimer, chkRndSkin, chkPrvSkin, chkMindDuel}) {
        const bool before = config.IsOn(which);
        config.ClickSwitch(which);
        EXPECT_NE(config.IsOn(which), before);
    }
    EXPECT_TRUE(global.Settings.ToolTips);
    EXPECT_TRUE(global.Settings.SoundFx);
    EXPECT_TRUE(global.Settings.Music);
    EXPECT_FALSE(global.Settings.RndMusic);
    EXPECT_FALSE(global.Settings.SetColor);
    EXPECT_FALSE(global.Settings.GTimer);
    EXPECT_FALSE(global.Settings.RndSkin);
    EXPECT_FALSE(global.Settings.PrvSkin);
    EXPECT_FALSE(global.Settings.MindDuel);
}

// Rounds

TEST_F(ConfigFlowTest, TheRoundsAndTheSkinAreSaidAsTheyChange) {
    Open();
    config.PressBestOf(2, MouseButton::kLeft);
    config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(mainView.said, "Rounds: 6\nSkin: Beacon\n");
}

TEST_F(ConfigFlowTest, RoundsRunFromOneToTen) {
    Open();
    for (int i = 0; i < 9; ++i) config.PressBestOf(2, MouseButton::kLeft);
    EXPECT_EQ(config.BestOf(), 10);
    for (int i = 0; i < 20; ++i) config.PressBestOf(1, MouseButton::kLeft);
    EXPECT_EQ(config.BestOf(), 1);
}

TEST_F(ConfigFlowTest, ARunningMatchIsNotMadeShorterThanItsRound) {
    global.Settings.Round = 3;
    Open();
    for (int i = 0; i < 9; ++i) config.PressBestOf(1, MouseButton::kLeft);
    EXPECT_EQ(config.BestOf(), 4);
}

TEST_F(ConfigFlowTest, RoundsBeyondTheirLimitsAreLeftAlone) {
    global.Settings.BestOf = 12;
    Open();
    config.PressBestOf(2, MouseButton::kLeft);
    EXPECT_EQ(config.BestOf(), 12);
    global.Settings.BestOf = 3;
    global.Settings.Round = 5;
    config.Load();
    config.PressBestOf(1, MouseButton::kLeft);
    EXPECT_EQ(config.BestOf(), 3);
}

// Skins

TEST_F(ConfigFlowTest, BrowsingStopsAtBothEndsOfTheList) {
    Open();
    config.PressSkin(1, MouseButton::kLeft);
    EXPECT_EQ(config.SkinName(), "Atelier");
    for (int i = 0; i < 5; ++i) config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(config.SkinName(), "Carbon");
    config.PressSkin(1, MouseButton::kLeft);
    EXPECT_EQ(config.SkinName(), "Beacon");
}

TEST_F(ConfigFlowTest, WithOneSkinBrowsingDoesNothing) {
    global.SkinNames = {"Atelier"};
    Open();
    config.PressSkin(1, MouseButton::kLeft);
    config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(), "sound 2\nsound 2\n");
    EXPECT_EQ(config.SkinName(), "Atelier");
}

TEST_F(ConfigFlowTest, WithoutPreviewBrowsingChangesTheNameOnly) {
    Open();
    config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(), "sound 2\n");
    config.ClickOk();
    EXPECT_EQ(global.Settings.SkinPtr, 2);
}

TEST_F(ConfigFlowTest, WithPreviewBrowsingPutsTheSkinOnTheWindow) {
    global.Settings.PrvSkin = true;
    Open();
    config.PressSkin(2, MouseButton::kLeft);
    config.PressSkin(2, MouseButton::kLeft);
    config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(), "sound 2\nskin 2\nsound 2\nskin 3\nsound 2\n");
    EXPECT_EQ(global.Settings.SkinPtr, 1);
}

TEST_F(ConfigFlowTest, ThePreviewSwitchPutsTheBrowsedSkinOnWhicheverWayItGoes) {
    Open();
    config.PressSkin(2, MouseButton::kLeft);
    config.ClickSwitch(chkPrvSkin);
    config.ClickSwitch(chkPrvSkin);
    EXPECT_EQ(log.Text(), "sound 2\nskin 2\nskin 2\n");
}

TEST_F(ConfigFlowTest, ASkinThatStandsInIsStoredOnceThePlayerChoosesIt) {
    global.StoredSkinPtr = 3;
    Open();
    config.ClickOk();
    EXPECT_EQ(global.StoredSkinPtr, 3);
    config.PressSkin(2, MouseButton::kLeft);
    config.PressSkin(1, MouseButton::kLeft);
    config.ClickCancel();
    EXPECT_EQ(global.StoredSkinPtr, 3);
    config.ClickOk();
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_EQ(global.StoredSkinPtr, std::nullopt);
}

TEST_F(ConfigFlowTest, ASkinThatStandsInIsStoredWithTheDefaults) {
    global.StoredSkinPtr = 3;
    Open();
    config.ClickDefault();
    config.ClickOk();
    EXPECT_EQ(global.StoredSkinPtr, std::nullopt);
}

TEST_F(ConfigFlowTest, AnotherSkinThanTheOneThatStandsInIsNotYetStored) {
    global.StoredSkinPtr = 3;
    Open();
    config.PressSkin(2, MouseButton::kLeft);
    config.ClickOk();
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_EQ(global.StoredSkinPtr, 3);
}

TEST_F(ConfigFlowTest, ADamagedSkinIsNamedButNotShown) {
    global.Settings.PrvSkin = true;
    view.damaged = 2;
    Open();
    config.PressSkin(2, MouseButton::kLeft);
    EXPECT_EQ(log.Text(),
              "sound 2\nskin 2\ntrouble: /skin/Config.bmp: No such file or directory\n");
    EXPECT_EQ(config.SkinName(), "Beacon");
    EXPECT_FALSE(view.closed);
}

// Ok

TEST_F(ConfigFlowTest, OkTakesEverythingOverInOrder) {
    Open();
    for (const Switch which :
         {chkToolTips, chkSoundFx, chkRndMusic, chkSetColor, chkGTimer, chkRndSkin, chkMindDuel}) {
        config.ClickSwitch(which);
    }
    config.PressSkin(2, MouseButton::kLeft);
    config.PressBestOf(2, MouseButton::kLeft);
    config.EditPlayer(1, "Ada");
    config.EditPlayer(2, "");
    config.EditPlaylist([](PlaylistEditor& list) { list.PressAddAll(); });
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(),
              "help off\n"
              "lblGTimer at 0,0 disabled\n"
              "seed\n" +
                  Tune("A") + "close\n");
    const SettingsRecord& settings = global.Settings;
    EXPECT_FALSE(settings.ToolTips);
    EXPECT_TRUE(settings.SetColor);
    EXPECT_TRUE(settings.GTimer);
    EXPECT_TRUE(settings.RndSkin);
    EXPECT_FALSE(settings.PrvSkin);
    EXPECT_EQ(settings.SkinPtr, 2);
    EXPECT_TRUE(settings.MindDuel);
    EXPECT_EQ(settings.PlayerNames[1], "Ada");
    EXPECT_EQ(settings.PlayerNames[2], "");
    EXPECT_EQ(settings.BestOf, 6);
    EXPECT_EQ(global.Playlist, (Names{"A", "B", "A", "B", "C"}));
    EXPECT_EQ(global.PlaylistUpper, 4);
    EXPECT_FALSE(settings.SoundFx);
    EXPECT_TRUE(settings.Music);
    EXPECT_TRUE(settings.RndMusic);
}

TEST_F(ConfigFlowTest, OkWithNothingChangedLeavesTheMusicAlone) {
    PlayMusic();
    Open();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(ConfigFlowTest, TheDuelsStandIsShownAgainDuringARoundOfIt) {
    global.Settings.GameInProgress = true;
    global.Settings.MindDuel = true;
    Open();
    config.EditPlayer(2, "Bob");
    config.PressBestOf(2, MouseButton::kLeft);
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(),
              "help on\n"
              "lblGTimer hidden\n"
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/6\" yellow \"Player 1: Guess=0\" "
              "grey \"Bob: Guess=0\"\n"
              "close\n");
}

TEST_F(ConfigFlowTest, WithoutARoundOrWithoutADuelTheStandIsNotShown) {
    Open();
    config.ClickSwitch(chkMindDuel);
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
}

TEST_F(ConfigFlowTest, InARoundThatIsNoDuelTheStandIsNotShown) {
    global.Settings.GameInProgress = true;
    Open();
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
}

TEST_F(ConfigFlowTest, DuringARoundLockedSwitchesKeepTheirValuesThroughOk) {
    global.Settings.GameInProgress = true;
    global.Settings.GTimer = true;
    Open();
    config.ClickOk();
    EXPECT_TRUE(global.Settings.GTimer);
    EXPECT_FALSE(global.Settings.MindDuel);
}

TEST_F(ConfigFlowTest, AnotherOrderOfTheTunesStartsTheMusicAgain) {
    PlayMusic();
    Open();
    config.EditPlaylist([](PlaylistEditor& list) {
        list.PressPlayList(0);
        list.PressMove(2);
    });
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(global.Playlist, (Names{"B", "A"}));
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nseed\n" + Tune("B") + "close\n");
}

TEST_F(ConfigFlowTest, AnEmptiedPlaylistStopsTheMusic) {
    PlayMusic();
    Open();
    config.EditPlaylist([](PlaylistEditor& list) { list.PressRemoveAll(); });
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(global.PlaylistUpper, -1);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    EXPECT_EQ(log.Text(),
              "help on\nlblGTimer hidden\nseed\nmidi: stop\nmidi: close\nseed\nclose\n");
}

TEST_F(ConfigFlowTest, MusicSwitchedOffStopsAndIsNotStartedByAnotherList) {
    PlayMusic();
    Open();
    config.ClickSwitch(chkMusic);
    config.EditPlaylist([](PlaylistEditor& list) { list.PressAddAll(); });
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nseed\nmidi: stop\nmidi: close\nclose\n");
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    EXPECT_FALSE(global.Settings.Music);
}

TEST_F(ConfigFlowTest, MusicSwitchedOnStarts) {
    global.Settings.Music = false;
    Open();
    config.ClickSwitch(chkMusic);
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nseed\n" + Tune("A") + "close\n");
}

TEST_F(ConfigFlowTest, MusicSwitchedOffAndOnAgainGoesOnWithoutARestart) {
    PlayMusic();
    Open();
    config.ClickSwitch(chkMusic);
    config.ClickSwitch(chkMusic);
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(ConfigFlowTest, ShuffleStartsTheMusicAgainOnlyWhereItIsOn) {
    global.Settings.Music = false;
    Open();
    config.ClickSwitch(chkRndMusic);
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
    EXPECT_TRUE(global.Settings.RndMusic);
}

TEST_F(ConfigFlowTest, OkEndsAPreviewAndPlaysOnlyWhereARestartIsDue) {
    PlayMusic();
    Open();
    Preview();
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nmidi: stop\nmidi: close\nclose\n");

    Open();
    config.ClickSwitch(chkRndMusic);
    Preview();
    log.Clear();
    config.ClickOk();
    EXPECT_EQ(log.Text(),
              "help on\nlblGTimer hidden\nmidi: stop\nmidi: close\nseed\n" + Tune("A") + "close\n");
}

TEST_F(ConfigFlowTest, OkLeavesPausedMusicPaused) {
    PlayMusic();
    music.MusicCommand("Pause");
    Open();
    config.ClickOk();
    EXPECT_EQ(log.Text(), "help on\nlblGTimer hidden\nclose\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPaused);
}

// Cancel

TEST_F(ConfigFlowTest, CancelThrowsTheWorkingCopyAway) {
    Open();
    for (const Switch which : {chkToolTips, chkSoundFx, chkMusic, chkRndMusic, chkSetColor,
                               chkGTimer, chkRndSkin, chkPrvSkin, chkMindDuel}) {
        config.ClickSwitch(which);
    }
    config.PressSkin(2, MouseButton::kLeft);
    config.PressBestOf(2, MouseButton::kLeft);
    config.EditPlayer(1, "Ada");
    config.EditPlaylist([](PlaylistEditor& list) { list.PressRemoveAll(); });
    log.Clear();
    config.ClickCancel();
    EXPECT_EQ(log.Text(), "close\n");
    EXPECT_TRUE(global.Settings.ToolTips);
    EXPECT_TRUE(global.Settings.Music);
    EXPECT_FALSE(global.Settings.MindDuel);
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_EQ(global.Settings.BestOf, 5);
    EXPECT_EQ(global.Settings.PlayerNames[1], "Player 1");
    EXPECT_EQ(global.Playlist, (Names{"A", "B"}));
}

TEST_F(ConfigFlowTest, CancelEndsAPreviewAndLetsTheMusicBeginAgain) {
    PlayMusic();
    Open();
    Preview();
    log.Clear();
    config.ClickCancel();
    EXPECT_EQ(log.Text(), "midi: stop\nmidi: close\nseed\n" + Tune("A") + "close\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
}

TEST_F(ConfigFlowTest, CancelWithTheMusicOffOnlyEndsThePreview) {
    global.Settings.Music = false;
    Open();
    Preview();
    log.Clear();
    config.ClickCancel();
    EXPECT_EQ(log.Text(), "midi: stop\nmidi: close\nclose\n");
}

TEST_F(ConfigFlowTest, CancelLeavesPlayingAndPausedMusicAlone) {
    PlayMusic();
    Open();
    config.ClickCancel();
    EXPECT_EQ(log.Text(), "close\n");
    music.MusicCommand("Pause");
    Open();
    config.ClickCancel();
    EXPECT_EQ(log.Text(), "close\n");
    EXPECT_EQ(global.PlayState, PlayStates::kPaused);
}

TEST_F(ConfigFlowTest, APreviewInPlaceOfPausedMusicIsLeftToItsEnd) {
    for (const bool ok : {true, false}) {
        PlayMusic();
        music.MusicCommand("Pause");
        Open();
        Preview();
        log.Clear();
        ok ? config.ClickOk() : config.ClickCancel();
        EXPECT_EQ(log.Text(), ok ? "help on\nlblGTimer hidden\nclose\n" : "close\n");
        EXPECT_EQ(global.PlayState, PlayStates::kPaused);
        music.MusicCommand("Pause");
    }
}

TEST_F(ConfigFlowTest, StoppedMusicStaysStoppedThroughOkAndCancel) {
    for (const bool ok : {true, false}) {
        Open();
        ok ? config.ClickOk() : config.ClickCancel();
        EXPECT_EQ(log.Text(), ok ? "help on\nlblGTimer hidden\nclose\n" : "close\n");
        EXPECT_EQ(global.PlayState, PlayStates::kStopped);
    }
}

// Default

TEST_F(ConfigFlowTest, DefaultPutsTheFactoryValuesIntoTheWorkingCopy) {
    SettingsRecord& settings = global.Settings;
    settings.SoundFx = false;
    settings.Music = false;
    settings.RndMusic = true;
    settings.ToolTips = false;
    settings.SetColor = true;
    settings.GTimer = true;
    settings.RndSkin = true;
    settings.SkinPtr = 3;
    settings.MindDuel = true;
    settings.BestOf = 9;
    settings.PlayerNames[1] = "Ada";
    settings.PlayerNames[2] = "Bob";
    Open();
    config.ClickDefault();
    EXPECT_TRUE(config.IsOn(chkToolTips));
    EXPECT_FALSE(config.IsOn(chkSetColor));
    EXPECT_FALSE(config.IsOn(chkGTimer));
    EXPECT_FALSE(config.IsOn(chkRndSkin));
    EXPECT_TRUE(config.IsOn(chkPrvSkin));
    EXPECT_EQ(config.SkinName(), "Atelier");
    EXPECT_EQ(config.BestOf(), 5);
    EXPECT_EQ(config.PlayerName(1), "Player 1");
    EXPECT_EQ(config.PlayerName(2), "Player 2");
    EXPECT_FALSE(config.IsOn(chkMindDuel));
    EXPECT_FALSE(config.IsOn(chkRndMusic));
    EXPECT_TRUE(config.IsOn(chkSoundFx));
    EXPECT_TRUE(config.IsOn(chkMusic));
    EXPECT_EQ(config.playlist().PlayList().items, (Names{"A", "B", "C"}));

    config.ClickCancel();
    EXPECT_FALSE(settings.ToolTips);
    EXPECT_EQ(settings.SkinPtr, 3);
    EXPECT_EQ(settings.BestOf, 9);
}

TEST_F(ConfigFlowTest, DefaultSwitchesTheWindowsHelpOnAndPutsTheFirstSkinOn) {
    global.Settings.SkinPtr = 2;
    global.Settings.ToolTips = false;
    Open();
    config.ClickDefault();
    EXPECT_EQ(log.Text(), "own help on\nskin 1\n");
}

TEST_F(ConfigFlowTest, DefaultAndOkSwitchThePreviewOnAndLeaveModeAndMatchAlone) {
    global.Settings.GameMode = 1;
    global.Settings.Round = 2;
    global.Settings.PlrTrn = 2;
    global.Settings.PlrPos[1] = 8;
    Open();
    config.ClickDefault();
    config.ClickOk();
    EXPECT_TRUE(global.Settings.PrvSkin);
    EXPECT_EQ(global.Settings.GameMode, 1);
    EXPECT_EQ(global.Settings.Round, 2);
    EXPECT_EQ(global.Settings.PlrTrn, 2);
    EXPECT_EQ(global.Settings.PlrPos[1], 8);
}

TEST_F(ConfigFlowTest, DefaultAndOkDuringARoundSwitchEvenTheLockedOnesOff) {
    global.Settings.GameInProgress = true;
    global.Settings.GTimer = true;
    global.Settings.MindDuel = true;
    Open();
    config.ClickDefault();
    EXPECT_TRUE(config.IsLocked(chkGTimer));
    config.ClickOk();
    EXPECT_FALSE(global.Settings.GTimer);
    EXPECT_FALSE(global.Settings.MindDuel);
}

// Texts

TEST(ConfigControls, HaveTheirNamesAndHelpTexts) {
    const std::vector<std::pair<std::string, std::string>> switches{
        {"chkMusic", "Click here to turn the game music on/off."},
        {"chkRndMusic",
         "If this option is marked then the tunes in the playlist will be played in "
         "a random order."},
        {"chkSoundFx", "Click here to turn the sound effects on/off."},
        {"chkToolTips", "This option will enable / disable the popup help bubbles."},
        {"chkSetColor",
         "If this option is marked then you will be asked to set your own color "
         "combination next time you start a game."},
        {"chkGTimer",
         "Clicking this option will enable / disable the timer and the possibility to "
         "get a highscore."},
        {"chkRndSkin",
         "If this option is marked then every time you start the game a random skin "
         "will be loaded."},
        {"chkPrvSkin", "This option will enable / disable the preview skin function."},
        {"chkMindDuel",
         "Marking this option will enable the Mind Duel. This will let you test your "
         "mind strenght against another player."}};
    const std::vector<std::pair<std::string, std::string>> buttons{
        {"cmdOk", "Press here to save all changes and return to the game."},
        {"cmdCancel", "Press here to discard all changes and return to the game."},
        {"cmdDefault", "Press here to restore Brimwell® Settings."},
        {"cmdSkin(1)", "Clicking this button will select the previous skin in the list."},
        {"cmdSkin(2)", "Clicking this button will select the next skin in the list."},
        {"cmdBestOf(1)", "Clicking this button will decrease the number of rounds to play."},
        {"cmdBestOf(2)", "Clicking this button will increase the number of rounds to play."},
        {"cmdAdd", "Click here to add selected tune to the playlist."},
        {"cmdAddAll", "Click here to add all tunes in the filelist to the playlist."},
        {"cmdRemoveAll", "Click here to clear the entire playlist from tunes."},
        {"cmdRemove", "Click here to remove the selected tune from the playlist."},
        {"cmdMove(1)", "Click here to move the selected tune up in the playlist."},
        {"cmdMove(2)", "Click here to move the selected tune down in the playlist."},
        {"cmdListen", "Click here to listen to the current selected tune."}};
    ASSERT_EQ(kSwitches, switches.size());
    for (std::size_t i = 0; i < switches.size(); ++i) {
        EXPECT_EQ(kConfigSwitches.values.at(i).name, switches[i].first);
        EXPECT_EQ(kConfigSwitches.values.at(i).help, switches[i].second);
    }
    ASSERT_EQ(kPushButtons, buttons.size());
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(kConfigButtons.values.at(i).name, buttons[i].first);
        EXPECT_EQ(kConfigButtons.values.at(i).help, buttons[i].second);
    }
}

TEST(ConfigControls, HavePicturesNamedAfterThem) {
    const Names switches{"Music",  "RndMusic", "Sound",   "ToolTips", "SetColor",
                         "GTimer", "RndSkin",  "PrvSkin", "MindDuel"};
    for (std::size_t i = 0; i < kSwitches; ++i) {
        EXPECT_EQ(kConfigSwitches.values.at(i).picture, switches[i]);
    }
    const Names buttons{"Ok",        "Cancel",    "Default", "Skin(1)", "Skin(2)",
                        "BestOf(1)", "BestOf(2)", "Add",     "AddAll",  "RemoveAll",
                        "Remove",    "Move(1)",   "Move(2)", "Listen"};
    for (std::size_t i = 0; i < kPushButtons; ++i) {
        EXPECT_EQ(kConfigButtons.values.at(i).picture(), buttons[i]);
    }
}

}  // namespace
}  // namespace quendrel::test
