#include "kit/Shapes.h"

#include <utility>

namespace quendrel::art {

Shape RoundedBox(Vec2 topLeft, Vec2 bottomRight, double radius) {
    const Vec2 center = (topLeft + bottomRight) * 0.5;
    const Vec2 half = (bottomRight - topLeft) * 0.5;
    return [=](Vec2 p) {
        const Vec2 q{std::abs(p.x - center.x) - half.x + radius,
                     std::abs(p.y - center.y) - half.y + radius};
        const double outside = Length({std::max(q.x, 0.0), std::max(q.y, 0.0)});
        return outside + std::min(std::max(q.x, q.y), 0.0) - radius;
    };
}

Shape RoundedBox(Rect box, double inset, double radius) {
    return RoundedBox({box.left + inset, box.top + inset},
                      {box.right() - inset, box.bottom() - inset}, radius);
}

Shape Ellipse(Vec2 center, Vec2 radii) {
    return [=](Vec2 p) {
        const Vec2 q = p - center;
        const double scaled = Length({q.x / radii.x, q.y / radii.y});
        const double slope = Length({q.x / (radii.x * radii.x), q.y / (radii.y * radii.y)});
        return slope < 1e-9 ? -std::min(radii.x, radii.y) : scaled * (scaled - 1) / slope;
    };
}

Shape Stroke(Vec2 from, Vec2 to, double width) {
    return [=](Vec2 p) {
        const Vec2 along = to - from;
        const double t = Clamp01(Dot(p - from, along) / Dot(along, along));
        return Length(p - from - along * t) - width / 2;
    };
}

Shape Inset(Shape shape, double by) {
    return [shape = std::move(shape), by](Vec2 p) { return shape(p) + by; };
}

Shape Union(Shape a, Shape b) {
    return [a = std::move(a), b = std::move(b)](Vec2 p) { return std::min(a(p), b(p)); };
}

Shape Moved(Shape shape, Vec2 by) {
    return [shape = std::move(shape), by](Vec2 p) { return shape(p - by); };
}

Shape Band(Shape shape, double depth, double width) {
    return [shape = std::move(shape), depth, width](Vec2 p) {
        return std::abs(shape(p) + depth + width / 2) - width / 2;
    };
}

Shape BothSides(Shape outline) {
    // A pixel reaches no further than this beyond its middle.
    constexpr double kPixelReach = 0.75;
    return [outline = std::move(outline)](Vec2 p) {
        const double d = outline(p);
        return d < 0 ? d : kPixelReach - kDarkRim - d;
    };
}

Vec2 Outward(const Shape& shape, Vec2 p) {
    constexpr double kStep = 0.2;
    return Vec2{shape({p.x + kStep, p.y}) - shape({p.x - kStep, p.y}),
                shape({p.x, p.y + kStep}) - shape({p.x, p.y - kStep})} *
           (0.5 / kStep);
}

DistanceGrid::DistanceGrid(const Shape& shape, Rect area, int perPixel)
    : columns_(area.width * perPixel + 1),
      rows_(area.height * perPixel + 1),
      origin_{static_cast<double>(area.left), static_cast<double>(area.top)},
      step_(1.0 / perPixel) {
    std::vector<double> values;
    for (int row = 0; row < rows_; ++row) {
        for (int column = 0; column < columns_; ++column) {
            values.push_back(shape(origin_ + Vec2{column * step_, row * step_}));
        }
    }
    values_ = std::make_shared<const std::vector<double>>(std::move(values));
}

DistanceGrid::DistanceGrid(std::shared_ptr<const std::vector<double>> values, int columns, int rows,
                           Vec2 origin, double step)
    : values_(std::move(values)), columns_(columns), rows_(rows), origin_(origin), step_(step) {}

double DistanceGrid::At(Vec2 p) const {
    const double gx = std::clamp((p.x - origin_.x) / step_, 0.0, columns_ - 1.001);
    const double gy = std::clamp((p.y - origin_.y) / step_, 0.0, rows_ - 1.001);
    const int x = static_cast<int>(gx);
    const int y = static_cast<int>(gy);
    const auto value = [this, &values = *values_](int column, int row) {
        return values[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                      static_cast<std::size_t>(column)];
    };
    const double top = Mix(value(x, y), value(x + 1, y), gx - x);
    const double bottom = Mix(value(x, y + 1), value(x + 1, y + 1), gx - x);
    return Mix(top, bottom, gy - y);
}

Shape Sampled(const Shape& shape, Rect area, int perPixel) {
    constexpr int kMargin = 4;
    const Rect grown{area.left - kMargin, area.top - kMargin, area.width + 2 * kMargin,
                     area.height + 2 * kMargin};
    const auto grid = std::make_shared<const DistanceGrid>(shape, grown, perPixel);
    return [grid](Vec2 p) { return grid->At(p); };
}

Path& Path::LineTo(Vec2 to) {
    points_.push_back(to);
    return *this;
}

Path& Path::CurveTo(Vec2 control1, Vec2 control2, Vec2 to) {
    constexpr int kPieces = 16;
    const Vec2 from = points_.back();
    for (int i = 1; i <= kPieces; ++i) {
        const double t = static_cast<double>(i) / kPieces;
        const double s = 1 - t;
        points_.push_back(from * (s * s * s) + control1 * (3 * s * s * t) +
                          control2 * (3 * s * t * t) + to * (t * t * t));
    }
    return *this;
}

Shape Path::Close() const {
    return [points = points_](Vec2 p) {
        double nearest = 1e18;
        bool inside = false;
        Vec2 from = points.back();
        for (const Vec2 to : points) {
            const Vec2 along = to - from;
            const double length = Dot(along, along);
            const double t = length > 0 ? Clamp01(Dot(p - from, along) / length) : 0;
            const Vec2 gap = p - from - along * t;
            nearest = std::min(nearest, Dot(gap, gap));
            if ((from.y > p.y) != (to.y > p.y) &&
                p.x < from.x + along.x * (p.y - from.y) / along.y) {
                inside = !inside;
            }
            from = to;
        }
        return inside ? -std::sqrt(nearest) : std::sqrt(nearest);
    };
}

}  // namespace quendrel::art
