// The playlist while the player edits it.
#include <filesystem>

#include <gtest/gtest.h>

#include "RecordingMachine.h"
#include "TemporaryFolder.h"
#include "audio/Music.h"
#include "audio/Playlist.h"
#include "audio/SoundEffects.h"
#include "settings/PlaylistEditor.h"

namespace quendrel::test {
namespace {

using Names = std::vector<std::string>;
constexpr int kNone = TuneList::kNone;

class PlaylistEditorTest : public RecordingMachine {
protected:
    PlaylistEditorTest() {
        global.SoundAvailable = true;
        global.AppFolder = folder.path() + "\\";
        global.MusicFolder = folder.path() + "\\Music\\";
        std::filesystem::create_directories(folder.path() + "/Music");
        for (const char* file : {"A.mid", "B.mid", "C.mid"}) {
            folder.Write("Music/" + std::string(file), "x");
        }
    }

    void Open(const Names& playlist) {
        SetPlaylist(global, playlist);
        editor.Fill();
        log.Clear();
    }

    void ExpectPlayList(const Names& items, int selected) {
        EXPECT_EQ(editor.PlayList().items, items);
        EXPECT_EQ(editor.PlayList().selected, selected);
    }

    TemporaryFolder folder;
    Global global;
    SoundEffects sounds{global, soundPlayer};
    Music music{global, mmcMidi, random, clock};
    PlaylistEditor editor{global, sounds, music};
};

TEST_F(PlaylistEditorTest, OpensWithTheFirstTuneOfTheFolderSelectedAndThePlaylistInForce) {
    Open({"C", "C"});
    EXPECT_EQ(editor.FileList().items, (Names{"A", "B", "C"}));
    EXPECT_EQ(editor.FileList().selected, 0);
    ExpectPlayList({"C", "C"}, kNone);
}

TEST_F(PlaylistEditorTest, WithoutTunesNothingIsSelected) {
    std::filesystem::remove_all(folder.path() + "/Music");
    Open({});
    EXPECT_EQ(editor.FileList().selected, kNone);
    editor.PressAdd();
    editor.PressRemoveAll();
    EXPECT_EQ(editor.FileList().selected, kNone);
    ExpectPlayList({}, kNone);
}

TEST_F(PlaylistEditorTest, EveryButtonClicksEvenWhereItDoesNothing) {
    Open({});
    editor.PressAdd();
    editor.PressAddAll();
    editor.PressRemove();
    editor.PressRemoveAll();
    editor.PressMove(1);
    editor.PressMove(2);
    editor.PressListen();
    EXPECT_EQ(log.Text(), "sound 2\nsound 2\nsound 2\nsound 2\nsound 2\nsound 2\nsound 2\n");
}

TEST_F(PlaylistEditorTest, AddingPutsTheSelectedTuneAtTheEndAsOftenAsItIsPressed) {
    Open({"A"});
    editor.PressFileList(1);
    editor.PressAdd();
    editor.PressAdd();
    ExpectPlayList({"A", "B", "B"}, kNone);
}

TEST_F(PlaylistEditorTest, AddingNeedsASelectionAmongTheFiles) {
    Open({"A"});
    editor.PressPlayList(0);
    editor.PressAdd();
    ExpectPlayList({"A"}, 0);
}

TEST_F(PlaylistEditorTest, AddingAllPutsEveryTuneAtTheEndInOrder) {
    Open({"C"});
    editor.PressAddAll();
    ExpectPlayList({"C", "A", "B", "C"}, kNone);
}

TEST_F(PlaylistEditorTest, RemovingSelectsTheItemBefore) {
    Open({"A", "B", "C"});
    editor.PressPlayList(2);
    editor.PressRemove();
    ExpectPlayList({"A", "B"}, 1);
    editor.PressRemove();
    ExpectPlayList({"A"}, 0);
}

TEST_F(PlaylistEditorTest, RemovingTheFirstSelectsTheNewFirst) {
    Open({"A", "B", "C"});
    editor.PressPlayList(0);
    editor.PressRemove();
    ExpectPlayList({"B", "C"}, 0);
}

TEST_F(PlaylistEditorTest, RemovingTheOnlyItemGivesTheFilesTheSelectionBack) {
    Open({"B"});
    editor.PressPlayList(0);
    EXPECT_EQ(editor.FileList().selected, kNone);
    editor.PressRemove();
    ExpectPlayList({}, kNone);
    EXPECT_EQ(editor.FileList().selected, 0);
}

TEST_F(PlaylistEditorTest, RemovingNeedsASelectionInThePlaylist) {
    Open({"A", "B"});
    editor.PressRemove();
    ExpectPlayList({"A", "B"}, kNone);
}

TEST_F(PlaylistEditorTest, RemovingAllGivesTheFilesTheSelectionBack) {
    Open({"A", "B"});
    editor.PressPlayList(1);
    editor.PressRemoveAll();
    ExpectPlayList({}, kNone);
    EXPECT_EQ(editor.FileList().selected, 0);
}

TEST_F(PlaylistEditorTest, MovingTakesTheSelectionAlongAndStopsAtTheEnds) {
    Open({"A", "B", "C"});
    editor.PressPlayList(0);
    editor.PressMove(1);
    ExpectPlayList({"A", "B", "C"}, 0);
    editor.PressMove(2);
    ExpectPlayList({"B", "A", "C"}, 1);
    editor.PressMove(2);
    ExpectPlayList({"B", "C", "A"}, 2);
    editor.PressMove(2);
    ExpectPlayList({"B", "C", "A"}, 2);
    editor.PressMove(1);
    ExpectPlayList({"B", "A", "C"}, 1);
    editor.PressMove(1);
    ExpectPlayList({"A", "B", "C"}, 0);
}

TEST_F(PlaylistEditorTest, MovingNeedsASelectionInThePlaylist) {
    Open({"A", "B"});
    editor.PressMove(2);
    editor.PressMove(1);
    ExpectPlayList({"A", "B"}, kNone);
}

TEST_F(PlaylistEditorTest, AtMostOneListHasASelection) {
    Open({"A", "B"});
    editor.PressPlayList(1);
    EXPECT_EQ(editor.FileList().selected, kNone);
    editor.PressFileList(2);
    EXPECT_EQ(editor.FileList().selected, 2);
    EXPECT_EQ(editor.PlayList().selected, kNone);
}

TEST_F(PlaylistEditorTest, APressBelowTheLastItemLeavesTheSelectionWhereItIs) {
    Open({"A", "B"});
    editor.PressPlayList(kNone);
    EXPECT_EQ(editor.FileList().selected, 0);
    EXPECT_EQ(editor.PlayList().selected, kNone);
    editor.PressFileList(kNone);
    EXPECT_EQ(editor.FileList().selected, 0);
}

TEST_F(PlaylistEditorTest, ListeningPlaysTheSelectedTuneOfEitherList) {
    Open({"C"});
    editor.PressFileList(1);
    editor.ClickListen();
    EXPECT_EQ(log.Text(),
              "midi: close\nmidi: " + folder.path() + "/Music/B.mid\nmidi: open\nmidi: play\n");
    editor.PressPlayList(0);
    log.Clear();
    editor.ClickListen();
    EXPECT_EQ(log.Text(),
              "midi: close\nmidi: " + folder.path() + "/Music/C.mid\nmidi: open\nmidi: play\n");
}

TEST_F(PlaylistEditorTest, TheDefaultIsEveryTuneOfTheFolder) {
    Open({"C", "C"});
    editor.RestoreDefaults();
    ExpectPlayList({"A", "B", "C"}, kNone);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(PlaylistEditorTest, ThePlaylistInForceStaysAsItIs) {
    Open({"C"});
    editor.PressAddAll();
    EXPECT_EQ(global.Playlist, Names{"C"});
}

}  // namespace
}  // namespace quendrel::test
