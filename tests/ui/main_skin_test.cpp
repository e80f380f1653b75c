// Loading the skin of the main window.
#include "GameFixture.h"
#include "SkinFolder.h"
#include "audio/Pause.h"
#include "ui/main/LoadMainSkin.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel::test {
namespace {

class MainSkinTest : public GameFixture {
protected:
    MainSkinTest() {
        global.SkinFolder = "/game\\Skin\\";
        global.SkinNames = {"Atelier", "Beacon"};
    }

    void Load() {
        LoadMainSkin(global, ReadMainSkin(reader, {SkinRoot(global)}), window, game.table.board,
                     game.table.rowMarker);
    }

    /// The player has chosen another skin than `oldSkin`.
    void Choose(std::int16_t oldSkin) {
        ChangeSkin(global, reader, window, game.table.board, game.table.rowMarker, oldSkin);
    }

    /// The log without the reading and putting on of pictures.
    std::string Said() const {
        std::string said;
        std::istringstream lines(log.Text());
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("read ") && !line.starts_with("pictures ")) said += line + "\n";
        }
        return said;
    }

    RecordingPictureReader reader{log};
};

TEST_F(MainSkinTest, ReadsEveryPictureInTheOrderOfItsTableAndThenPutsThemOn) {
    Load();
    std::string expected;
    for (const char* name : {"Colors", "Coloranim", "Numbers", "Dots", "Modes", "Board"}) {
        expected += std::string("read /game/Skin/Atelier/Game/") + name + ".bmp\n";
    }
    const auto button = [&expected](const char* name, std::initializer_list<const char*> states) {
        for (const char* state : states) {
            expected += std::string("read /game/Skin/Atelier/Game/Interface/") + name + "_" +
                        state + ".bmp\n";
        }
    };
    button("Hide", {"Up", "Down", "Over"});
    button("Duel", {"Up", "Disabled", "Down", "Over"});
    button("Timer", {"Up", "Disabled"});
    for (const char* name :
         {"Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check"}) {
        button(name, {"Up", "Disabled", "Down", "Over"});
    }
    for (const char* name : {"Easy", "Medium", "Hard"}) button(name, {"Up", "Disabled", "Down"});
    for (const char* name : {"Yes", "No", "Ok"}) button(name, {"Up", "Disabled", "Down", "Over"});
    for (const char* name : {"Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange",
                             "Purple", "Pink"}) {
        button(name, {"Up", "Disabled", "Down", "Over"});
    }
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(0, expected.size()), expected);
    EXPECT_EQ(text.find("read ", expected.size()), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 19), "repaint the window\n");
    EXPECT_EQ(window.Image(), Picture(655, 605, kEasyBoard));
    EXPECT_EQ(window.fontsOf, "/game\\Skin\\Atelier");
}

TEST_F(MainSkinTest, TheSkinOfTheStoredIndexIsRead) {
    global.Settings.SkinPtr = 2;
    Load();
    EXPECT_EQ(log.Text().substr(0, 40), "read /game/Skin/Beacon/Game/Colors.bmp\nr");
}

TEST_F(MainSkinTest, TheBoardIsBuiltOfTheNewSkinsPictures) {
    reader.black["/game/Skin/Beacon/Game/Board.bmp"] = {655, 605};
    global.Settings.SkinPtr = 2;
    Load();
    EXPECT_EQ(window.Image(), Picture(655, 605));
}

TEST_F(MainSkinTest, ASkinThatLacksAPictureLeavesTheOldOneInForceWhole) {
    global.Settings.SkinPtr = 2;
    reader.missing = "/game/Skin/Beacon/Game/Interface/Pink_Over.bmp";
    try {
        Load();
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(std::string(error.what()), reader.missing + ": No such file or directory");
    }
    EXPECT_EQ(log.Text().find("pictures of"), std::string::npos);
    EXPECT_EQ(game.table.board.Skin().picColors, TestSkin().picColors);
}

TEST_F(MainSkinTest, ASkinWithAPictureOfAnotherSizeLeavesTheOldOneInForceWhole) {
    global.Settings.SkinPtr = 2;
    reader.black["/game/Skin/Beacon/Game/Interface/Pink_Over.bmp"] = {82, 31};
    try {
        Load();
        FAIL();
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(),
                     "/game/Skin/Beacon/Game/Interface/Pink_Over.bmp: has 82 x 31 pixels instead "
                     "of 82 x 30 pixels");
    }
    EXPECT_EQ(log.Text().find("pictures of"), std::string::npos);
    EXPECT_EQ(game.table.board.Skin().picColors, TestSkin().picColors);
}

TEST_F(MainSkinTest, AChosenSkinThatIsDamagedInAnyWindowSaysSoAndTheOldOneStays) {
    reader.black["/game/Skin/Beacon/About/About.bmp"] = {44, 11};
    global.StoredSkinPtr = 3;
    global.Settings.SkinPtr = 2;
    Choose(1);
    EXPECT_EQ(
        Said(),
        "trouble: The skin \"Beacon\" is damaged: /game/Skin/Beacon/About/About.bmp: has 44 x "
        "11 pixels instead of 464 x 316 pixels\n");
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_EQ(global.StoredSkinPtr, 3);
    EXPECT_EQ(window.fontsOf, "");
}

TEST_F(MainSkinTest, AWholeSkinThatIsChosenIsPutOnAndWillBeStored) {
    global.StoredSkinPtr = 3;
    global.Settings.SkinPtr = 2;
    Choose(1);
    EXPECT_EQ(Said(), "repaint the window\n");
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_EQ(global.StoredSkinPtr, std::nullopt);
    EXPECT_EQ(window.fontsOf, "/game\\Skin\\Beacon");
}

TEST_F(MainSkinTest, AnIndexOutsideTheListNamesItAndTheNumberOfSkins) {
    for (const int index : {0, -1, 3}) {
        global.Settings.SkinPtr = static_cast<std::int16_t>(index);
        try {
            Load();
            FAIL();
        } catch (const std::out_of_range& error) {
            EXPECT_EQ(std::string(error.what()),
                      "there is no skin " + std::to_string(index) + "; the number of skins is 2");
        }
    }
}

TEST_F(MainSkinTest, DuringAGameTheMarkerBlinksOnOverTheNewBackground) {
    StartWithCode({1, 1, 2, 3});
    Load();
    const std::string text = log.Text();
    const std::size_t stopped = text.find("board at 196,542\n");
    const std::size_t put = text.find("pictures of");
    const std::size_t started = text.find("number 1 at 196,542\n");
    EXPECT_LT(stopped, put);
    EXPECT_LT(put, started);
    EXPECT_EQ(text.substr(started), "number 1 at 196,542\nrepaint the window\n");
    log.Clear();
    Pause(clock, 1500, true);
    EXPECT_EQ(log.Text(), "wait 1000\nboard at 196,542\nwait 500\n");
}

TEST_F(MainSkinTest, EveryWindowHasItsMask) {
    struct Mask {
        SkinPicture picture;
        std::string path;
        Size size;
    };
    for (const Mask& mask : {Mask{kBoardMask, "Game/Boardmask", {655, 605}},
                             Mask{kConfigMask, "Config/Configmask", {640, 490}},
                             Mask{kHighMask, "High/Highmask", {460, 448}},
                             Mask{kAboutMask, "About/Aboutmask", {464, 316}}}) {
        log.Clear();
        EXPECT_EQ(ReadMasks(reader, global, 2, mask.picture).single.size(), mask.size);
        EXPECT_EQ(log.Text(), "read /game/Skin/Beacon/" + mask.path + ".bmp\n");
    }
}

}  // namespace
}  // namespace quendrel::test
