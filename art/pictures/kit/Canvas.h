// A canvas of linear light that shaders paint on. Canvases lie in the coordinates of their window:
// a canvas cut out of another keeps its place, so that what is painted on it fits when it is put
// back.
#pragma once

#include <functional>
#include <vector>

#include "kit/Vector.h"
#include "ui/layout/BoardGeometry.h"

namespace quendrel::art {

/// The pixels of a canvas to one unit of its window's coordinates, each way. Whoever paints knows
/// units only.
inline constexpr int kFine = 2;

/// What a shader gives for a point: a colour, and how much it hides of what is beneath, 0 to 1.
struct Sample {
    Color color;
    double alpha = 0;
};

inline Sample Shadow(double strength) { return {{0.012, 0.008, 0.006}, Clamp01(strength)}; }

constexpr Rect Intersection(Rect a, Rect b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    return {left, top, std::max(0, std::min(a.right(), b.right()) - left),
            std::max(0, std::min(a.bottom(), b.bottom()) - top)};
}

constexpr Rect Grown(Rect r, int by) {
    return {r.left - by, r.top - by, r.width + 2 * by, r.height + 2 * by};
}

constexpr Rect CellAt(Point at, Size size) { return {at.x, at.y, size.width, size.height}; }

/// All of a window or picture, in its own coordinates.
constexpr Rect WholeOf(Size size) { return CellAt({0, 0}, size); }

constexpr Vec2 At(Point p) { return {static_cast<double>(p.x), static_cast<double>(p.y)}; }
constexpr Vec2 MiddleOf(Rect r) { return {r.left + r.width / 2.0, r.top + r.height / 2.0}; }
constexpr Vec2 MiddleOf(Point cell, Size size) { return MiddleOf(CellAt(cell, size)); }

/// The units up to `halfWidth` and `halfHeight` away from `middle`, each way.
constexpr Rect RectAround(Vec2 middle, int halfWidth, int halfHeight) {
    return {static_cast<int>(middle.x) - halfWidth, static_cast<int>(middle.y) - halfHeight,
            2 * halfWidth, 2 * halfHeight};
}

class Canvas {
public:
    explicit Canvas(Rect area);

    Rect Area() const { return area_; }

    /// The pixel that `p` lies in.
    const Color& At(Vec2 p) const { return pixels_[Index(Pixel(p.x), Pixel(p.y))]; }

    /// Pixel (x, y), counted from the corner of the window.
    const Color& Fine(int x, int y) const { return pixels_[Index(x, y)]; }

    /// The mean of the unit whose corner is (x, y).
    Color MeanOf(int x, int y) const;

    /// The part of the canvas that `area` covers, in the same coordinates.
    Canvas Cut(Rect area) const;

    using Shader = std::function<Sample(Vec2)>;

    /// Takes over what `source` shows in `area`; whatever lies outside either is left out.
    void Paste(const Canvas& source, Rect area);

    /// Paints `shader` over `area`; whatever lies outside the canvas is left out.
    void Paint(Rect area, const Shader& shader);

private:
    static int Pixel(double place) { return static_cast<int>(std::floor(place * kFine)); }

    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y - area_.top * kFine) *
                   static_cast<std::size_t>(area_.width * kFine) +
               static_cast<std::size_t>(x - area_.left * kFine);
    }
    void PaintRows(Rect area, const Shader& shader);

    Rect area_;
    std::vector<Color> pixels_;
};

}  // namespace quendrel::art
