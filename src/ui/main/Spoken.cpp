#include "ui/main/Spoken.h"

#include <cctype>
#include <string_view>

namespace quendrel {

namespace {

std::string Color(int color) {
    return color == 0 ? "empty" : std::string(ColorNames.at(static_cast<std::size_t>(color - 1)));
}

std::string Colors(const Global& global, const RowOfPegs& row) {
    std::string colors = Color(row[1]);
    for (int column = 2; column <= global.CurrentMode().columns; ++column) {
        colors += ", " + Color(row[column]);
    }
    return colors;
}

std::string Row(int row) { return "Row " + std::to_string(row); }

std::string Count(int count, const std::string& one, const std::string& more) {
    return std::to_string(count) + " " + (count == 1 ? one : more);
}

std::string Marks(const RowOfPegs& marks) {
    int black = 0;
    int white = 0;
    for (int slot = 1; slot <= kMaxColumns; ++slot) {
        if (marks[slot] == 1) ++black;
        if (marks[slot] == 2) ++white;
    }
    if (black + white == 0) return "no marks";
    std::string text;
    if (black > 0) text = std::to_string(black) + " black";
    if (white > 0) text += (text.empty() ? "" : ", ") + std::to_string(white) + " white";
    return text;
}

/// The titles stand between dashes.
std::string WithoutDashes(std::string_view line) {
    constexpr std::string_view begin = "- ";
    constexpr std::string_view end = " -";
    if (!line.starts_with(begin) || !line.ends_with(end)) return std::string(line);
    line.remove_prefix(begin.size());
    line.remove_suffix(end.size());
    return std::string(line) + ".";
}

/// A blank after a full stop that a word follows, and none before a question or exclamation mark.
std::string Spaced(const std::string& text) {
    std::string spaced;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : ' ';
        if (text[i] == ' ' && (next == '?' || next == '!')) continue;
        spaced += text[i];
        if (text[i] == '.' && std::isalpha(static_cast<unsigned char>(next)) != 0) spaced += ' ';
    }
    return spaced;
}

}  // namespace

std::string SpokenHole(const Global& global, int column) {
    const RowOfPegs& row = global.CodeEntry ? global.SecretCode : global.ActiveRowColors;
    return (global.CodeEntry ? "Code" : Row(global.ActiveRow)) + ", hole " +
           std::to_string(column) + ": " + Color(row[column]);
}

std::string SpokenCheckedRow(const Global& global, int row) {
    return Row(row) + ": " + Colors(global, global.GuessRows[row]) + "; " +
           Marks(global.ScoreMarks[row]);
}

std::string SpokenActiveRow(const Global& global) {
    return Row(global.ActiveRow) + ": " + Colors(global, global.ActiveRowColors);
}

std::string SpokenCode(const Global& global) { return Colors(global, global.SecretCode); }

/// A word that is divided between two lines is joined.
std::string SpokenMessage(const Message& message) {
    std::string text;
    for (int line = 1; line <= kPanelLines; ++line) {
        const std::string more = WithoutDashes(message[line].text);
        if (more.empty()) continue;
        if (text.ends_with('-')) {
            text.pop_back();
        } else if (!text.empty()) {
            text += ' ';
        }
        text += more;
    }
    return Spaced(text);
}

std::string SpokenGuesses(int guesses) { return Count(guesses, "guess", "guesses"); }

std::string SpokenTime(int seconds) {
    constexpr int kMinute = 60;
    constexpr int kHour = 60 * kMinute;
    if (seconds >= kHour) return "An hour or more";
    std::string rest = Count(seconds % kMinute, "second", "seconds");
    if (seconds < kMinute) return rest;
    return Count(seconds / kMinute, "minute", "minutes") + " " + rest;
}

}  // namespace quendrel
