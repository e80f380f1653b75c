// The files of a skin as they lie in a folder: what is missing, cut short or of the wrong size.
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Global.h"
#include "SkinCopy.h"
#include "SkinFileList.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinCheck.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

/// The same in the groups in which they are spoilt. No two files of a group are compared with
/// each other, and of every button a part stays whole.
std::vector<std::vector<File>> Groups() {
    constexpr std::size_t buttons = 16;
    std::vector<std::vector<File>> groups(7);
    const std::vector<File> files = AllFiles();
    for (std::size_t i = 0; i < files.size(); ++i) {
        groups.at(i < buttons ? i % 7 : 4 + i % 2).push_back(files[i]);
    }
    return groups;
}

std::vector<std::string> Sorted(std::vector<std::string> lines) {
    std::sort(lines.begin(), lines.end());
    return lines;
}

/// Reads a file again only where its length has changed.
class RememberingReader {
public:
    Picture Read(const std::string& path) {
        std::error_code missing;
        const std::uintmax_t length = fs::file_size(path, missing);
        const auto known = known_.find({path, length});
        if (!missing && known != known_.end()) return known->second;
        return known_[{path, length}] = reader_(path);
    }

    operator PictureReader() {
        return [this](const std::string& path) { return Read(path); };
    }

private:
    PictureReader reader_ = ReadPictureFile;
    std::map<std::pair<std::string, std::uintmax_t>, Picture> known_;
};

/// Blank pictures, as large as a skin's but for those that a test makes larger or smaller.
class BlankPictures {
public:
    explicit BlankPictures(const std::string& root) {
        for (const auto& [name, size] : AllFiles()) Put(root + "/" + name, size);
    }

    void Put(const std::string& path, Size size) {
        pictures_.insert_or_assign(path, Picture(size.width, size.height));
    }

    Picture Read(const std::string& path) { return pictures_.at(path); }

    operator PictureReader() {
        return [this](const std::string& path) { return Read(path); };
    }

private:
    std::map<std::string, Picture> pictures_;
};

/// One pixel too wide, too narrow, too high and too low.
constexpr std::array<Size, 4> kOneOff{{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};

Size Off(Size size, Size by) { return {size.width + by.width, size.height + by.height}; }

std::string InPixels(Size size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels";
}

std::string IsMissing(const File& file) {
    return ": is missing; it is a picture of " + InPixels(file.size);
}

/// What is said of the file in the skin at `root` if it is off by so much, or nothing.
std::string SaidOf(const std::string& root, const File& file, Size by) {
    if (file.name == "Game/Modes.bmp" && by.width >= 0 && by.height >= 0) return "";
    return root + "/" + file.name + ": has " + InPixels(Off(file.size, by)) + " instead of " +
           InPixels(file.size);
}

/// Each test spoils a copy of our first skin.
class SkinFilesTest : public ::testing::Test {
protected:
    SkinFilesTest() {
        CopySkin(root);
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
    std::string Refusal() { return RefusalBy(reader); }
    std::string RefusalBy(const PictureReader& other) {
        try {
            ReadWholeSkin(other, global, 1, 1);
            return "";
        } catch (const FileError& error) {
            return error.what();
        }
    }

    /// Spoils the files, group by group: the check says `fault` of each of a group, and nothing
    /// else. Then one by one: the skin is refused with `refusal`.
    template <typename Fault, typename Spoil, typename Mend>
    void SpoilEach(const Fault& fault, const std::string& refusal, const Spoil& spoil,
                   const Mend& mend) {
        RememberingReader remembering;
        for (const std::vector<File>& files : Groups()) {
            std::vector<std::string> expected;
            for (const File& file : files) {
                spoil(file.name);
                expected.push_back(root + "/" + file.name + fault(file));
            }
            EXPECT_EQ(Sorted(FaultsOfSkin(remembering, root)), Sorted(expected));
            for (const File& file : files) mend(file.name);
            for (const File& file : files) {
                spoil(file.name);
                EXPECT_EQ(RefusalBy(remembering),
                          "The skin \"skin\" is damaged: " + root + "/" + file.name + refusal);
                mend(file.name);
            }
        }
    }

    TemporaryFolder folder;
    Global global;
    const std::string root = folder.path() + "/skin";
    const PictureReader reader = ReadPictureFile;
};

TEST_F(SkinFilesTest, ASkinOfOursIsComplete) {
    EXPECT_EQ(FaultsOfSkin(reader, root), std::vector<std::string>{});
    EXPECT_EQ(Refusal(), "");
}

TEST_F(SkinFilesTest, TheListOfWhatTheArtMakesNamesEveryFileOnce) {
    std::ifstream list(QUENDREL_SKIN_FILES_LIST);
    std::vector<std::string> listed;
    for (std::string line; std::getline(list, line);) listed.push_back(line);
    std::vector<std::string> expected;
    for (const File& file : AllFiles()) expected.push_back(file.name);
    EXPECT_EQ(Sorted(listed), Sorted(expected));
}

TEST_F(SkinFilesTest, OfAnEmptyFolderEveryFileIsNamedWithItsSize) {
    fs::remove_all(root);
    fs::create_directories(root);
    std::vector<std::string> expected;
    for (const File& file : AllFiles()) {
        expected.push_back(root + "/" + file.name + IsMissing(file));
    }
    const std::vector<std::string> faults = FaultsOfSkin(reader, root);
    EXPECT_EQ(Sorted(faults), Sorted(expected));
    EXPECT_EQ(faults.size(), 190U);
}

TEST_F(SkinFilesTest, EachFileThatIsMissingIsNamedAndTheSkinRefused) {
    const auto move = [this](const std::string& name, const char* from, const char* to) {
        fs::rename(root + "/" + name + from, root + "/" + name + to);
    };
    SpoilEach(
        IsMissing, ": cannot be opened: No such file or directory",
        [&](const std::string& name) { move(name, "", ".away"); },
        [&](const std::string& name) { move(name, ".away", ""); });
}

TEST_F(SkinFilesTest, EachFileThatIsCutShortIsNamedAndTheSkinRefused) {
    std::map<std::string, std::string> whole;
    for (const File& file : AllFiles()) whole[file.name] = folder.Read("skin/" + file.name);
    SpoilEach([](const File& /*file*/) { return ": is cut short"; }, ": is cut short",
              [&](const std::string& name) {
                  fs::resize_file(root + "/" + name, whole.at(name).size() / 2);
              },
              [&](const std::string& name) { folder.Write("skin/" + name, whole.at(name)); });
}

TEST_F(SkinFilesTest, EachFileThatIsOnePixelOffIsNamedWithItsRightSize) {
    for (const Size by : kOneOff) {
        BlankPictures blank(root);
        std::vector<std::string> expected;
        for (const File& file : AllFiles()) {
            blank.Put(root + "/" + file.name, Off(file.size, by));
            const std::string said = SaidOf(root, file, by);
            if (!said.empty()) expected.push_back(said);
        }
        EXPECT_EQ(Sorted(FaultsOfSkin(blank, root)), Sorted(expected));
    }
}

TEST_F(SkinFilesTest, ASkinWithOneFileThatIsOnePixelOffIsRefused) {
    BlankPictures blank(root);
    EXPECT_EQ(RefusalBy(blank), "");
    std::size_t turn = 0;
    for (const File& file : AllFiles()) {
        const Size by = kOneOff.at(++turn % kOneOff.size());
        blank.Put(root + "/" + file.name, Off(file.size, by));
        EXPECT_EQ(RefusalBy(blank), "The skin \"skin\" is damaged: " + SaidOf(root, file, by));
        blank.Put(root + "/" + file.name, file.size);
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
