// The files of a skin, as docs/making-a-skin.md lists them.
#pragma once

#include <string>
#include <vector>

#include "Geometry.h"

namespace quendrel::test {

struct File {
    std::string name;
    Size size;
};

/// Every file that a skin consists of; the buttons' come last.
inline std::vector<File> AllFiles() {
    std::vector<File> files{
        {"Game/Board.bmp", {655, 605}},           {"Game/Boardmask.bmp", {655, 605}},
        {"Game/Colors.bmp", {528, 27}},           {"Game/Coloranim.bmp", {440, 297}},
        {"Game/Numbers.bmp", {304, 16}},          {"Game/Dots.bmp", {44, 11}},
        {"Game/Modes.bmp", {305, 479}},           {"Config/Config.bmp", {640, 490}},
        {"Config/Configmask.bmp", {640, 490}},    {"High/High.bmp", {460, 448}},
        {"High/Highmask.bmp", {460, 448}},        {"High/Interface/Easy.bmp", {160, 28}},
        {"High/Interface/Medium.bmp", {160, 28}}, {"High/Interface/Hard.bmp", {160, 28}},
        {"About/About.bmp", {464, 316}},          {"About/Aboutmask.bmp", {464, 316}}};
    const auto append = [&files](const std::string& folder, const std::vector<std::string>& buttons,
                                 const std::vector<std::string>& states, Size size) {
        for (const std::string& button : buttons) {
            for (const std::string& state : states) {
                files.push_back({folder + "/Interface/" + button + "_" + state + ".bmp", size});
            }
        }
    };
    const std::vector<std::string> all{"Up", "Disabled", "Down", "Over"};
    const std::vector<std::string> push{"Up", "Over", "Down"};
    append("Game", {"Hide"}, push, {28, 26});
    append("Game", {"Duel"}, all, {28, 26});
    append("Game", {"Timer"}, {"Up", "Disabled"}, {26, 26});
    append("Game", {"Exit", "About", "Config", "High", "Show", "Clone"}, all, {82, 34});
    append("Game", {"Start", "Check"}, all, {82, 44});
    append("Game", {"Easy", "Medium", "Hard"}, {"Up", "Disabled", "Down"}, {92, 26});
    append("Game", {"Yes", "No", "Ok"}, all, {42, 24});
    append(
        "Game",
        {"Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink"},
        all, {82, 30});
    append("Config", {"Ok", "Cancel", "Default"}, push, {110, 34});
    append("Config", {"Skin(1)", "Skin(2)", "BestOf(1)", "BestOf(2)"}, push, {28, 28});
    append("Config", {"Move(1)", "Move(2)"}, push, {32, 32});
    append("Config", {"Add", "AddAll", "Remove", "RemoveAll", "Listen"}, push, {100, 26});
    append("Config", {"Music", "RndMusic", "Sound", "ToolTips", "SetColor", "RndSkin", "PrvSkin"},
           {"Off", "On"}, {180, 28});
    append("Config", {"GTimer", "MindDuel"}, {"Off", "On", "Disabled"}, {180, 28});
    append("High", {"Ok"}, push, {92, 34});
    append("High", {"Default"}, all, {92, 34});
    append("About", {"Ok"}, push, {70, 40});
    return files;
}

}  // namespace quendrel::test
