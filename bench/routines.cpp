// Times the small routines in memory, with the pictures of the first skin.
#include <array>
#include <cstdlib>
#include <cstring>
#include <random>

#include <benchmark/benchmark.h>

#include "FinishedGame.h"
#include "LeapingClock.h"
#include "SilentPlayer.h"
#include "StartUp.h"
#include "audio/SoundEffects.h"
#include "game/Scoring.h"
#include "settings/SkinList.h"
#include "ui/Board.h"
#include "ui/MainWindow.h"
#include "ui/PictureFile.h"

namespace quendrel::bench {

namespace {

/// A main window that is only its picture.
class PictureOnly : public MainWindow {
public:
    Picture& Image() override { return image_; }
    void ShowNow(const Rect& /*rect*/) override {}
    void RepaintAll() override {}
    void SetEnabled(Control /*control*/, bool /*enabled*/) override {}
    bool IsEnabled(Control /*control*/) const override { return true; }
    void SetVisible(Control /*control*/, bool /*visible*/) override {}
    void SetLeft(Control /*control*/, int /*left*/) override {}
    void SetTop(Control /*control*/, int /*top*/) override {}
    void SetWidth(Control /*control*/, int /*width*/) override {}
    void SetPictures(Control /*control*/, const ButtonPictures& /*pictures*/) override {}
    void SetHeld(Control /*control*/, bool /*held*/) override {}
    void SetCaption(Control /*control*/, const std::string& /*caption*/) override {}
    void SetMessageLine(int /*line*/, const MessageLine& /*content*/) override {}

private:
    Picture image_{kBoardSize.width, kBoardSize.height};
};

/// The pictures of the first skin in $QUENDREL_FOLDER.
BoardSkin FirstSkin(Global& global) {
    const char* const folder = std::getenv("QUENDREL_FOLDER");
    SetFolders(global, folder != nullptr ? folder : ".");
    ListSkins(global);
    PictureFileReader reader;
    return ReadMainSkin(reader, SkinRoot(global)).board;
}

RowOfPegs RandomRow(std::mt19937& engine) {
    RowOfPegs row;
    for (int column = 1; column <= kMaxColumns; ++column) {
        row[column] = static_cast<std::int16_t>(engine() % kColorCount + 1);
    }
    return row;
}

void CheckRow(benchmark::State& state) {
    std::mt19937 engine(1);
    std::array<RowOfPegs, 256> rows;
    for (RowOfPegs& row : rows) row = RandomRow(engine);
    std::size_t at = 0;
    for (auto _ : state) {
        at = (at + 1) % rows.size();
        benchmark::DoNotOptimize(ScoreGuess(rows.at(at), rows.front(), kMaxColumns));
    }
}
BENCHMARK(CheckRow);

constexpr Point kHole = PegAt(3, 7);

void ComposePeg(benchmark::State& state) {
    Global global;
    const Picture pegs = FirstSkin(global).picColors;
    Picture board(kBoardSize.width, kBoardSize.height);
    for (auto _ : state) {
        ComposeTransparent(board, kHole, kPegSize, pegs, {4 * kPegSize.width, 0}, pegs,
                           {11 * kPegSize.width, 0});
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ComposePeg);

void CopyPeg(benchmark::State& state) {
    Global global;
    const Picture pegs = FirstSkin(global).picColors;
    Picture board(kBoardSize.width, kBoardSize.height);
    for (auto _ : state) {
        for (int y = 0; y < kPegSize.height; ++y) {
            std::memcpy(board.Row(kHole.y + y) + kHole.x, pegs.Row(y) + 4 * kPegSize.width,
                        kPegSize.width * sizeof(Pixel));
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CopyPeg);

void BuildBoard(benchmark::State& state) {
    Global global;
    PictureOnly window;
    LeapingClock clock;
    SilentPlayer player;
    SoundEffects sounds(global, player);
    Board board(global, window, clock, sounds);
    board.SetSkin(FirstSkin(global));
    FillBoard(global);
    for (auto _ : state) {
        board.BuildBoard(global.Settings.GameMode);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BuildBoard)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quendrel::bench
