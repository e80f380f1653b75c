// The settings between runs.
#include <cstdlib>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "Global.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "settings/SettingsStore.h"

namespace quendrel::test {
namespace {

class SettingsStoreTest : public ::testing::Test {
protected:
    static constexpr const char* kName = "Quendrel v1.0.ini";

    std::string Path() const { return folder.path() + "/" + kName; }

    /// What loading `text` reports, without the path before it; "loaded" where it does not.
    std::string Report(const std::string& text) {
        return Report(text, [this] { store.LoadSettings(); });
    }

    /// The same of loading the view.
    std::string ViewReport(const std::string& text) {
        return Report(text, [this] { store.LoadView(); });
    }

    template <class Load>
    std::string Report(const std::string& text, const Load& load) {
        folder.Write(kName, text);
        try {
            load();
        } catch (const ConversionError& error) {
            const std::string report = error.what();
            EXPECT_EQ(report.substr(0, Path().size()), Path());
            return report.substr(Path().size());
        }
        return "loaded";
    }

    TemporaryFolder folder;
    Global global;
    SettingsStore store{global, folder.path() + "/" + kName};
};

/// What the first leaving of the game writes.
constexpr const char* kDefaults =
    "[Game]\n"
    "GameMode=2\n"
    "\n"
    "[Sound]\n"
    "SoundFx=True\n"
    "Music=True\n"
    "RndMusic=False\n"
    "\n"
    "[Misc]\n"
    "ToolTips=True\n"
    "SetColor=False\n"
    "GTimer=False\n"
    "\n"
    "[Skin]\n"
    "RndSkin=False\n"
    "PrvSkin=False\n"
    "SkinPtr=1\n"
    "\n"
    "[Duel]\n"
    "MindDuel=False\n"
    "Player1=Player 1\n"
    "Player2=Player 2\n"
    "BestOf=5\n"
    "Round=0\n"
    "PlrTrn=1\n"
    "PlrPos1=0\n"
    "PlrPos2=0\n";

TEST_F(SettingsStoreTest, AnEmptyStoreGivesTheDefaults) {
    store.LoadSettings();
    const SettingsRecord& settings = global.Settings;
    EXPECT_EQ(settings.GameMode, 2);
    EXPECT_TRUE(settings.SoundFx);
    EXPECT_TRUE(settings.Music);
    EXPECT_FALSE(settings.RndMusic);
    EXPECT_TRUE(settings.ToolTips);
    EXPECT_FALSE(settings.SetColor);
    EXPECT_FALSE(settings.GTimer);
    EXPECT_FALSE(settings.RndSkin);
    EXPECT_FALSE(settings.PrvSkin);
    EXPECT_EQ(settings.SkinPtr, 1);
    EXPECT_FALSE(settings.MindDuel);
    EXPECT_EQ(settings.PlayerNames[1], "Player 1");
    EXPECT_EQ(settings.PlayerNames[2], "Player 2");
    EXPECT_EQ(settings.BestOf, 5);
    EXPECT_EQ(settings.Round, 0);
    EXPECT_EQ(settings.PlrTrn, 1);
    EXPECT_EQ(settings.PlrPos[1], 0);
    EXPECT_EQ(settings.PlrPos[2], 0);
    EXPECT_FALSE(settings.GameInProgress);
}

TEST_F(SettingsStoreTest, LoadingWritesNothing) {
    store.LoadSettings();
    EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(SettingsStoreTest, SavingWritesTheEighteenKeysInOrder) {
    store.LoadSettings();
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName), kDefaults);
}

TEST_F(SettingsStoreTest, EveryValueComesBack) {
    folder.Write(kName,
                 "[Game]\nGameMode=1\n[Sound]\nSoundFx=False\nMusic=False\nRndMusic=True\n"
                 "[Misc]\nToolTips=False\nSetColor=True\nGTimer=True\n"
                 "[Skin]\nRndSkin=True\nPrvSkin=True\nSkinPtr=-3\n"
                 "[Duel]\nMindDuel=True\nPlayer1=\nPlayer2=  J. = Doe \nBestOf=255\nRound=4\n"
                 "PlrTrn=2\nPlrPos1=17\nPlrPos2=255\n");
    store.LoadSettings();
    const SettingsRecord& settings = global.Settings;
    EXPECT_EQ(settings.GameMode, 1);
    EXPECT_FALSE(settings.SoundFx);
    EXPECT_FALSE(settings.Music);
    EXPECT_TRUE(settings.RndMusic);
    EXPECT_FALSE(settings.ToolTips);
    EXPECT_TRUE(settings.SetColor);
    EXPECT_TRUE(settings.GTimer);
    EXPECT_TRUE(settings.RndSkin);
    EXPECT_TRUE(settings.PrvSkin);
    EXPECT_EQ(settings.SkinPtr, -3);
    EXPECT_TRUE(settings.MindDuel);
    EXPECT_EQ(settings.PlayerNames[1], "");
    EXPECT_EQ(settings.PlayerNames[2], "  J. = Doe ");
    EXPECT_EQ(settings.BestOf, 255);
    EXPECT_EQ(settings.Round, 4);
    EXPECT_EQ(settings.PlrTrn, 2);
    EXPECT_EQ(settings.PlrPos[1], 17);
    EXPECT_EQ(settings.PlrPos[2], 255);

    const std::string before = folder.Read(kName);
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName), before);
}

TEST_F(SettingsStoreTest, DuringAGameTheFourMatchKeysKeepTheirStoredValues) {
    folder.Write(kName, "[Duel]\nRound=3\nPlrTrn=2\nPlrPos1=20\nPlrPos2=15\nBestOf=7\n");
    store.LoadSettings();
    global.Settings.Round = 4;
    global.Settings.PlrTrn = 1;
    global.Settings.PlrPos[1] = 29;
    global.Settings.PlrPos[2] = 22;
    global.Settings.BestOf = 8;
    global.Settings.GameInProgress = true;
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName).substr(0, 64),
              "[Duel]\nRound=3\nPlrTrn=2\nPlrPos1=20\nPlrPos2=15\nBestOf=8\nMindDuel=");

    global.Settings.GameInProgress = false;
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName).substr(0, 55),
              "[Duel]\nRound=4\nPlrTrn=1\nPlrPos1=29\nPlrPos2=22\nBestOf=8\n");
}

TEST_F(SettingsStoreTest, DuringAGameMatchKeysThatWereNeverStoredStayAway) {
    store.LoadSettings();
    global.Settings.GameInProgress = true;
    store.SaveSettings();
    const std::string text = folder.Read(kName);
    EXPECT_EQ(text.find("Round="), std::string::npos);
    EXPECT_EQ(text.find("PlrTrn="), std::string::npos);
    EXPECT_EQ(text.find("PlrPos"), std::string::npos);
    EXPECT_NE(text.find("BestOf=5\n"), std::string::npos);
}

TEST_F(SettingsStoreTest, BooleansAreWordsInAnyCaseOrNumbersThatAreNotZero) {
    EXPECT_EQ(Report("[Misc]\nGTimer= tRUE \nToolTips=FALSE\nSetColor=-1\n[Sound]\nMusic=0\n"),
              "loaded");
    EXPECT_TRUE(global.Settings.GTimer);
    EXPECT_FALSE(global.Settings.ToolTips);
    EXPECT_TRUE(global.Settings.SetColor);
    EXPECT_FALSE(global.Settings.Music);
}

TEST_F(SettingsStoreTest, BlanksAroundNumbersAreIgnored) {
    EXPECT_EQ(Report("[Duel]\nBestOf=\t 7 \n"), "loaded");
    EXPECT_EQ(global.Settings.BestOf, 7);
}

TEST_F(SettingsStoreTest, NumbersAreOneSignAndDecimalDigits) {
    EXPECT_EQ(Report("[Duel]\nBestOf=+7\nRound=007\nPlrPos1=-0\n[Skin]\nSkinPtr=-32768\n"),
              "loaded");
    EXPECT_EQ(global.Settings.BestOf, 7);
    EXPECT_EQ(global.Settings.Round, 7);
    EXPECT_EQ(global.Settings.PlrPos[1], 0);
    EXPECT_EQ(global.Settings.SkinPtr, -32768);
    EXPECT_NE(Report("[Duel]\nBestOf=256\n"), "loaded");
    EXPECT_NE(Report("[Duel]\nBestOf=-1\n"), "loaded");
    for (const std::string value : {"",
                                    " ",
                                    "+",
                                    "-",
                                    "+-3",
                                    "-+3",
                                    "--3",
                                    "++3",
                                    "+ 3",
                                    "1 2",
                                    "hard",
                                    "1e2",
                                    "0x3",
                                    "3.0",
                                    "3,",
                                    "32768",
                                    "-32769",
                                    "nan",
                                    "inf",
                                    "99999999999999999999",
                                    "-99999999999999999999",
                                    "\u00A03"}) {
        EXPECT_NE(Report("[Skin]\nSkinPtr=" + value + "\n"), "loaded") << value;
    }
}

TEST_F(SettingsStoreTest, ABooleanThatIsANumberMayHaveADecimalPart) {
    for (const std::string value :
         {"1", "+1", "-1", "0.5", "-0.001", "2.0", "99999999999999999999999999", " 007 "}) {
        EXPECT_EQ(Report("[Misc]\nGTimer=" + value + "\n"), "loaded") << value;
        EXPECT_TRUE(global.Settings.GTimer) << value;
    }
    for (const std::string value : {"0", "+0", "-0", "0.0", "-000.000"}) {
        EXPECT_EQ(Report("[Misc]\nToolTips=" + value + "\n"), "loaded") << value;
        EXPECT_FALSE(global.Settings.ToolTips) << value;
    }
}

TEST_F(SettingsStoreTest, ABooleanIsNoOtherWordAndNoOtherNumber) {
    for (const std::string value : {"",          "perhaps", "yes", "truely", "nan", "-nan", "inf",
                                    "-infinity", "1e5",     "0e0", "0x1",    "+-1", "--1",  "+",
                                    ".",         "1.",      ".5",  "1.5.5",  "1,5", "1 0",  "1f"}) {
        EXPECT_NE(Report("[Sound]\nMusic=" + value + "\n"), "loaded") << value;
    }
}

TEST_F(SettingsStoreTest, AValueThatCannotBeConvertedIsNamedWithItsPlaceAndWhatCanBeDone) {
    const std::string wayOut = ". Mend this line, or delete the file to begin with the defaults.";
    EXPECT_EQ(Report("[Duel]\nBestOf=256\n"),
              ": line 2, section [Duel], key BestOf: \"256\" cannot be converted" + wayOut);
    EXPECT_EQ(Report("; mine\r\n\r\n[game]\r\n gamemode = hard\r\n"),
              ": line 4, section [Game], key GameMode: \" hard\" cannot be converted" + wayOut);
    EXPECT_EQ(Report("[Skin]\nSkinPtr=32768\n"),
              ": line 2, section [Skin], key SkinPtr: \"32768\" cannot be converted" + wayOut);
    EXPECT_EQ(Report("[Sound]\nSoundFx=True\nMusic=\n"),
              ": line 3, section [Sound], key Music: \"\" cannot be converted" + wayOut);
    EXPECT_EQ(Report("[Duel]\nRound=\x1B[2J\n"),
              ": line 2, section [Duel], key Round: \" [2J\" cannot be converted" + wayOut);
}

TEST_F(SettingsStoreTest, ANameIsStoredAsOneLineWhateverIsInIt) {
    using namespace std::string_literals;
    struct Name {
        std::string held, stored;
    };
    for (const Name& name : {
             Name{"Anna\nBestOf=xyz", "Anna BestOf=xyz"},
             Name{"Anna\r\n[Duel]\r\nRound=x", "Anna [Duel] Round=x"},
             Name{"Anna\r", "Anna "},
             Name{"\n[Game]", " [Game]"},
             Name{"a\0b\tc\x7F"s, "a b c "},
             Name{"a\u0085b\u2028c\u2029d\u009Be", "a b c d e"},
             Name{"  [Ben] = ; # ", "  [Ben] = ; # "},
             Name{"[Game]", "[Game]"},
             Name{"=", "="},
             Name{"\xFF\xC2", "\xFF\xC2"},
             Name{"Änna €→😀", "Änna €→😀"},
         }) {
        global.Settings.PlayerNames[1] = name.held;
        global.Settings.PlayerNames[2] = name.held;
        store.SaveSettings();
        global.Settings = {};
        ASSERT_NO_THROW(store.LoadSettings());
        EXPECT_EQ(global.Settings.PlayerNames[1], name.stored);
        EXPECT_EQ(global.Settings.PlayerNames[2], name.stored);
        EXPECT_EQ(global.Settings.BestOf, 5);
        std::filesystem::remove(Path());
    }
}

TEST_F(SettingsStoreTest, ANameWithControlCharactersIsReadAsOneLine) {
    EXPECT_EQ(Report("[Duel]\nPlayer1=An\tna\rX\n"), "loaded");
    EXPECT_EQ(global.Settings.PlayerNames[1], "An na X");
}

TEST_F(SettingsStoreTest, AFailedStartLeavesTheFileAndTheRecordAlone) {
    const std::string bad = "[Game]\nGameMode=1\n[Duel]\nBestOf=many\n";
    EXPECT_NE(Report(bad), "loaded");
    EXPECT_EQ(folder.Read(kName), bad);
    EXPECT_EQ(global.Settings.GameMode, 2);
}

TEST_F(SettingsStoreTest, AnUnreadableStoreIsAFileErrorAndNotAFirstStart) {
    std::filesystem::create_directory(Path());
    EXPECT_THROW(store.LoadSettings(), FileError);
}

TEST_F(SettingsStoreTest, NoScaleIsStoredUntilOneIsChosen) {
    store.LoadView();
    EXPECT_EQ(global.View.chosen, std::nullopt);
    global.View.ofRun = 2;
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName), kDefaults);
}

TEST_F(SettingsStoreTest, AChosenScaleComesBack) {
    for (const auto& [scale, text] :
         {std::pair{1.0, "1"}, {1.25, "1.25"}, {3.0, "3"}, {4.0 / 3, "1.3333333333333333"}}) {
        global.View.chosen = scale;
        store.SaveSettings();
        EXPECT_EQ(folder.Read(kName), kDefaults + std::string("\n[View]\nScale=") + text + "\n");
        global.View.chosen.reset();
        store.LoadView();
        EXPECT_EQ(global.View.chosen, scale);
    }
}

TEST_F(SettingsStoreTest, AScaleThatIsLeftToTheDesktopAgainTakesItsKeyAway) {
    EXPECT_EQ(ViewReport("[View]\nScale=2\n"), "loaded");
    global.View.chosen.reset();
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName), kDefaults);
    EXPECT_EQ(ViewReport("[View]\nMine=1\nScale=2\n"), "loaded");
    EXPECT_EQ(global.View.chosen, 2);
    global.View.chosen.reset();
    store.SaveSettings();
    EXPECT_EQ(folder.Read(kName), "[View]\nMine=1\n\n" + std::string(kDefaults));
}

TEST_F(SettingsStoreTest, AScaleMayHaveBlanksAroundItOrBeEmpty) {
    EXPECT_EQ(ViewReport("[View]\nScale= 1.5 \n"), "loaded");
    EXPECT_EQ(global.View.chosen, 1.5);
    EXPECT_EQ(ViewReport("[View]\nScale= \n"), "loaded");
    EXPECT_EQ(global.View.chosen, std::nullopt);
}

TEST_F(SettingsStoreTest, AScaleThatIsNoneIsNamedWithItsPlace) {
    for (const std::string value : {"0.99", "3.01", "1,5", "nan", "-1", "large"}) {
        EXPECT_EQ(ViewReport("[Duel]\nBestOf=5\n[View]\nScale=" + value + "\n"),
                  ": line 4, section [View], key Scale: \"" + value +
                      "\" is no scale; it is a number from 1 to 3. Mend this line, or delete the "
                      "file to begin with the defaults.");
    }
}

TEST_F(SettingsStoreTest, TheFolderIsMadeBySaving) {
    SettingsStore deeper(global, folder.path() + "/a/b/" + kName);
    deeper.SaveSettings();
    EXPECT_EQ(folder.Read(std::string("a/b/") + kName), kDefaults);
}

TEST(SettingsPath, FollowsTheDesktopsConfigurationFolder) {
    setenv("XDG_CONFIG_HOME", "/conf", 1);
    EXPECT_EQ(SettingsPath(), "/conf/quendrel/Quendrel v1.0.ini");
    setenv("HOME", "/home/anna", 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(SettingsPath(), "/home/anna/.config/quendrel/Quendrel v1.0.ini");
    setenv("XDG_CONFIG_HOME", "", 1);
    EXPECT_EQ(SettingsPath(), "/home/anna/.config/quendrel/Quendrel v1.0.ini");
}

TEST(SettingsPath, IsInTheHomeOfTheListOfUsersWhereTheEnvironmentNamesNone) {
    const passwd* const user = getpwuid(getuid());
    if (user == nullptr) GTEST_SKIP() << "the user is in no list";
    unsetenv("XDG_CONFIG_HOME");
    for (const char* const home : {"", "relative"}) {
        setenv("HOME", home, 1);
        EXPECT_EQ(SettingsPath(),
                  user->pw_dir + std::string("/.config/quendrel/Quendrel v1.0.ini"));
    }
    unsetenv("HOME");
    EXPECT_EQ(SettingsPath(), user->pw_dir + std::string("/.config/quendrel/Quendrel v1.0.ini"));
}

}  // namespace
}  // namespace quendrel::test
