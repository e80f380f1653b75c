// Flat shapes as signed distances: negative inside, in pixels from the edge. They are combined,
// inset and beveled alike, whatever they were made of.
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

/// A band of the given width inside the edge of `shape`, its outer edge `depth` within.
Shape Band(Shape shape, double depth, double width);

/// How wide the dark rim is within a window's outline, where its mask cuts hard.
inline constexpr double kDarkRim = 2;

/// The bodies on both sides of `outline`: the body within, and its material that goes on outside
/// for a window that another skin's mask cuts out. Between them lies the dark rim alone, and all
/// of every pixel whose middle lies within the outline is as if there were nothing outside.
Shape BothSides(Shape outline);

/// How much of the sample lies inside: a hard edge, for the canvas does the smoothing.
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
