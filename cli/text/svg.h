// Pieces of SVG pictures.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ZrProj::Command {

/// A point of a map, in its own units, or of a picture.
struct MapPoint {
    double x, y;
};

/// The data of a path, on whole numbers: points that fall on the one before are left out, and so are lines without
/// length and rings of fewer than three points.
class SvgPath {
public:
    void addLine(std::span<MapPoint const> points) { add(points, false); }
    void addRing(std::span<MapPoint const> points) { add(points, true); }

    std::string const& data() const { return m_data; }

private:
    void add(std::span<MapPoint const> points, bool closed);

    std::string m_data;
};

/// The nearest whole number; where two are equally near, the same one although the last bits of a number differ.
long long wholeUnits(double value);

} // namespace ZrProj::Command
