// The installed skins.
#include <filesystem>

#include <gtest/gtest.h>

#include "Devices.h"
#include "Global.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "settings/SkinList.h"

namespace quendrel::test {
namespace {

class SkinListTest : public ::testing::Test {
protected:
    SkinListTest() {
        global.SkinFolder = folder.path() + "\\Skin\\";
        std::filesystem::create_directory(folder.path() + "/Skin");
    }

    void Install(const std::string& name) {
        std::filesystem::create_directory(folder.path() + "/Skin/" + name);
    }

    Log log;
    TemporaryFolder folder;
    Global global;
    ScriptedRandom random{log};
};

TEST_F(SkinListTest, ListsFoldersByNameWithoutRegardToCase) {
    Install("beacon");
    Install("Atelier");
    folder.Write("Skin/Aaron.txt", "no skin");
    ListSkins(global);
    EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"Atelier", "beacon"}));
}

TEST_F(SkinListTest, AHiddenFolderIsNoSkin) {
    Install(".git");
    Install("Atelier");
    ListSkins(global);
    EXPECT_EQ(global.SkinNames, std::vector<std::string>{"Atelier"});
}

TEST_F(SkinListTest, NoSkinAtAllIsAFileError) { EXPECT_THROW(ListSkins(global), FileError); }

TEST_F(SkinListTest, ASkinThatIsAddedStandsWhereTheNextStartFindsItAndTheOthersStayInUse) {
    global.SkinNames = {"Atelier", "beacon", "Carbon"};
    global.Settings.SkinPtr = 2;
    global.StoredSkinPtr = 1;
    EXPECT_EQ(AddSkin(global, "Azure"), 2);
    EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"Atelier", "Azure", "beacon", "Carbon"}));
    EXPECT_EQ(global.Settings.SkinPtr, 3);
    EXPECT_EQ(global.StoredSkinPtr, 1);
    EXPECT_EQ(AddSkin(global, "aaron"), 1);
    EXPECT_EQ(global.Settings.SkinPtr, 4);
    EXPECT_EQ(global.StoredSkinPtr, 2);
    EXPECT_EQ(AddSkin(global, "Zoo"), 6);
    EXPECT_EQ(global.Settings.SkinPtr, 4);
    for (const std::string& name : global.SkinNames) Install(name);
    const std::vector<std::string> added = global.SkinNames;
    ListSkins(global);
    EXPECT_EQ(global.SkinNames, added);
}

TEST_F(SkinListTest, ASkinThatIsInTheListIsNotAddedAgain) {
    global.SkinNames = {"Atelier", "Beacon"};
    global.Settings.SkinPtr = 2;
    EXPECT_EQ(AddSkin(global, "Atelier"), 1);
    EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"Atelier", "Beacon"}));
    EXPECT_EQ(global.Settings.SkinPtr, 2);
}

TEST_F(SkinListTest, AStandInThatIsChosenIsThePlayersChoice) {
    global.Settings.SkinPtr = 2;
    global.StoredSkinPtr = 3;
    ChooseSkin(global, 1);
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_EQ(global.StoredSkinPtr, 3);
    ChooseSkin(global, 1);
    EXPECT_EQ(global.StoredSkinPtr, std::nullopt);
}

TEST_F(SkinListTest, ARandomSkinIsAnyOfThem) {
    global.SkinNames = {"Atelier", "Beacon", "Carbon", "Daylight"};
    global.Settings.RndSkin = true;
    random.script = {0.0, 0.2499, 0.25, 0.9999};
    for (const int expected : {1, 1, 2, 4}) {
        PickRandomSkin(global, random);
        EXPECT_EQ(global.Settings.SkinPtr, expected);
    }
}

TEST_F(SkinListTest, WithoutTheSettingTheStoredSkinStays) {
    global.SkinNames = {"Atelier", "Beacon"};
    global.Settings.SkinPtr = 2;
    PickRandomSkin(global, random);
    EXPECT_EQ(global.Settings.SkinPtr, 2);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(SkinListTest, TheOnlySkinIsAlwaysPicked) {
    global.SkinNames = {"Atelier"};
    global.Settings.RndSkin = true;
    random.script = {0.9999};
    PickRandomSkin(global, random);
    EXPECT_EQ(global.Settings.SkinPtr, 1);
}

}  // namespace
}  // namespace quendrel::test
