// Flat shapes as signed distances: pixels from the edge, negative inside. All shapes can be
// combined and inset, however they were made.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "kit/Vector.h"
#include "ui/layout/BoardGeometry.h"

namespace quendrel::art {

using Shape = std::function<double(Vec2)>;

Shape RoundedBox(Vec2 topLeft, Vec2 bottomRight, double radius);
Shape RoundedBox(Rect box, double inset, double radius);
Shape Ellipse(Vec2 center, Vec2 radii);

/// A stroke of the given width with round ends.
Shape Stroke(Vec2 from, Vec2 to, double width);

Shape Inset(Shape shape, double by);
Shape Union(Shape a, Shape b);
Shape Moved(Shape shape, Vec2 by);

/// A band of the given width along the edge of `shape`, its outer side `depth` pixels inside.
Shape Band(Shape shape, double depth, double width);

/// How wide the dark rim is within a window's outline, where its mask cuts hard.
inline constexpr double kDarkRim = 2;

/// The distances for a window's body on both sides of `outline`: inside, and outside too, since
/// another skin's mask may cut the window larger. Along the outline they are small, which makes the
/// dark rim there; it reaches so far outside that a pixel whose middle lies inside shows nothing
/// else.
Shape BothSides(Shape outline);

/// 1 inside, 0 outside. The edge is hard, since the canvas smooths by taking several samples.
inline double Inside(double distance) { return distance < 0 ? 1.0 : 0.0; }

/// The direction in which the distance grows: outward.
Vec2 Outward(const Shape& shape, Vec2 p);

/// Distances sampled on a grid once and interpolated, for shapes that are slow to evaluate.
class DistanceGrid {
public:
    /// Samples `shape` over `area` with `perPixel` samples a pixel each way.
    DistanceGrid(const Shape& shape, Rect area, int perPixel);

    /// From samples that lie `step` pixels apart, the first at `origin`.
    DistanceGrid(std::shared_ptr<const std::vector<double>> values, int columns, int rows,
                 Vec2 origin, double step);

    double At(Vec2 p) const;

private:
    std::shared_ptr<const std::vector<double>> values_;
    int columns_;
    int rows_;
    Vec2 origin_;
    double step_;
};

/// The same distances, sampled once over `area` and a little beyond.
Shape Sampled(const Shape& shape, Rect area, int perPixel = 1);

/// A closed outline of lines and curves.
class Path {
public:
    explicit Path(Vec2 start) : points_{start} {}
    Path& LineTo(Vec2 to);
    /// A cubic curve by its two control points.
    Path& CurveTo(Vec2 control1, Vec2 control2, Vec2 to);
    /// The signed distance to the outline, closed back to its start.
    Shape Close() const;

private:
    std::vector<Vec2> points_;
};

}  // namespace quendrel::art
