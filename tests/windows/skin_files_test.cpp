// The files of a skin as they lie in a folder: what is missing, cut short or of the wrong size.
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Global.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "ui/PictureFile.h"
#include "ui/SkinCheck.h"
#include "ui/SkinFiles.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

/// Every file that a skin consists of.
std::vector<std::string> AllNames() {
    std::vector<std::string> names{"Game/Board.bmp",          "Game/Colors.bmp",
                                   "Game/Coloranim.bmp",      "Game/Numbers.bmp",
                                   "Game/Dots.bmp",           "Game/Modes.bmp",
                                   "Game/Boardmask.bmp",      "Config/Config.bmp",
                                   "Config/Configmask.bmp",   "High/High.bmp",
                                   "High/Highmask.bmp",       "High/Interface/Easy.bmp",
                                   "About/About.bmp",         "High/Interface/Medium.bmp",
                                   "High/Interface/Hard.bmp", "About/Aboutmask.bmp"};
    const auto append = [&names](const std::string& folder, const std::vector<std::string>& buttons,
                                 const std::vector<std::string>& states) {
        for (const std::string& button : buttons) {
            for (const std::string& state : states) {
                names.push_back(folder + "/Interface/" + button + "_" + state + ".bmp");
            }
        }
    };
    const std::vector<std::string> all{"Up", "Disabled", "Down", "Over"};
    const std::vector<std::string> push{"Up", "Over", "Down"};
    append("Game", {"Hide"}, push);
    append("Game", {"Duel"}, all);
    append("Game", {"Timer"}, {"Up", "Disabled"});
    append("Game", {"Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check"}, all);
    append("Game", {"Easy", "Medium", "Hard"}, {"Up", "Disabled", "Down"});
    append("Game", {"Yes", "No", "Ok"}, all);
    append(
        "Game",
        {"Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink"},
        all);
    append("Config",
           {"Ok", "Cancel", "Default", "Skin(1)", "Skin(2)", "BestOf(1)", "BestOf(2)", "Add",
            "AddAll", "RemoveAll", "Remove", "Move(1)", "Move(2)", "Listen"},
           push);
    append("Config", {"Music", "RndMusic", "Sound", "ToolTips", "SetColor", "RndSkin", "PrvSkin"},
           {"Off", "On"});
    append("Config", {"GTimer", "MindDuel"}, {"Off", "On", "Disabled"});
    append("High", {"Ok"}, push);
    append("High", {"Default"}, all);
    append("About", {"Ok"}, push);
    return names;
}

/// Each test spoils a copy of our first skin.
class SkinFilesTest : public ::testing::Test {
protected:
    SkinFilesTest() {
        fs::copy(fs::path(QUENDREL_SKIN_FOLDER) / "Atelier", root, fs::copy_options::recursive);
        global.SkinFolder = folder.path() + "/";
        global.SkinNames = {"skin"};
    }

    /// What is said of the skin, which must be a single thing.
    std::string OnlyFault() {
        const std::vector<std::string> faults = FaultsOfSkin(reader, root);
        EXPECT_EQ(faults.size(), 1U);
        return faults.empty() ? "" : faults.front();
    }

    /// What the load of the whole skin says.
    std::string Refusal() {
        try {
            RequireWholeSkin(reader, global, 1);
            return "";
        } catch (const FileError& error) {
            return error.what();
        }
    }

    TemporaryFolder folder;
    Global global;
    const std::string root = folder.path() + "/skin";
    PictureFileReader reader;
};

TEST_F(SkinFilesTest, ASkinOfOursIsComplete) {
    EXPECT_EQ(FaultsOfSkin(reader, root), std::vector<std::string>{});
    EXPECT_EQ(Refusal(), "");
}

TEST_F(SkinFilesTest, OfAnEmptyFolderEveryFileIsNamed) {
    fs::remove_all(root);
    fs::create_directories(root);
    std::vector<std::string> expected;
    for (const std::string& name : AllNames()) {
        expected.push_back(root + "/" + name + ": is missing");
    }
    std::vector<std::string> faults = FaultsOfSkin(reader, root);
    for (std::string& fault : faults) fault.resize(fault.find("; it is a picture of "));
    std::sort(expected.begin(), expected.end());
    std::sort(faults.begin(), faults.end());
    EXPECT_EQ(faults, expected);
    EXPECT_EQ(faults.size(), 190U);
}

TEST_F(SkinFilesTest, EachFileThatIsMissingIsNamedAndTheSkinRefused) {
    for (const std::string& name : AllNames()) {
        const std::string path = root + "/" + name;
        fs::rename(path, path + ".away");
        EXPECT_EQ(OnlyFault().rfind(path + ": is missing; it is a picture of ", 0), 0U);
        EXPECT_EQ(Refusal(),
                  "The skin \"skin\" is damaged: " + path + ": No such file or directory");
        fs::rename(path + ".away", path);
    }
}

TEST_F(SkinFilesTest, EachFileThatIsCutShortIsNamedAndTheSkinRefused) {
    for (const std::string& name : AllNames()) {
        const std::string path = root + "/" + name;
        const std::string whole = folder.Read("skin/" + name);
        fs::resize_file(path, whole.size() / 2);
        const std::string expected = path + ": is cut short";
        EXPECT_EQ(OnlyFault(), expected);
        EXPECT_EQ(Refusal(), "The skin \"skin\" is damaged: " + expected);
        folder.Write("skin/" + name, whole);
    }
}

TEST_F(SkinFilesTest, AFileThatIsNoBitmapIsNamed) {
    folder.Write("skin/Game/Colors.bmp", "This is no picture, and rather long for a header.");
    EXPECT_EQ(OnlyFault(), root +
                               "/Game/Colors.bmp: is no Windows bitmap; save it as one, with 24 "
                               "bits a pixel");
}

TEST_F(SkinFilesTest, AWrongSizeIsNamedWithTheRightOne) {
    fs::copy_file(root + "/Game/Interface/Start_Up.bmp", root + "/Game/Interface/Exit_Up.bmp",
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(OnlyFault(), root +
                               "/Game/Interface/Exit_Up.bmp: has 82 x 44 pixels instead of "
                               "82 x 34 pixels");
    EXPECT_EQ(Refusal(), "The skin \"skin\" is damaged: " + OnlyFault());
    fs::copy_file(root + "/Game/Dots.bmp", root + "/Config/Config.bmp",
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(FaultsOfSkin(reader, root).front(),
              root + "/Config/Config.bmp: has 44 x 11 pixels instead of 640 x 490 pixels");
}

TEST_F(SkinFilesTest, TheModeSheetMayBeLarger) {
    fs::copy_file(root + "/Game/Board.bmp", root + "/Game/Modes.bmp",
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(Refusal(), "");
}

TEST_F(SkinFilesTest, NamesOfAnotherCaseAreFound) {
    fs::rename(root + "/Game/Board.bmp", root + "/Game/BOARD.BMP");
    fs::rename(root + "/About", root + "/about");
    EXPECT_EQ(FaultsOfSkin(reader, root), std::vector<std::string>{});
}

}  // namespace
}  // namespace quendrel::test
