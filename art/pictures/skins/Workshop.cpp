#include "skins/Workshop.h"

#include <array>
#include <string>

#include "ui/layout/AboutLayout.h"
#include "ui/layout/ConfigControls.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/layout/HighLayout.h"
#include "ui/layout/MainLayout.h"

namespace quendrel::art {

namespace {

// The main window: its name, and where its console is let in for the messages, the answer keys and
// the clock.
constexpr Vec2 kName{365, 24};
constexpr Rect kMessagePanel{14, 98, 176, 80};
constexpr Rect kAnswerTray{69, 61, 99, 31};
constexpr Rect kClockTray{18, layout::kClockButton.top - 1, 104, layout::kClockButton.height + 2};

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
        case Window::kAbout:
            return layout::kAboutWindow;
        case Window::kHigh:
            return layout::kHighWindow;
        case Window::kConfig:
            return layout::kConfigWindow;
        default:
            return kBoardSize;
    }
}

void FitMain(Canvas& canvas, const Craft& craft) {
    craft.PaintLettering(canvas, Lettering::kName, "Quendrel", kName);
    craft.PaintWell(canvas, kMessagePanel, Well::kMessages);
    craft.PaintWell(canvas, kAnswerTray, Well::kTray);
    craft.PaintWell(canvas, kClockTray, Well::kTray);
    const auto sockets = [&](const auto& places, Socket kind) {
        for (const Rect& place : places) craft.PaintSocket(canvas, place, kind);
    };
    sockets(layout::kMenuButtons, Socket::kKey);
    sockets(layout::kModeButtons, Socket::kKey);
    sockets(layout::kColorButtons, Socket::kPeg);
    sockets(std::array{layout::kDuelButton, layout::kHideButton}, Socket::kKey);
}

void FitAbout(Canvas& canvas, const Craft& craft) {
    const auto line = [&](Lettering kind, const std::string& text, double y) {
        craft.PaintLettering(canvas, kind, text, {kAboutMiddle, y});
    };
    line(Lettering::kAboutTitle, "Quendrel", kAboutTitle);
    line(Lettering::kVersion, craft.VersionWord() + QUENDREL_VERSION, kAboutVersion);
    line(Lettering::kSubject, "A code-breaking game with colours", kAboutSubject);
    line(Lettering::kMaker, "Made by Brimwell", kAboutMaker);
    craft.PaintWell(canvas, Grown(layout::kAboutEmail, kNicheMargin), Well::kLink);
    craft.PaintWell(canvas, Grown(layout::kAboutHome, kNicheMargin), Well::kLink);
    craft.PaintWell(canvas, Grown(layout::kAboutTorch, kNicheMargin), Well::kTorch);
    const auto label = [&](const char* text, Rect place) {
        craft.PaintLettering(canvas, Lettering::kLabel, text, {MiddleOf(place).x, kAboutLabels});
    };
    label("E-mail", layout::kAboutEmail);
    label("Home page", layout::kAboutHome);
    craft.PaintSocket(canvas, layout::kAboutOk, Socket::kKey);
}

void FitHigh(Canvas& canvas, const Craft& craft) {
    craft.PaintLettering(canvas, Lettering::kHighTitle, "Highscores", kHighTitle);
    craft.PaintWell(canvas, kHighWell, Well::kScores);
    const auto head = [&](const char* text, Lettering kind, double x) {
        craft.PaintLettering(canvas, kind, text, {x, kHighHeads});
    };
    head("Rank", Lettering::kColumn, MiddleOf(layout::HighRank(1)).x);
    head("Name", Lettering::kNameColumn, layout::HighName(1).left + kNameColumnWidth / 2);
    head("Row", Lettering::kColumn, MiddleOf(layout::HighRow(1)).x);
    head("Time", Lettering::kColumn, MiddleOf(layout::HighTime(1)).x);
    for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
        const Rect rank = layout::HighRank(entry);
        craft.PaintScoreRow(canvas, {kHighWell.left, rank.top, kHighWell.width, rank.height},
                            entry);
        craft.PaintRank(canvas, rank, entry);
    }
    craft.PaintSocket(canvas, layout::kHighMode, Socket::kModeSign);
    craft.PaintSocket(canvas, layout::kHighDefault, Socket::kKey);
    craft.PaintSocket(canvas, layout::kHighOk, Socket::kKey);
}

void FitConfig(Canvas& canvas, const Craft& craft) {
    const auto letter = [&](Lettering kind, const layout::ConfigHeading& heading) {
        craft.PaintLettering(canvas, kind, std::string(heading.text), At(heading.middle));
    };
    letter(Lettering::kConfigTitle, layout::kConfigTitle);
    for (const layout::ConfigHeading& head : layout::kConfigHeads) letter(Lettering::kBox, head);
    for (const Rect& place : layout::kConfigWells) craft.PaintWell(canvas, place, Well::kBox);
    for (const ButtonDesign& button : kConfigButtons) {
        craft.PaintSocket(canvas, button.place, Socket::kKey);
    }
    // Painted last, since a group's plate may lie over the shadow of a frame.
    for (const layout::ConfigHeading& group : layout::kConfigGroups) {
        letter(Lettering::kGroup, group);
    }
}

}  // namespace

BareWindow BuildWindow(const Craft& craft, Window window) {
    const Rect whole = WholeOf(SizeOf(window));
    BareWindow bare{Sampled(craft.Outline(window), whole), Canvas(whole)};
    craft.PaintBody(bare.canvas, window, bare.outline);
    switch (window) {
        case Window::kMain:
            FitMain(bare.canvas, craft);
            break;
        case Window::kAbout:
            FitAbout(bare.canvas, craft);
            break;
        case Window::kHigh:
            FitHigh(bare.canvas, craft);
            break;
        case Window::kConfig:
            FitConfig(bare.canvas, craft);
            break;
    }
    return bare;
}

void PaintSwitch(Canvas& canvas, const Craft& craft, const Button& button, SwitchState state) {
    const Rect place = button.place;
    const int top = place.top + (place.height - kLever.height) / 2;
    craft.PaintLever(canvas, {place.left + kLeverLeft, top, kLever.width, kLever.height}, state);
    const Vec2 caption{static_cast<double>(place.left + kSwitchCaption), MiddleOf(place).y};
    craft.PaintSwitchCaption(canvas, button.caption, caption, state);
}

}  // namespace quendrel::art
