#pragma once

namespace lexigrove
{

/// Controls are measured in units of 1/1440 inch; at the design resolution a pixel is 15 units.
constexpr int unitsPerPixel = 15;

struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

/// A place that may lie between two units.
struct ExactPoint {
    double x = 0;
    double y = 0;

    bool operator==(const ExactPoint&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(const Size&) const = default;
};

} // namespace lexigrove
