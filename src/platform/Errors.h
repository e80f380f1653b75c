// What the program throws for files, stored values and its own end.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace quendrel {

/// A file that cannot be read, written or understood; the text names the path and the reason.
class FileError : public std::runtime_error {
public:
    FileError(const std::string& path, const std::string& reason)
        : std::runtime_error(path + ": " + reason) {}
};

/// What could not be saved on leaving, a line for each file.
class NotSaved : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A stored value that cannot be converted to its type.
class ConversionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Arithmetic on the system's ticks that left the range of its type.
class OverflowError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Not an error: the program has been told to end. Thrown by Clock::PumpEvents, so that every
/// wait, question and animation unwinds, and caught in main.
struct ProgramEnded {};

/// What went wrong, for the player.
std::string ReasonOf(const std::exception& error);

/// Says on standard error what went wrong. A control character of a name does nothing to the
/// terminal.
void ReportTrouble(const std::string& text);

}  // namespace quendrel
