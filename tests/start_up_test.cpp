// The order in which the program starts.
#include <filesystem>
#include <map>

#include "GameFixture.h"
#include "StartUp.h"
#include "TemporaryFolder.h"
#include "audio/Playlist.h"
#include "settings/SettingsStore.h"
#include "ui/layout/Control.h"
#include "ui/main/CheckScreen.h"

namespace quendrel::test {
namespace {

class StartUpTest : public GameFixture {
protected:
    StartUpTest() {
        std::filesystem::create_directories(folder.path() + "/Skin/Atelier");
        SetFolders(global, folder.path());
    }

    void Load(const std::string& settings) {
        folder.Write("settings.ini", settings);
        LoadMainWindow(global, game, store, reader);
    }

    void Activate() {
        ActivateFirst(game, [this] { log.Add("close the splash"); });
    }

    /// The log without the reading and putting on of the skin's many pictures.
    std::string Steps() const {
        std::string steps;
        std::istringstream lines(log.Text());
        for (std::string line; std::getline(lines, line);) {
            if (line.rfind("read ", 0) == 0 || line.rfind("pictures ", 0) == 0) continue;
            if (line.rfind("cmdColBtn", 0) == 0 || line.rfind("lblColorBackup", 0) == 0) continue;
            steps += line + "\n";
        }
        return steps;
    }

    /// What has been applied of the settings so far, as the log cannot see it happen.
    std::string Applied() const {
        return "tunes " + std::to_string(global.Playlist.size()) + ", last mode " +
               std::to_string(global.LastMode);
    }

    std::string Skin(const std::string& name) const { return folder.path() + "/Skin/" + name; }

    void Install(const std::vector<std::string>& names) const {
        for (const std::string& name : names) std::filesystem::create_directories(Skin(name));
    }

    /// The line of the settings file, once it has been saved, that begins with `key`.
    std::string StoredLine(const std::string& key) const {
        store.SaveSettings();
        std::istringstream lines(folder.Read("settings.ini"));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(key)) return line;
        }
        return "";
    }

    TemporaryFolder folder;
    SettingsStore store{global, folder.path() + "/settings.ini"};
};

TEST_F(StartUpTest, TheFoldersStandBesideTheProgram) {
    SetFolders(global, "/opt/Quendrel");
    EXPECT_EQ(global.AppFolder, "/opt/Quendrel\\");
    EXPECT_EQ(global.SoundFolder, "/opt/Quendrel\\Sound\\");
    EXPECT_EQ(global.MusicFolder, "/opt/Quendrel\\Music\\");
    EXPECT_EQ(global.HighFolder, "/opt/Quendrel\\High\\");
    EXPECT_EQ(global.SkinFolder, "/opt/Quendrel\\Skin\\");
}

TEST_F(StartUpTest, TheMainWindowIsFilledInOrder) {
    Load("[Game]\nGameMode=1\n");
    EXPECT_EQ(Steps(),
              "help on\n"
              "let go cmdModeBtn(0)\n"
              "hold cmdModeBtn(1)\n"
              "let go cmdModeBtn(2)\n"
              "buttons: Exit About Config Start\n"
              "shape from a mask of 655 x 605\n"
              "repaint the window\n"
              "cmdDuelBtn hidden\n"
              "cmdTmrBtn hidden\n"
              "lblGTimer hidden\n"
              "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" "
              "grey \"Brimwell\"\n");
    EXPECT_EQ(global.DemoDelay, 10);
    EXPECT_EQ(global.LastMode, 1);
    EXPECT_EQ(global.ActiveRow, 1);
    EXPECT_EQ(global.HighscoreFile, folder.path() + "\\High\\Medium.hsc");
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Quendrel v1.0", 0, 360}));
}

TEST_F(StartUpTest, WhatIsLeftOfASkinThatWasBeingTakenWhenTheProgramWasKilledIsRemoved) {
    Install({".new.a1B2c3/Half a skin/Game", ".kept"});
    Load("");
    EXPECT_FALSE(std::filesystem::exists(Skin(".new.a1B2c3")));
    EXPECT_TRUE(std::filesystem::exists(Skin(".kept")));
}

TEST_F(StartUpTest, WhatFollowsFromTheSettingsIsAppliedInOrder) {
    std::filesystem::create_directories(folder.path() + "/Music");
    folder.Write("Music/Air.mid", "x");
    random.onSeed = [this] { log.Add(Applied()); };
    Load("[Game]\nGameMode=1\n[Skin]\nRndSkin=True\n");
    const std::string steps = Steps();
    const std::size_t begin = steps.find("seed\n");
    EXPECT_EQ(steps.substr(begin, steps.find("let go") - begin),
              "seed\n"
              "tunes 1, last mode 0\n"
              "help on\n");
    EXPECT_EQ(Applied(), "tunes 1, last mode 1");
}

TEST_F(StartUpTest, ARandomSkinIsPickedByTheSeededGenerator) {
    Install({"Beacon", "Carbon", "Daylight"});
    random.script = {0.25};
    random.onSeed = [this] { random.script = {0.5}; };
    Load("[Skin]\nRndSkin=True\n");
    EXPECT_EQ(global.Settings.SkinPtr, 3);
}

TEST_F(StartUpTest, TheFirstRowIsTheActiveOne) {
    global.ActiveRow = 7;
    Load("");
    EXPECT_EQ(global.ActiveRow, 1);
}

TEST_F(StartUpTest, TheStoredHelpSwitchIsApplied) {
    Load("[Misc]\nToolTips=False\n");
    EXPECT_NE(Steps().find("help off\n"), std::string::npos);
}

TEST_F(StartUpTest, AScreenOf800By600Of16BitsIsEnough) {
    EXPECT_NO_THROW(CheckScreen({800, 600, 16}));
}

TEST_F(StartUpTest, ATooSmallScreenEndsTheProgramAndSaysWhatItNeeds) {
    for (const ScreenSize& screen :
         {ScreenSize{799, 600, 16}, ScreenSize{800, 599, 16}, ScreenSize{800, 600, 15}}) {
        try {
            CheckScreen(screen);
            FAIL();
        } catch (const ScreenTooSmall& trouble) {
            EXPECT_EQ(trouble.title, "Quendrel v1.0 System Request");
            EXPECT_EQ(trouble.text,
                      "The minimum screen requirements for playing Quendrel v1.0\n"
                      "is 800x600 16bit. But to get the best gaming experience i\n"
                      "recomend that you play it in 1024x768 24bit...");
        }
    }
}

TEST_F(StartUpTest, TheDelayOfTheIdleAnimationFollowsTheStoredMode) {
    Load("[Game]\nGameMode=0\n");
    EXPECT_EQ(global.DemoDelay, 15);
    Load("[Game]\nGameMode=2\n");
    EXPECT_EQ(global.DemoDelay, 5);
}

TEST_F(StartUpTest, TheColorsOfTheStoredModeAreShown) {
    for (const auto& [mode, colors] : {std::pair{0, 6}, {1, 8}, {2, 10}}) {
        Load("[Game]\nGameMode=" + std::to_string(mode) + "\n");
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(window.Of({Controls::cmdColBtn, i}).visible, i < colors);
            EXPECT_EQ(window.Of({Controls::lblColorBackup, i}).visible, i < colors);
        }
    }
}

TEST_F(StartUpTest, TheSwitchesOfClockAndDuelShowOnTheConsole) {
    Load("[Misc]\nGTimer=True\n[Duel]\nMindDuel=True\n");
    EXPECT_TRUE(window.Of({Controls::cmdDuelBtn}).enabled);
    EXPECT_TRUE(window.Of({Controls::cmdTmrBtn}).enabled);
    EXPECT_TRUE(window.Of({Controls::lblGTimer}).visible);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
}

TEST_F(StartUpTest, AStoredSkinThatIsNotInstalledNamesItAndTheSettingsFile) {
    try {
        Load("[Skin]\nSkinPtr=7\n");
        FAIL();
    } catch (const std::out_of_range& error) {
        EXPECT_EQ(std::string(error.what()),
                  folder.path() +
                      "/settings.ini: line 2, section [Skin], key SkinPtr: there is no skin 7; the "
                      "number of skins is 1. Mend this line, or delete the file to begin with the "
                      "defaults.");
    }
}

TEST_F(StartUpTest, ARandomSkinReplacesAStoredOneThatIsNotInstalled) {
    Load("[Skin]\nSkinPtr=7\nRndSkin=True\n");
    EXPECT_EQ(global.Settings.SkinPtr, 1);
}

TEST_F(StartUpTest, TheFirstWholeSkinStandsInForADamagedOneAndTheFileKeepsItsChoice) {
    Install({"Beacon", "Carbon", "Daylight"});
    reader.black[Skin("Atelier") + "/Game/Board.bmp"] = {44, 11};
    reader.missing = Skin("Carbon") + "/High/High.bmp";
    Load("[Skin]\nSkinPtr=3\n");
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_NE(Steps().find("trouble: The skin \"Carbon\" is damaged: " + Skin("Carbon") +
                           "/High/High.bmp: No such file or directory; \"Beacon\" is used "
                           "instead\n"),
              std::string::npos);
    EXPECT_NE(log.Text().find("read " + Skin("Beacon") + "/Game/Colors.bmp\n"), std::string::npos);
    EXPECT_EQ(StoredLine("SkinPtr="), "SkinPtr=3");
}

TEST_F(StartUpTest, ASkinThatLacksAFileOfAnyWindowIsDamagedAndStandsInForNone) {
    Install({"Beacon", "Carbon"});
    for (const char* file :
         {"/Game/Boardmask.bmp", "/Game/Interface/Pink_Over.bmp", "/Config/Config.bmp",
          "/Config/Configmask.bmp", "/Config/Interface/Skin(2)_Down.bmp", "/High/High.bmp",
          "/High/Highmask.bmp", "/High/Interface/Easy.bmp", "/About/About.bmp",
          "/About/Aboutmask.bmp", "/About/Interface/Ok_Over.bmp"}) {
        log.Clear();
        reader.black = {{Skin("Atelier") + file, {1, 1}}};
        reader.missing = Skin("Carbon") + file;
        Load("[Skin]\nSkinPtr=3\n");
        EXPECT_EQ(global.Settings.SkinPtr, 2) << file;
        EXPECT_NE(Steps().find("trouble: The skin \"Carbon\" is damaged: " + reader.missing +
                               ": No such file or directory; \"Beacon\" is used instead\n"),
                  std::string::npos)
            << file;
    }
}

TEST_F(StartUpTest, TheLastSkinOfTheListStandsInToo) {
    Install({"Beacon"});
    reader.missing = Skin("Atelier") + "/High/High.bmp";
    Load("[Skin]\nSkinPtr=1\n");
    EXPECT_EQ(global.Settings.SkinPtr, 2);
}

TEST_F(StartUpTest, ADamagedSkinThatChanceHasPickedIsReplacedAndTheFileKeepsItsChoice) {
    Install({"Beacon", "Carbon", "Daylight"});
    reader.missing = Skin("Carbon") + "/High/High.bmp";
    random.script = {0.5};
    Load("[Skin]\nSkinPtr=2\nRndSkin=True\n");
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_NE(Steps().find("trouble: The skin \"Carbon\" is damaged: "), std::string::npos);
    EXPECT_EQ(StoredLine("SkinPtr="), "SkinPtr=2");
}

TEST_F(StartUpTest, WhereNoSkinIsWholeTheProgramEndsAndNamesTheChosenOne) {
    reader.missing = Skin("Atelier") + "/About/About.bmp";
    try {
        Load("");
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()),
                  "The skin \"Atelier\" is damaged: " + reader.missing +
                      ": No such file or directory; no other skin is whole");
    }
    EXPECT_EQ(Steps().find("trouble"), std::string::npos);
}

TEST_F(StartUpTest, AWholeSkinIsPutOnWithoutAWord) {
    Install({"Beacon"});
    Load("[Skin]\nSkinPtr=2\n");
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_EQ(Steps().find("trouble"), std::string::npos);
    EXPECT_EQ(StoredLine("SkinPtr="), "SkinPtr=2");
}

TEST_F(StartUpTest, EveryPictureIsReadOnceAndTheMaskOfTheWindowOnceMore) {
    Load("");
    std::map<std::string, int> times;
    std::istringstream lines(log.Text());
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("read ")) ++times[line];
    }
    EXPECT_EQ(times.size(), 190U);
    std::string more;
    for (const auto& [line, count] : times) {
        if (count > 1) more += line + ": " + std::to_string(count) + "\n";
    }
    EXPECT_EQ(more, "read " + Skin("Atelier") + "/Game/Boardmask.bmp: 2\n");
}

TEST_F(StartUpTest, AStoredModeThatDoesNotExistIsNamedWithItsPlaceAndWhatCanBeDone) {
    try {
        Load("[Misc]\nGTimer=True\n[Game]\nGameMode=3\n");
        FAIL();
    } catch (const std::out_of_range& error) {
        EXPECT_EQ(std::string(error.what()),
                  folder.path() +
                      "/settings.ini: line 4, section [Game], key GameMode: there is no game mode "
                      "3. Mend this line, or delete the file to begin with the defaults.");
    }
}

TEST_F(StartUpTest, TheFirstActivationLoadsTheSoundsAndThenAsksForTheIdleBoard) {
    global.DemoDelay = 15;
    Activate();
    clock.RequestEnd();
    EXPECT_THROW(game.idle.Run(), ProgramEnded);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(0, 22), "open the sound device\n");
    EXPECT_LT(text.find("slot 10 is"), text.find("close the splash\n"));
    EXPECT_LT(text.find("close the splash\n"), text.find("seed\n"));
    EXPECT_LT(text.find("seed\n"), text.find("sweep lines"));
}

TEST_F(StartUpTest, TheMusicBeginsOnceTheSplashIsGone) {
    SetPlaylist(global, {"Air"});
    global.DemoDelay = 15;
    Activate();
    clock.RequestEnd();
    EXPECT_THROW(game.idle.Run(), ProgramEnded);
    const std::string text = log.Text();
    const std::size_t splash = text.find("close the splash\n");
    const std::size_t sweep = text.find("sweep lines");
    EXPECT_EQ(text.substr(splash, sweep - splash),
              "close the splash\n"
              "seed\n"
              "midi: close\nmidi: " +
                  folder.path() +
                  "/Music/Air.mid\nmidi: open\nmidi: play\n"
                  "seed\n");
}

TEST_F(StartUpTest, MusicThatIsSwitchedOffStaysSilent) {
    SetPlaylist(global, {"Air"});
    global.Settings.Music = false;
    Activate();
    EXPECT_EQ(log.Text().find("midi"), std::string::npos);
    EXPECT_EQ(global.PlayState, PlayStates::kStopped);
}

TEST_F(StartUpTest, ThePlaylistIsReadWithTheSettings) {
    std::filesystem::create_directories(folder.path() + "/Music");
    folder.Write("Music/Air.mid", "x");
    Load("");
    EXPECT_EQ(global.Playlist, std::vector<std::string>{"Air"});
}

}  // namespace
}  // namespace quendrel::test
