// The playlist while the player edits it: the tunes of the folder beside the tunes of the list.
#pragma once

#include <string>
#include <vector>

#include "Global.h"

namespace quendrel {

class Music;
class SoundEffects;

/// A list box: its items, and which of them is selected.
struct TuneList {
    static constexpr int kNone = -1;

    std::vector<std::string> items;
    int selected = kNone;

    bool HasSelection() const { return selected != kNone; }
    const std::string& Selected() const { return items.at(static_cast<std::size_t>(selected)); }
    void SelectFirst() { selected = items.empty() ? kNone : 0; }
};

/// Works on lists of its own: the playlist in force changes when they are taken over. Called by
/// the configuration window, which shows both lists after every call. At most one list has a
/// selection, and the buttons act on the list that has it. The Press functions are for the left
/// mouse button going down on a button.
class PlaylistEditor {
public:
    PlaylistEditor(const Global& global, SoundEffects& sounds, Music& music)
        : global_(global), sounds_(sounds), music_(music) {}

    const TuneList& FileList() const { return lstFileList_; }
    const TuneList& PlayList() const { return lstPlayList_; }

    /// Both lists as they are when the window opens: the folder's tunes with the first selected,
    /// and the playlist in force.
    void Fill();

    /// A mouse button went down in a list: on the item `index`, or, below the last one, on kNone.
    void PressFileList(int index);
    void PressPlayList(int index);

    /// cmdAdd, cmdAddAll, cmdRemove, cmdRemoveAll. A tune may stand in the list more than once.
    void PressAdd();
    void PressAddAll();
    void PressRemove();
    void PressRemoveAll();

    /// cmdMove(1) moves the selected tune a place up, cmdMove(2) a place down.
    void PressMove(int index);

    /// cmdListen: pressing it clicks, a click plays the selected tune.
    void PressListen();
    void ClickListen();

    /// Every tune of the folder, in order, as the playlist.
    void RestoreDefaults();

private:
    void Click();
    void FillFileList();
    void AddAll();

    const Global& global_;
    SoundEffects& sounds_;
    Music& music_;
    TuneList lstFileList_;
    TuneList lstPlayList_;
};

}  // namespace quendrel
