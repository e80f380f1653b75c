#include "settings/PlaylistEditor.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "audio/Music.h"
#include "audio/Playlist.h"
#include "audio/SoundEffects.h"

namespace quendrel {

namespace {

/// The press selects in `pressed`; where both lists have a selection then, `other` loses its.
void Press(TuneList& pressed, int index, TuneList& other) {
    if (index != TuneList::kNone) pressed.selected = index;
    if (pressed.HasSelection() && other.HasSelection()) other.selected = TuneList::kNone;
}

}  // namespace

void PlaylistEditor::Fill() {
    FillFileList();
    lstPlayList_ = {global_.Playlist};
}

void PlaylistEditor::FillFileList() {
    lstFileList_ = {ListTunes(global_)};
    lstFileList_.SelectFirst();
}

void PlaylistEditor::PressFileList(int index) { Press(lstFileList_, index, lstPlayList_); }

void PlaylistEditor::PressPlayList(int index) { Press(lstPlayList_, index, lstFileList_); }

void PlaylistEditor::PressAdd() {
    Click();
    if (lstFileList_.HasSelection()) lstPlayList_.items.push_back(lstFileList_.Selected());
}

void PlaylistEditor::PressAddAll() {
    Click();
    AddAll();
}

void PlaylistEditor::AddAll() {
    lstPlayList_.items.insert(lstPlayList_.items.end(), lstFileList_.items.begin(),
                              lstFileList_.items.end());
}

void PlaylistEditor::PressRemove() {
    Click();
    if (!lstPlayList_.HasSelection()) return;
    lstPlayList_.items.erase(lstPlayList_.items.begin() + lstPlayList_.selected);
    if (lstPlayList_.items.empty()) {
        lstPlayList_.selected = TuneList::kNone;
        lstFileList_.SelectFirst();
    } else {
        lstPlayList_.selected = std::max(lstPlayList_.selected - 1, 0);
    }
}

void PlaylistEditor::PressRemoveAll() {
    Click();
    lstPlayList_ = {};
    lstFileList_.SelectFirst();
}

void PlaylistEditor::PressMove(int index) {
    Click();
    if (!lstPlayList_.HasSelection()) return;
    const int from = lstPlayList_.selected;
    const int onto = index == 1 ? from - 1 : from + 1;
    if (onto < 0 || onto >= static_cast<int>(lstPlayList_.items.size())) return;
    std::swap(lstPlayList_.items.at(static_cast<std::size_t>(from)),
              lstPlayList_.items.at(static_cast<std::size_t>(onto)));
    lstPlayList_.selected = onto;
}

void PlaylistEditor::PressListen() { Click(); }

/// Where both lists have a selection, the playlist's counts.
void PlaylistEditor::ClickListen() {
    std::optional<std::string> tune;
    if (lstFileList_.HasSelection()) tune = lstFileList_.Selected();
    if (lstPlayList_.HasSelection()) tune = lstPlayList_.Selected();
    music_.Listen(tune);
}

void PlaylistEditor::RestoreDefaults() {
    lstPlayList_ = {};
    AddAll();
}

void PlaylistEditor::Click() { sounds_.PlaySoundFx(SoundSlot::kSmallClick, SoundMode::kOnce); }

}  // namespace quendrel
