#include "skins/Workshop.h"

#include <string>

#include "ui/AboutLayout.h"
#include "ui/ConfigLayout.h"
#include "ui/HighLayout.h"
#include "ui/MainLayout.h"

namespace quendrel::art {

namespace {

constexpr Vec2 kName{365, 24};

// The about window: its lines and the labels below the pictures.
constexpr double kAboutMiddle = 292;
constexpr double kAboutTitle = 86;
constexpr double kAboutVersion = 115;
constexpr double kAboutSubject = 140;
constexpr double kAboutMaker = 163;
constexpr double kAboutLabels = 272;

/// How far a niche opens around the picture in it: its rim's shadow ends before the picture.
constexpr int kNicheMargin = 7;

// The highscore window: its title, the heads of its columns, the well of all rows.
constexpr Vec2 kHighTitle{layout::kHighWindow.width / 2.0, 71};
constexpr double kHighHeads = 139;
constexpr Rect kHighWell{36, layout::kHighRowTop - 4, 388,
                         layout::kHighEntries* layout::kHighRowPitch + 8};

// Within a switch: its lever, and where its caption begins.
constexpr Size kLever{46, 24};
constexpr int kLeverLeft = 4;
constexpr int kSwitchCaption = 58;

Size SizeOf(Window window) {
    switch (window) {
        case Window::About:
            return layout::kAboutWindow;
        case Window::High:
            return layout::kHighWindow;
        case Window::Config:
            return layout::kConfigWindow;
        default:
            return kBoardSize;
    }
}

Vec2 At(Point p) { return {static_cast<double>(p.x), static_cast<double>(p.y)}; }

}  // namespace

Workshop::Workshop(const Craft& craft) : craft_(craft) {
    for (const Window window : {Window::Main, Window::About, Window::High, Window::Config}) {
        const auto [width, height] = SizeOf(window);
        outlines_.push_back(Sampled(craft_.Outline(window), {0, 0, width, height}));
    }
}

Shape Workshop::OutlineOf(Window window) const {
    return outlines_.at(static_cast<std::size_t>(window));
}

void Workshop::PaintBody(Canvas& canvas, Window window) const {
    craft_.PaintBody(canvas, window, OutlineOf(window));
}

// ---- The main window ----------------------------------------------------------------------------

void Workshop::PaintWindow(Canvas& canvas) const {
    PaintBody(canvas, Window::Main);
    craft_.PaintLettering(canvas, Lettering::Name, "Quendrel", kName);
    craft_.PaintWell(canvas, kMessagePanel, Well::Text);
    craft_.PaintWell(canvas, kAnswerTray, Well::Tray);
    craft_.PaintWell(canvas, kClockTray, Well::Tray);
    for (const Rect& place : layout::kMenuButtons) craft_.PaintSocket(canvas, place);
    for (const Rect& place : layout::kModeButtons) craft_.PaintSocket(canvas, place);
    for (const Rect& place : layout::kColorButtons) craft_.PaintSocket(canvas, place);
    craft_.PaintSocket(canvas, layout::kDuelButton);
    craft_.PaintSocket(canvas, layout::kHideButton);
}

void Workshop::PaintPegHole(Canvas& canvas, Point cell) const { craft_.PaintPegHole(canvas, cell); }

void Workshop::PaintMarkHole(Canvas& canvas, Point cell) const {
    craft_.PaintMarkHole(canvas, cell);
}

void Workshop::PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const {
    craft_.PaintNumber(canvas, cell, row, lit);
}

void Workshop::PaintPeg(Canvas& canvas, Point cell, int color) const {
    craft_.PaintPeg(canvas, cell, color);
}

void Workshop::PaintMark(Canvas& canvas, Point cell, int mark) const {
    craft_.PaintMark(canvas, cell, mark);
}

void Workshop::PaintCover(Canvas& canvas, Point cell, double open) const {
    craft_.PaintCover(canvas, cell, open);
}

Shape Workshop::PegMask(Point cell) const { return craft_.PegMask(cell); }

Shape Workshop::MarkMask(Point cell) const { return craft_.MarkMask(cell); }

void Workshop::PaintButton(Canvas& canvas, const Button& button, ButtonState state) const {
    craft_.PaintKey(canvas, button, state);
}

// ---- The about window ---------------------------------------------------------------------------

void Workshop::PaintAbout(Canvas& canvas) const {
    PaintBody(canvas, Window::About);
    const auto line = [&](Lettering kind, const char* text, double y) {
        craft_.PaintLettering(canvas, kind, text, {kAboutMiddle, y});
    };
    line(Lettering::Title, "Quendrel", kAboutTitle);
    line(Lettering::Head, "Version 1.0", kAboutVersion);
    line(Lettering::Note, "A code-breaking game with colours", kAboutSubject);
    line(Lettering::Note, "Made by Brimwell", kAboutMaker);
    for (const Rect& place : {layout::kAboutEmail, layout::kAboutHome, layout::kAboutTorch})
        craft_.PaintWell(canvas, Grown(place, kNicheMargin), Well::Niche);
    const auto label = [&](const char* text, Rect place) {
        craft_.PaintLettering(canvas, Lettering::Head, text, {MiddleOf(place).x, kAboutLabels});
    };
    label("E-mail", layout::kAboutEmail);
    label("Home page", layout::kAboutHome);
    craft_.PaintSocket(canvas, layout::kAboutOk);
}

void Workshop::PaintPushButton(Canvas& canvas, const Button& button, ButtonState state) const {
    craft_.PaintKey(canvas, button, state);
}

// ---- The highscore window -----------------------------------------------------------------------

void Workshop::PaintHigh(Canvas& canvas) const {
    PaintBody(canvas, Window::High);
    craft_.PaintLettering(canvas, Lettering::Title, "Highscores", kHighTitle);
    craft_.PaintWell(canvas, kHighWell, Well::Text);
    const auto head = [&](const char* text, Rect column) {
        craft_.PaintLettering(canvas, Lettering::Head, text, {MiddleOf(column).x, kHighHeads});
    };
    head("Rank", layout::HighRank(1));
    head("Name", {layout::HighName(1).left, 0, 40, 0});
    head("Row", layout::HighRow(1));
    head("Time", layout::HighTime(1));
    for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
        const Rect rank = layout::HighRank(entry);
        const Rect row{kHighWell.left, rank.top, kHighWell.width, rank.height};
        craft_.PaintScoreRow(canvas, row, entry);
        craft_.PaintRank(canvas, rank, entry);
    }
    craft_.PaintSocket(canvas, layout::kHighMode);
    craft_.PaintSocket(canvas, layout::kHighDefault);
    craft_.PaintSocket(canvas, layout::kHighOk);
}

void Workshop::PaintModeSign(Canvas& canvas, Rect place, int mode) const {
    craft_.PaintModeSign(canvas, place, mode);
}

// ---- The configuration window -------------------------------------------------------------------

void Workshop::PaintConfig(Canvas& canvas) const {
    PaintBody(canvas, Window::Config);
    const auto letter = [&](Lettering kind, const layout::ConfigHeading& heading) {
        craft_.PaintLettering(canvas, kind, std::string(heading.text), At(heading.middle));
    };
    letter(Lettering::Title, layout::kConfigTitle);
    for (const layout::ConfigHeading& group : layout::kConfigGroups)
        letter(Lettering::Heading, group);
    for (const layout::ConfigHeading& head : layout::kConfigHeads) letter(Lettering::Head, head);
    for (const Rect& place : layout::kConfigWells) craft_.PaintWell(canvas, place, Well::Text);
    for (const layout::ConfigPlace& button : layout::kConfigButtons)
        craft_.PaintSocket(canvas, button.place);
}

void Workshop::PaintSwitch(Canvas& canvas, const Button& button, SwitchState state) const {
    const Rect place = button.place;
    const int top = place.top + (place.height - kLever.height) / 2;
    craft_.PaintLever(canvas, {place.left + kLeverLeft, top, kLever.width, kLever.height}, state);
    const Vec2 caption{static_cast<double>(place.left + kSwitchCaption), MiddleOf(place).y};
    craft_.PaintSwitchCaption(canvas, button.caption, caption, state);
}

}  // namespace quendrel::art
