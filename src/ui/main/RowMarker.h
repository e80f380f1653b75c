// The blinking number of the active row, or of the code row while a player sets the code.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/Clock.h"

namespace quendrel {

class Board;
class MainView;
struct Global;

class RowMarker {
public:
    RowMarker(Global& global, MainView& window, Board& board, Clock& clock);

    /// "Start" saves what the window shows at the number of `row` (1 to 14; 0 is the code row)
    /// and shows the number; "Stop" puts the saved background back; any other command toggles.
    /// The number must not be shown when it is started.
    void BlinkRowNumber(int row, std::string_view command);

    /// Starts the marker of a row and tmrBlinkNr, which toggles it every second; stops both.
    void StartBlinking(int row);
    void StopBlinking(int row);

    /// The image has been drawn again without the marker: saves the background of its place anew,
    /// and shows the number where it was shown.
    void Redraw();

private:
    void SaveBackground(int row);
    void CopyToWindow(int cell, int row);

    Global& global_;
    MainView& window_;
    Board& board_;
    std::unique_ptr<Timer> tmrBlinkNr_;
    /// The row whose background is saved.
    std::optional<int> marked_;
    bool rowNumberShown_ = false;
};

}  // namespace quendrel
