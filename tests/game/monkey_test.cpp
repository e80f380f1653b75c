// A player who presses anything anywhere, at any time: what must hold of a game holds after each
// deed. What does not is shown by the seed, and by the fewest deeds that lead there.
//
// QUENDREL_MONKEY_EVENTS is the number of deeds in each mode, QUENDREL_MONKEY_SEED the seed of the
// first game; the seed of each next one is one more.
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "PlayedModes.h"
#include "WatchedGame.h"

namespace quendrel::test {
namespace {

#ifdef QUENDREL_SANITIZED
constexpr unsigned kDeedsOfAMode = 10'000;
#else
constexpr unsigned kDeedsOfAMode = 100'000;
#endif
constexpr int kDeedsOfAGame = 1000;
constexpr int kLooksCloselyEach = 200;

struct Setting {
    std::string name;
    PlayedMode mode;
    bool duel = false;
};

std::ostream& operator<<(std::ostream& out, const Setting& setting) { return out << setting.name; }

unsigned NumberFrom(const char* variable, unsigned otherwise) {
    const char* const text = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe)
    return text == nullptr ? otherwise : static_cast<unsigned>(std::stoul(text));
}

/// A game whose deeds come one after the other, each in the middle of whatever goes on then.
class DrivenGame : public WatchedGame {
public:
    DrivenGame(const Setting& setting, unsigned seed)
        : WatchedGame(setting.mode, setting.duel), chance_(seed) {
        random.onSeed = [this] {
            random.script.clear();
            for (int i = 0; i < 60; ++i) random.script.push_back(Chance(1000) / 1000.0);
        };
    }

    /// What was done, and what did not hold then.
    std::vector<Happening> done;
    std::string fault;

    void Drive() {
        Schedule();
        try {
            Run();
        } catch (const std::exception& error) {
            if (fault.empty()) fault = std::string("thrown: ") + error.what();
        }
    }

protected:
    virtual int After() = 0;
    virtual std::optional<Happening> Next() = 0;
    /// Whether the slow rules are looked at now.
    virtual bool LooksClosely() = 0;

private:
    int Chance(int count) { return static_cast<int>(chance_() % static_cast<unsigned>(count)); }

    void Schedule() {
        const int after = After();
        clock.In(after, [this, after] {
            std::optional<Happening> next = Next();
            if (!next) {
                clock.RequestEnd();
                return;
            }
            next->after = after;
            done.push_back(*next);
            Schedule();
            Check(LooksClosely());
            Do(*next);
            Check(false);
        });
    }

    /// Where a deed has ended a game, the idle board is still to be swept onto the screen.
    void Check(bool closely) {
        fault = Fault(closely);
        if (!fault.empty()) throw ProgramEnded{};
    }

    /// The codes are drawn apart from the deeds, of which some may be left out.
    std::minstd_rand chance_;
};

class Replay : public DrivenGame {
public:
    Replay(const Setting& setting, unsigned seed, const std::vector<Happening>& deeds)
        : DrivenGame(setting, seed), deeds_(deeds) {}

private:
    int After() override { return next_ < deeds_.size() ? deeds_[next_].after : 1; }
    std::optional<Happening> Next() override {
        if (next_ == deeds_.size()) return std::nullopt;
        return deeds_[next_++];
    }
    bool LooksClosely() override { return next_ == deeds_.size(); }

    const std::vector<Happening>& deeds_;
    std::size_t next_ = 0;
};

/// Does often what leads on, so that games come to their ends, and otherwise anything.
class Monkey : public DrivenGame {
public:
    Monkey(const Setting& setting, unsigned seed, int deeds)
        : DrivenGame(setting, seed), chance_(seed), left_(deeds) {}

private:
    int Upto(int count) { return static_cast<int>(chance_() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Upto(count) == 0; }

    int After() override {
        const int kind = Upto(100);
        if (kind < 25) return 0;
        if (kind < 80) return Upto(30);
        if (kind < 94) return Upto(300);
        return Upto(kind < 99 ? 1200 : 4000);
    }

    std::optional<Happening> Next() override {
        if (left_-- == 0) return std::nullopt;
        return OneIn(3) ? Anything() : Onwards();
    }

    bool LooksClosely() override { return OneIn(kLooksCloselyEach); }

    Happening Anything() {
        static const std::vector<Happening> all = AllHappenings();
        const Happening any = all.at(static_cast<std::size_t>(Upto(static_cast<int>(all.size()))));
        return any.deed == Deed::kEnd && !OneIn(10) ? Happening{} : any;
    }

    Happening Onwards() {
        if (WindowIsOver()) return InWindow();
        if (game.hiding.IsHidden()) return {Deed::kRestore, Upto(3)};
        if (Offers(Answer::kYes)) return ToQuestion();
        if (Takes(Answer::kOk)) return {Deed::kAnswer, 2};
        if (OffersRows()) return {Deed::kStrip, Upto(global.ActiveRow)};
        if (global.CodeEntry || RowIsOpen()) return ToRow();
        if (global.Settings.GameInProgress || !OneIn(5)) return {};
        const int kind = Upto(20);
        if (kind == 0) return {Deed::kCommand, 2};
        if (kind == 1) return {Deed::kMode, Upto(3)};
        return {Deed::kCommand, 6};
    }

    Happening InWindow() {
        const int kind = Upto(20);
        if (kind < 4) return {Deed::kSwitch, Upto(9)};
        if (kind < 6) return {Deed::kRounds, Upto(2)};
        if (kind == 6) return {Deed::kSkin, Upto(2)};
        return {kind < 16 ? Deed::kTake : Deed::kCancel};
    }

    Happening ToQuestion() {
        const bool leaves = window.Line(1).text == "- Exit -";
        return {Deed::kAnswer, OneIn(leaves ? 40 : 3) ? 0 : 1};
    }

    Happening ToRow() {
        RowOfPegs& row = global.CodeEntry ? global.SecretCode : global.ActiveRowColors;
        for (int column = 1; column <= global.CurrentMode().columns; ++column) {
            if (row[column] == 0) return ToHole(column);
        }
        return {Deed::kCommand, 7};
    }

    /// Now and then the row is filled with the code.
    Happening ToHole(int column) {
        if (column == 1) knows_ = OneIn(6) && !global.CodeEntry;
        const int any = 1 + Upto(global.CurrentMode().colors);
        const int color = knows_ ? global.SecretCode[column] : any;
        if (!window.Of(ColorButton(color)).enabled) return {Deed::kColorOff, color - 1};
        const bool chosen = global.SelectedColor == color || (!knows_ && global.SelectedColor > 0);
        if (!chosen || (!knows_ && OneIn(3))) return {Deed::kColor, color - 1};
        return {Deed::kHole, column - 1};
    }

    std::minstd_rand chance_;
    int left_ = 0;
    bool knows_ = false;
};

std::string RuleOf(const std::string& fault) { return fault.substr(0, fault.find(':')); }

/// The time of what is left out goes to the deed behind it.
std::vector<Happening> Without(std::vector<Happening> deeds, std::size_t at, std::size_t count) {
    int time = 0;
    for (std::size_t i = at; i < at + count; ++i) time += deeds[i].after;
    if (at + count < deeds.size()) deeds[at + count].after += time;
    const auto from = deeds.begin() + static_cast<std::ptrdiff_t>(at);
    deeds.erase(from, from + static_cast<std::ptrdiff_t>(count));
    return deeds;
}

/// Leaves out whatever the fault does not need: long stretches first, then single deeds.
std::vector<Happening> Shortened(const Setting& setting, unsigned seed,
                                 std::vector<Happening> deeds, const std::string& rule) {
    for (std::size_t length = deeds.size(); length > 0; length /= 2) {
        for (std::size_t at = 0; at < deeds.size();) {
            const std::size_t count = std::min(length, deeds.size() - at);
            const std::vector<Happening> fewer = Without(deeds, at, count);
            Replay replay(setting, seed, fewer);
            replay.Drive();
            if (RuleOf(replay.fault) == rule) {
                deeds = replay.done;
            } else {
                at += count;
            }
        }
    }
    return deeds;
}

std::string Report(const Setting& setting, unsigned seed, const DrivenGame& game) {
    std::ostringstream text;
    text << game.fault << "\nagain: QUENDREL_MONKEY_SEED=" << seed
         << " QUENDREL_MONKEY_EVENTS=" << kDeedsOfAGame << " monkey_test --gtest_filter='*Monkey*/"
         << setting << "'\n";
    for (const Happening& deed : Shortened(setting, seed, game.done, RuleOf(game.fault))) {
        text << "  " << deed << '\n';
    }
    return text.str();
}

class MonkeyTest : public ::testing::TestWithParam<Setting> {};

INSTANTIATE_TEST_SUITE_P(
    Played, MonkeyTest,
    ::testing::Values(Setting{"Easy", PlayedModes()[0]}, Setting{"Medium", PlayedModes()[1]},
                      Setting{"Hard", PlayedModes()[2]}, Setting{"Duel", PlayedModes()[0], true}),
    [](const ::testing::TestParamInfo<Setting>& one) { return one.param.name; });

TEST_P(MonkeyTest, WhateverIsDoneAndWheneverTheGameStaysWhole) {
    const auto events =
        static_cast<std::size_t>(NumberFrom("QUENDREL_MONKEY_EVENTS", kDeedsOfAMode));
    unsigned seed = NumberFrom("QUENDREL_MONKEY_SEED", 1);
    for (std::size_t done = 0; done < events; ++seed) {
        Monkey monkey(GetParam(), seed, kDeedsOfAGame);
        monkey.Drive();
        ASSERT_EQ(monkey.fault, "") << Report(GetParam(), seed, monkey);
        ASSERT_FALSE(monkey.done.empty());
        done += monkey.done.size();
    }
}

}  // namespace
}  // namespace quendrel::test
