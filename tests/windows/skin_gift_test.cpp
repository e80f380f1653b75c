// A skin that is given: what is taken of it, where it comes to, and what is refused.
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "FileLimits.h"
#include "Global.h"
#include "Log.h"
#include "RecordingWindow.h"
#include "SkinCopy.h"
#include "TemporaryFolder.h"
#include "WhatGoesWrong.h"
#include "ZipMaker.h"
#include "settings/GivenSkin.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinGift.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

class SkinGiftTest : public ::testing::Test {
protected:
    SkinGiftTest() { fs::create_directories(In("Skin")); }

    std::string In(const std::string& name) const { return folder.path() + "/" + name; }

    std::string Take(const std::string& gift) const {
        return TakeSkin(ReadPictureFile, In(gift), In("Skin"));
    }

    /// Why it is refused, behind its name.
    std::string Refusal(const std::string& gift) const {
        const std::string said = WhatGoesWrong([&] { static_cast<void>(Take(gift)); });
        return said.starts_with(In(gift) + ": ") ? said.substr(In(gift).size() + 2) : said;
    }

    /// Why an archive is refused that holds one of these.
    std::string RefusalOfZipWith(const std::function<void(ZipMaker&)>& add) const {
        {
            ZipMaker zip(In("Given.zip"));
            zip.Add("Game/Board.bmp", "BM");
            add(zip);
        }
        return Refusal("Given.zip");
    }

    /// Every file below a folder.
    Names FilesIn(const std::string& name) const {
        Names names;
        for (const auto& entry : fs::recursive_directory_iterator(In(name))) {
            if (!entry.is_directory()) names.insert(fs::relative(entry.path(), In(name)).string());
        }
        return names;
    }

    /// Packs a folder, each of its files under `top` and its name as `spell` spells it.
    void Zip(
        const std::string& name, const std::string& zip, const std::string& top,
        const std::function<std::string(std::string)>& spell = [](auto name) {
            return name;
        }) const {
        ZipMaker maker(In(zip));
        for (const std::string& file : FilesIn(name)) {
            maker.Add(top + spell(file), folder.Read((fs::path(name) / file).string()));
        }
    }

    void ExpectSame(const std::string& taken, const std::string& given) const {
        EXPECT_EQ(FilesIn(taken), FilesIn(given));
        for (const std::string& file : FilesIn(given)) {
            EXPECT_TRUE(folder.Read((fs::path(taken) / file).string()) ==
                        folder.Read((fs::path(given) / file).string()))
                << file;
        }
    }

    /// What is in the folder of skins, hidden or not.
    Names Skins() const {
        Names names;
        for (const auto& entry : fs::directory_iterator(In("Skin"))) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    TemporaryFolder folder;
};

TEST_F(SkinGiftTest, AFolderIsTakenWithBothItsTrees) {
    CopySkin(In("Mine"));
    CopySecondTree(In("Mine"));
    EXPECT_EQ(Take("Mine"), "Mine");
    EXPECT_EQ(Skins(), Names{"Mine"});
    ExpectSame("Skin/Mine", "Mine");
    EXPECT_EQ(FilesIn("Skin/Mine").size(), 381U);
}

TEST_F(SkinGiftTest, AnArchiveThatIsTheSkinGivesItsNameAndOneWithAFolderTheFolders) {
    CopySkin(In("Mine"));
    Zip("Mine", "Café 夜.ZIP", "");
    Zip("Mine", "download.zip", "Mine v1.0/");
    EXPECT_EQ(Take("Café 夜.ZIP"), "Café 夜");
    EXPECT_EQ(Take("download.zip"), "Mine v1.0");
    ExpectSame("Skin/Café 夜", "Mine");
    ExpectSame("Skin/Mine v1.0", "Mine");
}

TEST_F(SkinGiftTest, AFolderAroundTheSkinsIsNotTaken) {
    CopySkin(In("unpacked.zip/Mine"));
    EXPECT_EQ(Take("unpacked.zip"), "Mine");
    ExpectSame("Skin/Mine", "unpacked.zip/Mine");
    CopySkin(In("Other.zip"));
    folder.Write("Other.zip/README", "");
    EXPECT_EQ(Take("Other.zip"), "Other.zip");
}

TEST_F(SkinGiftTest, NamesInAnyCaseComeAsTheGameWritesThem) {
    CopySkin(In("Mine"));
    Zip("Mine", "Loud.zip", "./", [](std::string name) {
        for (char& letter : name) letter = static_cast<char>(std::toupper(letter));
        return name;
    });
    EXPECT_EQ(Take("Loud.zip"), "Loud");
    ExpectSame("Skin/Loud", "Mine");
}

TEST_F(SkinGiftTest, OnlyTheFilesOfASkinAndItsNotesAreTaken) {
    CopySkin(In("Mine"));
    const Names skin = FilesIn("Mine");
    fs::create_directories(In("Mine/__MACOSX/Game"));
    fs::create_directories(In("Mine/sources"));
    for (const char* const name :
         {"README.txt", "Readme.md", "Licence", "COPYING", "Copy.txt", "sources/Readme.txt",
          "readme.sh", "run.sh", "Game/Board.xcf", ".DS_Store", "Game/Thumbs.db",
          "Game/._Board.bmp", "__MACOSX/Game/Board.bmp", "Desktop.ini"}) {
        folder.Write("Mine/" + std::string(name), name);
    }
    fs::create_symlink("nowhere", In("Mine/.link"));
    Take("Mine");
    Names expected = skin;
    expected.insert({"README.txt", "Readme.md", "Licence", "COPYING"});
    EXPECT_EQ(FilesIn("Skin/Mine"), expected);
    EXPECT_EQ(folder.Read("Skin/Mine/Licence"), "Licence");
}

TEST_F(SkinGiftTest, ANameThatLeadsElsewhereRefusesAll) {
    for (const std::string name :
         {"../Skin/Beacon/Fonts.ini", "Game/../../../Fonts.ini", "/tmp/Fonts.ini",
          "Game\\Board.bmp", "..\\Fonts.ini", "Fonts.ini/..", "__MACOSX/../../Fonts.ini"}) {
        EXPECT_EQ(RefusalOfZipWith([&](ZipMaker& zip) { zip.Add(name, "[Clock]\n"); }),
                  "holds \"" + name + "\", a name that no skin may hold");
    }
    EXPECT_EQ(RefusalOfZipWith([](ZipMaker& zip) { zip.Add("Game/a\nb", ""); }),
              "holds \"Game/a b\", a name that no skin may hold");
    EXPECT_EQ(FilesIn(""), Names{"Given.zip"});
}

TEST_F(SkinGiftTest, LinksAndDevicesAreRefusedInArchivesAndFolders) {
    const std::string reason = ", which is a link or a device; a skin has files alone";
    EXPECT_EQ(
        RefusalOfZipWith([](ZipMaker& zip) { zip.AddOfType("Fonts.ini", S_IFLNK, "/etc/passwd"); }),
        "holds \"Fonts.ini\"" + reason);
    EXPECT_EQ(RefusalOfZipWith([](ZipMaker& zip) { zip.AddOfType("a", S_IFIFO, ""); }),
              "holds \"a\"" + reason);
    CopySkin(In("Mine"));
    fs::remove_all(In("Mine/About"));
    fs::create_directory_symlink(FirstSkin() / "About", In("Mine/About"));
    EXPECT_EQ(Refusal("Mine"), "holds \"About\"" + reason);
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, AFileThatIsThereTwiceIsRefused) {
    EXPECT_EQ(RefusalOfZipWith([](ZipMaker& zip) { zip.Add("game/BOARD.bmp", "BM"); }),
              "holds \"game/BOARD.bmp\" twice");
}

TEST_F(SkinGiftTest, AnEncryptedFileIsRefused) {
    EXPECT_EQ(RefusalOfZipWith([](ZipMaker& zip) { zip.AddEncrypted("Fonts.ini", ""); }),
              "Fonts.ini: is encrypted");
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, FilesThatUnpackToMoreThanASkinCanHaveAreNotUnpacked) {
    {
        ZipMaker zip(In("Given.zip"));
        zip.AddCompressed("Game/Modes.bmp", std::string(1000, 'x'));
        zip.Add("Game/Board.bmp", std::string(1000, 'x'));
    }
    StateLength(In("Given.zip"), (128 << 20) - 1000);
    EXPECT_EQ(Refusal("Given.zip"), "Game/Modes.bmp: is shorter than the archive says");
    StateLength(In("Given.zip"), (128 << 20) - 999);
    EXPECT_EQ(Refusal("Given.zip"), "is larger than 128 MiB");
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, WhatHoldsNoSkinOrSeveralIsRefused) {
    const std::string none = "holds no skin, neither at its top nor in a folder there";
    fs::create_directories(In("Mine"));
    EXPECT_EQ(Refusal("Mine"), none);
    fs::create_directories(In("Mine/a/b/Game"));
    folder.Write("Mine/a/b/Game/Board.bmp", "BM");
    EXPECT_EQ(Refusal("Mine"), none);
    for (const std::string name : {"One", "Two"}) {
        fs::create_directories(In("Mine/" + name + "/Game"));
        folder.Write("Mine/" + name + "/Game/Board.bmp", "BM");
    }
    EXPECT_EQ(Refusal("Mine"), "holds more than one skin; give one at a time");
}

TEST_F(SkinGiftTest, AHiddenNameIsNoneForASkin) {
    CopySkin(In(".Mine"));
    EXPECT_EQ(Refusal(".Mine"), "would be a skin called \".Mine\", which is no name for one");
    ZipMaker(In("Mine\\.zip")).Add("Game/Board.bmp", "BM");
    EXPECT_EQ(Refusal("Mine\\.zip"), "would be a skin called \"Mine\\\", which is no name for one");
    ZipMaker(In(".zip")).Add("Game/Board.bmp", "BM");
    EXPECT_EQ(Refusal(".zip"), "would be a skin called \".zip\", which is no name for one");
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, ASkinThatIsNotWholeIsRefusedWithTheFirstOfItsFaults) {
    CopySkin(In("Mine"));
    fs::remove(In("Mine/Game/Numbers.bmp"));
    folder.Write("Mine/Fonts.ini", "[Clock]\nSize=5\n");
    EXPECT_EQ(Refusal("Mine"),
              "is no whole skin:\n"
              "Game/Numbers.bmp: is missing; it is a picture of 304 x 16 pixels\n"
              "Fonts.ini: line 2: \"5\" is no whole number from 50 to 150");
    for (const char* const name : {"Colors", "Coloranim", "Dots", "Modes", "Boardmask"}) {
        fs::remove(In("Mine/Game/" + std::string(name) + ".bmp"));
    }
    const std::string said = Refusal("Mine");
    EXPECT_TRUE(
        said.ends_with("\nGame/Modes.bmp: is missing; it is a picture of 305 x 479 pixels"
                       "\nand 2 more"))
        << said;
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, ASecondTreeThatIsNotWholeIsRefusedToo) {
    CopySkin(In("Mine"));
    CopySecondTree(In("Mine"));
    fs::remove(In("Mine/2x/Game/Dots.bmp"));
    EXPECT_EQ(Refusal("Mine"),
              "is no whole skin:\n"
              "2x/Game/Dots.bmp: is missing; it is a picture of 88 x 22 pixels");
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, TheSameSkinOnceMoreIsLeftAsItIs) {
    CopySkin(In("Mine"));
    Take("Mine");
    folder.Write("Skin/Mine/My notes", "kept");
    EXPECT_EQ(Take("Mine"), "Mine");
    EXPECT_EQ(Take("Skin/Mine"), "Mine");
    EXPECT_EQ(folder.Read("Skin/Mine/My notes"), "kept");
}

TEST_F(SkinGiftTest, AnotherSkinOfTheSameNameIsLeftAsItIs) {
    const std::string refusal =
        "another skin is called \"Mine\" already, and is left as it is; give this one another name";
    CopySkin(In("Mine"));
    Take("Mine");
    folder.Write("Skin/Mine/Fonts.ini", "[Clock]\nSize=90\n");
    EXPECT_EQ(Refusal("Mine"), refusal);
    EXPECT_EQ(folder.Read("Skin/Mine/Fonts.ini"), "[Clock]\nSize=90\n");
    fs::remove(In("Skin/Mine/Fonts.ini"));
    EXPECT_EQ(Refusal("Mine"), refusal);
    fs::remove(In("Mine/Fonts.ini"));
    EXPECT_EQ(Take("Mine"), "Mine");
    CopySecondTree(In("Skin/Mine"));
    EXPECT_EQ(Refusal("Mine"), refusal);
    fs::remove_all(In("Skin/Mine"));
    fs::create_directories(In("Skin/Mine"));
    EXPECT_EQ(Refusal("Mine"), refusal);
}

TEST_F(SkinGiftTest, OnAFullDiskNoSkinComes) {
    CopySkin(In("Mine"));
    const std::string said = WhatGoesWrong([this] {
        const FileSizeLimit limit(100000);
        static_cast<void>(Take("Mine"));
    });
    EXPECT_TRUE(said.starts_with(In("Skin/Mine/")) && said.ends_with(".bmp: cannot be written: "
                                                                     "File too large"))
        << said;
    EXPECT_EQ(Skins(), Names{});
}

TEST_F(SkinGiftTest, WhileItIsTakenThePointerSaysSoAndNotBehindTheBoxThatRefusesIt) {
    Log log;
    RecordingWindow window{log};
    Global global;
    global.SkinFolder = In("Skin") + "\\";
    global.SkinNames = {"Atelier", "Zoo"};
    CopySkin(In("Mine"));
    EXPECT_EQ(TakeGivenSkin(global, ReadPictureFile, window, In("Mine")), 2);
    EXPECT_EQ(log.Text(), "busy\nready\n");
    log.Clear();
    EXPECT_EQ(TakeGivenSkin(global, ReadPictureFile, window, In("none.zip")), std::nullopt);
    EXPECT_EQ(log.Text(), "busy\nready\ntrouble: The skin cannot be taken: " + In("none.zip") +
                              ": cannot be opened: No such file or directory\n");
    EXPECT_EQ(global.SkinNames, (std::vector<std::string>{"Atelier", "Mine", "Zoo"}));
}

}  // namespace
}  // namespace quendrel::test
