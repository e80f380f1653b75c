// Times the small routines in memory, with the pictures of the first skin.
#include <array>
#include <cstdlib>
#include <cstring>
#include <random>

#include <benchmark/benchmark.h>

#include "StartUp.h"
#include "game/Scoring.h"
#include "settings/SkinList.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/main/Board.h"
#include "ui/picture/PictureFile.h"

namespace {

using namespace quendrel;

/// The peg strip of the first skin in $QUENDREL_FOLDER.
Picture FirstPegs() {
    Global global;
    const char* const folder = std::getenv("QUENDREL_FOLDER");
    SetFolders(global, folder != nullptr ? folder : ".");
    ListSkins(global);
    const PictureReader reader = ReadPictureFile;
    return ReadMainSkin(reader, {SkinRoot(global)}).board.picColors;
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
    while (state.KeepRunning()) {
        at = (at + 1) % rows.size();
        benchmark::DoNotOptimize(ScoreGuess(rows.at(at), rows.front(), kMaxColumns));
    }
}
BENCHMARK(CheckRow);

constexpr Point kHole = PegAt(3, 7);
constexpr Point kGreen{4 * kPegSize.width, 0};
constexpr Point kMask{11 * kPegSize.width, 0};

void ComposePeg(benchmark::State& state) {
    const Picture pegs = FirstPegs();
    Picture board(kBoardSize.width, kBoardSize.height);
    while (state.KeepRunning()) {
        ComposeTransparent(board, kHole, kPegSize, pegs, kGreen, pegs, kMask);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ComposePeg);

void CopyPeg(benchmark::State& state) {
    const Picture pegs = FirstPegs();
    Picture board(kBoardSize.width, kBoardSize.height);
    while (state.KeepRunning()) {
        for (int y = 0; y < kPegSize.height; ++y) {
            std::memcpy(board.Row(kHole.y + y) + kHole.x, pegs.Row(y) + kGreen.x,
                        kPegSize.width * sizeof(Pixel));
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CopyPeg);

}  // namespace
