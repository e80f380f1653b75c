#include "ui/main/RowMarker.h"

#include "Global.h"
#include "ui/layout/BoardSheets.h"
#include "ui/main/Board.h"
#include "ui/main/MainView.h"

namespace quendrel {

RowMarker::RowMarker(Global& global, MainView& window, Board& board, Clock& clock)
    : global_(global), window_(window), board_(board), tmrBlinkNr_(clock.MakeTimer(1000, [this] {
          BlinkRowNumber(global_.CodeEntry ? 0 : global_.ActiveRow, "Go");
      })) {}

void RowMarker::BlinkRowNumber(int row, std::string_view command) {
    if (command == "Start") SaveBackground(row);
    const bool show = command != "Stop" && !rowNumberShown_;
    CopyToWindow(show ? row : kSpareNumberCell, row);
    rowNumberShown_ = show;
    if (command == "Stop") marked_.reset();
}

/// The spare cell keeps the background under the shown number.
void RowMarker::SaveBackground(int row) {
    const Point at = global_.CodeEntry ? CodeNumberAt(row) : NumberAt(row);
    BitBlt(board_.Skin().picNumbers, NumberOnStrip(kSpareNumberCell), kNumberSize, window_.Image(),
           at);
    marked_ = row;
}

void RowMarker::Redraw() {
    if (!marked_) return;
    SaveBackground(*marked_);
    if (rowNumberShown_) CopyToWindow(*marked_, *marked_);
}

void RowMarker::CopyToWindow(int cell, int row) {
    const Point at = global_.CodeEntry ? CodeNumberAt(row) : NumberAt(row);
    BitBlt(window_.Image(), at, kNumberSize, board_.Skin().picNumbers, NumberOnStrip(cell));
    window_.ShowNow({at.x, at.y, kNumberSize.width, kNumberSize.height});
}

void RowMarker::StartBlinking(int row) {
    BlinkRowNumber(row, "Start");
    tmrBlinkNr_->SwitchOn();
}

void RowMarker::StopBlinking(int row) {
    BlinkRowNumber(row, "Stop");
    tmrBlinkNr_->SwitchOff();
}

}  // namespace quendrel
