// The controls whose place or number follows the mode and the active row.
#pragma once

namespace quendrel {

class MainView;
struct Global;

/// Shows and enables the colour buttons of the mode (0 to 2), with the labels behind them, and
/// hides the others.
void ShowModeColors(MainView& window, int mode);

/// Moves the six click targets over the holes of `row` (1 to 14), or of the code row while
/// CodeEntry. Only their tops change, and what a screen reader calls them.
void PlaceActiveRowLabels(const Global& global, MainView& window, int row);

/// Tells a screen reader what is in the hole of a column, or of every column, of the row that is
/// filled.
void NameHole(const Global& global, MainView& window, int column);
void NameHoles(const Global& global, MainView& window);

/// Enables or disables the click targets of columns 1 to `columns`.
void EnableHoles(MainView& window, int columns, bool enabled);

/// Enables or disables the three mode buttons.
void EnableModeButtons(MainView& window, bool enabled);

}  // namespace quendrel
