// The playlist and its file.
#include "audio/Playlist.h"

#include <chrono>
#include <filesystem>
#include <random>

#include <gtest/gtest.h>

#include "FileLimits.h"
#include "Global.h"
#include "TemporaryFolder.h"
#include "WhatGoesWrong.h"
#include "platform/Errors.h"

namespace quendrel::test {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

class PlaylistTest : public ::testing::Test {
protected:
    PlaylistTest() {
        global.AppFolder = folder.path() + "\\";
        global.MusicFolder = folder.path() + "\\Music\\";
    }

    void MakeTunes(const Names& files) {
        std::filesystem::create_directories(folder.path() + "/Music");
        for (const std::string& file : files) folder.Write("Music/" + file, "x");
    }

    void Load(const std::string& bytes) {
        folder.Write("Playlist.dat", bytes);
        LoadPlaylist(global);
    }

    std::string Saved(const Names& names) {
        SetPlaylist(global, names);
        SavePlaylist(global);
        return folder.Read("Playlist.dat");
    }

    bool FileIsThere() const { return std::filesystem::exists(folder.path() + "/Playlist.dat"); }

    TemporaryFolder folder;
    Global global;
};

TEST_F(PlaylistTest, WithoutAFileItIsEveryTuneOfTheFolderByName) {
    MakeTunes({"waltz.mid", "Air.MID", "Canon in D.Mid", "notes.txt", "song.midi", ".mid", "mid"});
    std::filesystem::create_directories(folder.path() + "/Music/Folder.mid");
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"Air", "Canon in D", "waltz"}));
    EXPECT_EQ(global.PlaylistUpper, 2);
    EXPECT_FALSE(FileIsThere());
}

TEST_F(PlaylistTest, ATuneStandsBeforeThoseWhoseNamesGoOnBehindItsOwn) {
    MakeTunes({"Air (slow).mid", "Air-2.mid", "Air.mid", "air!.mid"});
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"Air", "Air (slow)", "air!", "Air-2"}));
}

TEST_F(PlaylistTest, WithoutFileAndFolderItIsEmpty) {
    LoadPlaylist(global);
    EXPECT_EQ(global.PlaylistUpper, -1);
    EXPECT_TRUE(global.Playlist.empty());
}

TEST_F(PlaylistTest, TheFileHoldsTheCountLessOneAndTheNamesAfterTheirLengths) {
    EXPECT_EQ(Saved({"Air", "Canon in D", "Été"}),
              "\x02\0"
              "\x03\0Air"
              "\x0A\0Canon in D"
              "\x03\0\xC9t\xE9"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"Air", "Canon in D", "Été"}));
    EXPECT_EQ(global.PlaylistUpper, 2);
}

TEST_F(PlaylistTest, AnEmptyListIsTwoBytes) {
    EXPECT_EQ(Saved({}), "\xFF\xFF"s);
    MakeTunes({"Air.mid"});
    LoadPlaylist(global);
    EXPECT_EQ(global.PlaylistUpper, -1);
    EXPECT_TRUE(global.Playlist.empty());
}

TEST_F(PlaylistTest, OfATuneThatStandsTwiceBothPlacesAreKept) {
    EXPECT_EQ(Saved({"A", "A"}), "\x01\0\x01\0A\x01\0A"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"A", "A"}));
}

TEST_F(PlaylistTest, AShorterListKeepsTheOldFilesTailAndReadingIgnoresIt) {
    Saved({"One", "Two", "Three"});
    EXPECT_EQ(Saved({"A"}), "\0\0\x01\0Ane\x03\0Two\x05\0Three"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, Names{"A"});
}

TEST_F(PlaylistTest, ANameOfNoLengthIsAName) {
    EXPECT_EQ(Saved({"", "B"}), "\x01\0\0\0\x01\0B"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"", "B"}));
}

TEST_F(PlaylistTest, TheLongestNameIsKeptWhole) {
    const std::string longest(65535, 'x');
    EXPECT_TRUE(Saved({longest, "B"}) == "\x01\0\xFF\xFF"s + longest + "\x01\0B"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{longest, "B"}));
}

TEST_F(PlaylistTest, ANameIsCutAtWhatItsLengthCanSay) {
    EXPECT_EQ(Saved({std::string(65536, 'x'), "B"}).size(), 2U + 2U + 65535U + 2U + 1U);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{std::string(65535, 'x'), "B"}));
}

TEST_F(PlaylistTest, ACountBelowMinusOneIsAnEmptyList) {
    Load("\xFE\xFF\x01\0A"s);
    EXPECT_EQ(global.PlaylistUpper, -1);
    EXPECT_TRUE(global.Playlist.empty());
    Load("\0\x80\x01\0A"s);
    EXPECT_EQ(global.PlaylistUpper, -1);
}

TEST_F(PlaylistTest, AListCutShortKeepsTheNamesThatAreWhole) {
    const std::string whole = "\x02\0\x03\0One\x03\0Two\x05\0Three"s;
    const std::vector<std::size_t> ends{7, 12, 19};
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        Load(whole.substr(0, size));
        Names expected;
        if (size >= ends[0]) expected.emplace_back("One");
        if (size >= ends[1]) expected.emplace_back("Two");
        if (size >= ends[2]) expected.emplace_back("Three");
        ASSERT_EQ(global.Playlist, expected) << size << " bytes";
        ASSERT_EQ(global.PlaylistUpper, static_cast<int>(expected.size()) - 1);
        ASSERT_EQ(folder.Read("Playlist.dat"), whole.substr(0, size));
    }
}

TEST_F(PlaylistTest, AStoredNameThatLeadsElsewhereIsLeftOut) {
    const std::string elsewhere =
        "\x05\0..\\Up"
        "\x05\0../Up"
        "\x05\0/root"
        "\x05\0\\root"
        "\x05\0Sub/A"
        "\x09\0A\\..\\..\\B"s;
    Load("\x07\0\x03\0One"s + elsewhere + "\x03\0..A"s);
    EXPECT_EQ(global.Playlist, (Names{"One", "..A"}));
    EXPECT_EQ(global.PlaylistUpper, 1);
}

TEST_F(PlaylistTest, TheLargestCountWithoutItsNamesKeepsThoseThatAreThere) {
    Load("\xFF\x7F\x01\0A\x01\0B"s);
    EXPECT_EQ(global.Playlist, (Names{"A", "B"}));
    EXPECT_EQ(global.PlaylistUpper, 1);
}

TEST_F(PlaylistTest, TheLongestListIsKeptAndWhatGoesBeyondItLeftOut) {
    EXPECT_EQ(Saved(Names(32768, "A")).substr(0, 5), "\xFF\x7F\x01\0A"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.PlaylistUpper, 32767);
    EXPECT_EQ(global.Playlist.size(), 32768U);
    SetPlaylist(global, Names(40000, "A"));
    EXPECT_EQ(global.PlaylistUpper, 32767);
    EXPECT_EQ(global.Playlist.size(), 32768U);
}

TEST_F(PlaylistTest, RandomBytesGiveAListThatAgreesWithItsCount) {
    std::mt19937 generator(11);
    for (int round = 0; round < 500; ++round) {
        std::string bytes(generator() % 300, '\0');
        for (char& byte : bytes) byte = static_cast<char>(generator());
        ASSERT_NO_THROW(Load(bytes));
        ASSERT_EQ(global.PlaylistUpper, static_cast<int>(global.Playlist.size()) - 1);
        ASSERT_EQ(folder.Read("Playlist.dat"), bytes);
    }
}

TEST_F(PlaylistTest, WhatTheCodePageCannotHoldFindsItsTuneAgain) {
    MakeTunes({"Вечер.mid", "Air.mid"});
    EXPECT_EQ(Saved({"Вечер", "Why?"}), "\x01\0\x05\0?????\x04\0Why?"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"Вечер", "Why?"}));
}

TEST_F(PlaylistTest, TunesThatAreWrittenAlikeAllComeBackInTheOrderOfTheFolder) {
    MakeTunes({"Осень.mid", "Вечер.mid", "Лодка.mid"});
    EXPECT_EQ(Saved({"Вечер", "Осень"}), "\x01\0\x05\0?????\x05\0?????"s);
    MakeTunes({"Air.mid"});
    std::filesystem::remove(folder.path() + "/Music/Лодка.mid");
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, (Names{"Вечер", "Осень"}));
    MakeTunes({"Лодка.mid"});
    Load("\x02\0\x05\0?????\x05\0?????\x05\0?????"s);
    EXPECT_EQ(global.Playlist, (Names{"Вечер", "Лодка", "Осень"}));
}

TEST_F(PlaylistTest, MoreEqualNamesThanTunesThatAreWrittenSoBeginAgainWithTheFirst) {
    MakeTunes({"Осень.mid", "Вечер.mid", "Why?.mid", "Whyж.mid"});
    Load("\x05\0\x05\0?????\x04\0Why?\x05\0?????\x05\0?????\x04\0Why?\x04\0Why?"s);
    EXPECT_EQ(global.Playlist, (Names{"Вечер", "Why?", "Осень", "Вечер", "Whyж", "Why?"}));
}

TEST_F(PlaylistTest, ANameWithAQuestionMarkThatFitsNoTuneStaysAsItIs) {
    MakeTunes({"Вечер.mid", "Air.mid"});
    Load("\x02\0\x03\0Ai?\x04\0????\x01\0\xE9"s);
    EXPECT_EQ(global.Playlist, (Names{"Ai?", "????", "é"}));
}

template <typename Deed>
std::chrono::steady_clock::duration TimeOf(const Deed& deed) {
    const auto begin = std::chrono::steady_clock::now();
    deed();
    return std::chrono::steady_clock::now() - begin;
}

TEST_F(PlaylistTest, ThousandsOfTunesOutsideTheCodePageTakeLittleMoreThanAListOfTheFolder) {
    std::filesystem::create_directories(folder.path() + "/Music");
    Names tunes;
    for (int i = 1000; i < 9000; ++i) tunes.push_back("Вечер Осень " + std::to_string(i));
    for (const std::string& tune : tunes) folder.Write("Music/" + tune + ".mid", "x");
    Saved(tunes);
    const auto list = TimeOf([this] { ListTunes(global); });
    EXPECT_LT(TimeOf([this] { LoadPlaylist(global); }), 10 * list);
    EXPECT_TRUE(global.Playlist == tunes);
}

TEST_F(PlaylistTest, AMusicFolderThatCannotBeListedIsAnEmptyOneForAListThatWasSaved) {
    MakeTunes({"Вечер.mid"});
    Saved({"Air", "Вечер"});
    const auto unreadable = std::filesystem::perms{0000};
    std::filesystem::permissions(folder.path() + "/Music", unreadable);
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0755});
    {
        const OrdinaryUser user;
        EXPECT_EQ(WhatGoesWrong([this] { LoadPlaylist(global); }), "nothing");
    }
    std::filesystem::permissions(folder.path() + "/Music", std::filesystem::perms{0700});
    EXPECT_EQ(global.Playlist, (Names{"Air", "?????"}));
}

TEST_F(PlaylistTest, WithoutAFileAMusicFolderThatCannotBeListedIsNamed) {
    MakeTunes({"Air.mid"});
    std::filesystem::permissions(folder.path() + "/Music", std::filesystem::perms{0000});
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0755});
    {
        const OrdinaryUser user;
        EXPECT_EQ(WhatGoesWrong([this] { LoadPlaylist(global); }),
                  folder.path() + "/Music: cannot be listed: Permission denied");
    }
    std::filesystem::permissions(folder.path() + "/Music", std::filesystem::perms{0700});
}

TEST_F(PlaylistTest, ATuneWithALineBreakInItsFileNameFindsItsFileAgain) {
    MakeTunes({"An\nAir.mid", "Re\u2028st.mid"});
    Load(Saved({"Re\u2028st", "An\nAir"}));
    EXPECT_EQ(global.Playlist, (Names{"Re\u2028st", "An\nAir"}));
}

TEST_F(PlaylistTest, ATuneWhoseFileIsListedComesBackWhateverItsNameWouldBeAlone) {
    MakeTunes({"A\\...mid"});
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, Names{"A\\.."});
    Load(Saved(global.Playlist));
    EXPECT_EQ(global.Playlist, Names{"A\\.."});
    EXPECT_EQ(TuneFile(global, "A\\.."), folder.path() + "/Music/A\\...mid");
}

TEST_F(PlaylistTest, FileAndFolderAreFoundWithoutRegardToCase) {
    folder.Write("PLAYLIST.DAT", "\0\0\x01\0A"s);
    LoadPlaylist(global);
    EXPECT_EQ(global.Playlist, Names{"A"});
    std::filesystem::create_directories(folder.path() + "/MUSIC");
    folder.Write("MUSIC/a.MID", "x");
    EXPECT_EQ(TuneFile(global, "A"), folder.path() + "/MUSIC/a.MID");
}

TEST_F(PlaylistTest, AListThatCannotBeWrittenIsNamed) {
    std::filesystem::create_directories(folder.path() + "/Playlist.dat");
    SetPlaylist(global, {"A"});
    try {
        SavePlaylist(global);
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(std::string(error.what()).find(folder.path() + "/Playlist.dat: "), 0U)
            << error.what();
    }
}

}  // namespace
}  // namespace quendrel::test
