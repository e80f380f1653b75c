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
#include "ui/skin/SkinFiles.h"

namespace {

using namespace quendrel;

/// The peg strip of the first skin in $QUENDREL_FOLDER, with so many pixels a unit.
Picture FirstPegs(int density) {
    Global global;
    const char* const folder = std::getenv("QUENDREL_FOLDER");
    SetFolders(global, folder != nullptr ? folder : ".");
    ListSkins(global);
    const PictureReader reader = ReadPictureFile;
    return ReadMainSkin(reader, {SkinRoot(global), density}).board.picColors;
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

Picture EmptyBoard(int density) {
    Picture board(kBoardSize.width * density, kBoardSize.height * density);
    board.SetDensity(density);
    return board;
}

void ComposePeg(benchmark::State& state) {
    const int density = static_cast<int>(state.range(0));
    const Picture pegs = FirstPegs(density);
    Picture board = EmptyBoard(density);
    while (state.KeepRunning()) {
        ComposeTransparent(board, kHole, kPegSize, pegs, kGreen, pegs, kMask);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ComposePeg)->Arg(1)->Arg(2);

void CopyPeg(benchmark::State& state) {
    const int density = static_cast<int>(state.range(0));
    const Picture pegs = FirstPegs(density);
    Picture board = EmptyBoard(density);
    const int left = kHole.x * density;
    const int top = kHole.y * density;
    const int green = kGreen.x * density;
    const int width = kPegSize.width * density;
    while (state.KeepRunning()) {
        for (int y = 0; y < kPegSize.height * density; ++y) {
            std::memcpy(board.Row(top + y) + left, pegs.Row(y) + green,
                        static_cast<std::size_t>(width) * sizeof(Pixel));
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CopyPeg)->Arg(1)->Arg(2);

}  // namespace
