#pragma once

namespace brindlex {

/// A place on the screens: points from the upper left corner of the main screen, y downward.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

struct Rect {
    Point origin{};
    Size size{};

    constexpr double minX() const { return origin.x; }
    constexpr double maxX() const { return origin.x + size.width; }
    constexpr double minY() const { return origin.y; }
    constexpr double maxY() const { return origin.y + size.height; }

    constexpr bool isEmpty() const { return !(size.width > 0 && size.height > 0); }

    /// Whether the point lies within the rectangle enlarged by `margin` on every side, the limits
    /// included.
    constexpr bool containsWithin(double margin, Point point) const
    {
        return point.x >= minX() - margin && point.x <= maxX() + margin
            && point.y >= minY() - margin && point.y <= maxY() + margin;
    }

    bool operator==(const Rect&) const = default;
};

} // namespace brindlex
