// Lettering from font files, as shapes.
#pragma once

#include <memory>
#include <string>

#include "kit/Shapes.h"

namespace quendrel::art {

/// An open font file; throws std::runtime_error naming the file if it cannot be read.
class Font {
public:
    explicit Font(const std::string& file);
    ~Font();
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    /// A line of text set around `center`: horizontally by its advance width, vertically by the
    /// height of capitals. `spacing` pixels are added between letters.
    Shape Line(const std::string& text, double pixels, Vec2 center, double spacing = 0) const;

    /// The same line, set to the right of `leftMiddle`.
    Shape LineFrom(const std::string& text, double pixels, Vec2 leftMiddle,
                   double spacing = 0) const;

    /// The advance width of a line in pixels.
    double Width(const std::string& text, double pixels, double spacing = 0) const;

private:
    struct Face;
    std::unique_ptr<Face> face_;
};

}  // namespace quendrel::art
