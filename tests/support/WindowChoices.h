// What the player has chosen in a window of choices, reckoned beside the game: what each press
// makes of it, what the window is to show, and what is to be kept.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

#include "Global.h"

namespace quendrel::test {

struct NamedSwitch {
    std::string_view name;
    bool SettingsRecord::*setting;
    /// What "Default" makes of it.
    bool usual;
};

inline constexpr std::array kNamedSwitches{
    NamedSwitch{"chkToolTips", &SettingsRecord::ToolTips, true},
    NamedSwitch{"chkSoundFx", &SettingsRecord::SoundFx, true},
    NamedSwitch{"chkSetColor", &SettingsRecord::SetColor, false},
    NamedSwitch{"chkMusic", &SettingsRecord::Music, true},
    NamedSwitch{"chkPrvSkin", &SettingsRecord::PrvSkin, true},
    NamedSwitch{"chkGTimer", &SettingsRecord::GTimer, false},
    NamedSwitch{"chkRndMusic", &SettingsRecord::RndMusic, false},
    NamedSwitch{"chkRndSkin", &SettingsRecord::RndSkin, false},
    NamedSwitch{"chkMindDuel", &SettingsRecord::MindDuel, false},
};

struct ListedTunes {
    std::vector<std::string> items;
    int selected = -1;

    void SelectFirst() { selected = items.empty() ? -1 : 0; }
    bool operator==(const ListedTunes&) const = default;
};

class ConfigChoices {
public:
    /// The tunes of the folder, and the skins, in the order of the list.
    ConfigChoices() = default;
    ConfigChoices(const Global& global, std::vector<std::string> tunes)
        : skin(global.SkinNames.at(static_cast<std::size_t>(global.Settings.SkinPtr - 1))),
          skins(global.SkinNames),
          bestOf_(global.Settings.BestOf),
          inGame_(global.Settings.GameInProgress),
          round_(global.Settings.Round) {
        for (const NamedSwitch& one : kNamedSwitches) {
            on_[std::string(one.name)] = global.Settings.*one.setting;
        }
        players = {global.Settings.PlayerNames[1], global.Settings.PlayerNames[2]};
        playlist.items = global.Playlist;
        files.items = std::move(tunes);
        files.SelectFirst();
    }

    /// What the window shows.
    static ConfigChoices Shown(const QWidget& window) {
        ConfigChoices shown;
        for (const NamedSwitch& one : kNamedSwitches) {
            shown.on_[std::string(one.name)] = Find<QAbstractButton>(window, one.name)->isChecked();
        }
        shown.players = {Find<QLineEdit>(window, "txtPlayer(1)")->text().toStdString(),
                         Find<QLineEdit>(window, "txtPlayer(2)")->text().toStdString()};
        shown.bestOf_ = Find<QLabel>(window, "lblBestOf")->text().toInt();
        shown.skin = Find<QLabel>(window, "lblSkin")->text().toStdString();
        shown.files = TunesOf(*Find<QListWidget>(window, "lstFileList"));
        shown.playlist = TunesOf(*Find<QListWidget>(window, "lstPlayList"));
        return shown;
    }

    /// What is kept of it.
    std::string Kept() const {
        std::string text;
        for (const auto& [name, on] : on_) text += name + (on ? " on, " : " off, ");
        text += players[0] + " and " + players[1] + ", best of " + std::to_string(bestOf_) +
                ", skin " + skin + ", tunes";
        for (const std::string& tune : playlist.items) text += ' ' + tune;
        return text;
    }

    std::string Text() const {
        return Kept() + "; selected " + std::to_string(files.selected) + " of " +
               std::to_string(files.items.size()) + " and " + std::to_string(playlist.selected);
    }

    /// A control goes down.
    void Press(std::string_view control) {
        if (control == "cmdBestOf(1)") bestOf_ -= bestOf_ > round_ + 1 ? 1 : 0;
        if (control == "cmdBestOf(2)") bestOf_ += bestOf_ < 10 ? 1 : 0;
        if (control == "cmdSkin(1)") Browse(-1);
        if (control == "cmdSkin(2)") Browse(1);
        if (control == "cmdMove(1)") Move(-1);
        if (control == "cmdMove(2)") Move(1);
        if (control == "cmdAdd" && files.selected >= 0) {
            playlist.items.push_back(files.items.at(static_cast<std::size_t>(files.selected)));
        }
        if (control == "cmdAddAll") AddAll();
        if (control == "cmdRemove") Remove();
        if (control == "cmdRemoveAll") {
            playlist = {};
            files.SelectFirst();
        }
    }

    /// It is let go upon itself. Switches that a round locks are none that can be.
    void Click(const std::string& control) {
        if (on_.contains(control) && !IsLocked(control)) on_[control] = !on_[control];
        if (control != "cmdDefault") return;
        for (const NamedSwitch& one : kNamedSwitches) on_[std::string(one.name)] = one.usual;
        players = {"Player 1", "Player 2"};
        bestOf_ = 5;
        skin = skins.front();
        playlist = {};
        AddAll();
    }

    /// A tune of a list is pressed, or, by -1, the place beside them.
    void PressTune(std::string_view list, int tune) {
        ListedTunes& pressed = list == "lstFileList" ? files : playlist;
        ListedTunes& other = list == "lstFileList" ? playlist : files;
        if (tune >= 0) pressed.selected = tune;
        if (pressed.selected >= 0 && other.selected >= 0) other.selected = -1;
    }

    bool IsOn(const std::string& control) const { return on_.at(control); }
    bool IsLocked(std::string_view control) const {
        return inGame_ && (control == "chkGTimer" || control == "chkMindDuel");
    }

    std::array<std::string, 2> players;
    std::string skin;
    std::vector<std::string> skins;
    ListedTunes files;
    ListedTunes playlist;

private:
    template <class Control>
    static Control* Find(const QWidget& window, std::string_view name) {
        return window.findChild<Control*>(
            QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    }

    static ListedTunes TunesOf(const QListWidget& list) {
        ListedTunes tunes;
        for (int i = 0; i < list.count(); ++i) {
            tunes.items.push_back(list.item(i)->text().toStdString());
        }
        if (!list.selectedItems().isEmpty()) tunes.selected = list.row(list.selectedItems()[0]);
        return tunes;
    }

    void Browse(int by) {
        const auto at = std::find(skins.begin(), skins.end(), skin) - skins.begin() + by;
        if (at >= 0 && at < static_cast<int>(skins.size())) {
            skin = skins.at(static_cast<std::size_t>(at));
        }
    }

    void AddAll() {
        playlist.items.insert(playlist.items.end(), files.items.begin(), files.items.end());
    }

    void Remove() {
        if (playlist.selected < 0) return;
        playlist.items.erase(playlist.items.begin() + playlist.selected);
        playlist.selected = std::max(playlist.selected - 1, 0);
        if (!playlist.items.empty()) return;
        playlist.selected = -1;
        files.SelectFirst();
    }

    void Move(int by) {
        const int onto = playlist.selected + by;
        if (playlist.selected < 0 || onto < 0) return;
        if (onto >= static_cast<int>(playlist.items.size())) return;
        std::swap(playlist.items.at(static_cast<std::size_t>(playlist.selected)),
                  playlist.items.at(static_cast<std::size_t>(onto)));
        playlist.selected = onto;
    }

    std::map<std::string, bool> on_;
    int bestOf_ = 0;
    bool inGame_ = false;
    int round_ = 0;
};

/// The list of the highscore window, and the win that waits there for a name.
class ScoreChoices {
public:
    ScoreChoices() = default;
    explicit ScoreChoices(HighscoreTable best, bool hasFile)
        : list_(std::move(best)), hasFile_(hasFile) {}

    /// A win comes in above the first time that is not better.
    void Enter(int row, int seconds, std::string offered) {
        before_ = list_;
        for (int i = kHighscores; i >= 1; --i) {
            if (list_[i].Time < seconds) break;
            if (i < kHighscores) list_[i + 1] = list_[i];
            entered_ = i;
        }
        list_[entered_] = {"", static_cast<std::int16_t>(row), static_cast<std::int16_t>(seconds)};
        name = std::move(offered);
    }

    bool IsEntering() const { return entered_ > 0; }
    bool HasFile() const { return hasFile_; }

    void Ok() {
        if (entered_ == 0) return;
        if (name.empty()) {
            list_ = before_;
        } else {
            list_[entered_].Name = name;
            hasFile_ = true;
        }
        entered_ = 0;
    }

    /// Easy's list when nobody has won yet.
    void Default() {
        entered_ = 0;
        hasFile_ = false;
        for (int i = 1; i <= kHighscores; ++i) {
            list_[i] = {"Quendrel v1.0", 0, static_cast<std::int16_t>(120 + 60 * i)};
        }
    }

    /// A win that waits for its name is not kept yet.
    const HighscoreTable& Kept() const { return entered_ > 0 ? before_ : list_; }

    std::string Text() const {
        std::string text = TextOf(list_);
        text += entered_ > 0 ? "entering \"" + name + "\" at " + std::to_string(entered_) : "";
        return text + (hasFile_ ? "" : ", as at first");
    }

    static std::string TextOf(const HighscoreTable& list) {
        std::string text;
        for (const HighscoreEntry& entry : list) {
            text += entry.Name + ' ' + std::to_string(entry.Row) + ' ' +
                    std::to_string(entry.Time) + ", ";
        }
        return text;
    }

    static std::string Shown(const QWidget& window) {
        std::string text;
        const auto* const entry = window.findChild<QLineEdit*>("txtEnterName");
        int entered = 0;
        for (int i = 1; i <= kHighscores; ++i) {
            const auto label = [&](const char* array) {
                return window.findChild<QLabel*>(QString("%1(%2)").arg(array).arg(i));
            };
            const QString time = label("lblHighTime")->text();
            const int seconds = time.left(2).toInt() * 60 + time.right(2).toInt();
            text += label("lblHighName")->text().toStdString() + ' ' +
                    label("lblHighRow")->text().toStdString() + ' ' + std::to_string(seconds) +
                    ", ";
            if (entry->isVisible() && entry->y() == label("lblHighName")->y()) entered = i;
        }
        if (entered > 0) {
            text +=
                "entering \"" + entry->text().toStdString() + "\" at " + std::to_string(entered);
        }
        return text +
               (window.findChild<QWidget*>("cmdDefault")->isEnabled() ? "" : ", as at first");
    }

    std::string name;

private:
    HighscoreTable list_;
    HighscoreTable before_;
    bool hasFile_ = false;
    int entered_ = 0;
};

}  // namespace quendrel::test
