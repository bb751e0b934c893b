// Lines and rings of geographic points on their way through preclipping.
#pragma once

#include <zrproj/projection.h>

#include <span>
#include <vector>

namespace ZrProj::preclip {

/// A line or a ring in degrees. A ring does not repeat its first point.
struct Path {
    std::vector<PROJPOINT> points;
    bool isRing = false;
    bool isAsGiven = false; // whether it is still the caller's, point for point
};

/// Whether a point is a longitude within 360 degrees either way and a latitude within 90. Marked and NaN points are
/// not.
bool isGeographic(PROJPOINT const& point);

/// The caller's line, broken where a point is not geographic.
std::vector<Path> linesOf(std::span<PROJPOINT const> points);

/// The caller's ring without the points that are not geographic; empty where fewer than three are left.
std::vector<Path> ringsOf(std::span<PROJPOINT const> points);

/// A path with unwrapped longitudes, which run on over the antimeridian, so that the short way from vertex to vertex is
/// a straight segment. The path must outlive it.
class Unwrapped {
public:
    explicit Unwrapped(Path const& path);

    std::size_t size() const { return points_.size(); }
    PROJPOINT const& operator[](std::size_t i) const { return points_[i]; }

    /// Moves a vertex eastwards by so little that no segment changes its way.
    void move(std::size_t i, double east) {
        points_[i].x += east;
        if (i == 0 && isRing_)
            points_.back().x += east;
    }

    /// Whether a ring contains a point: an odd number of segments lies to the north of it, or an even number where the
    /// ring contains the north pole. A ring whose winding number is odd contains the pole to which its mean latitude is
    /// nearer, and the one to its left where that is 0.
    bool contains(PROJPOINT const& point) const;

    /// Whether a ring has its interior to its left, that is, runs counter-clockwise.
    bool interiorIsLeft() const;

private:
    /// How far east of a longitude a vertex is, -180 to 180 degrees.
    double eastOf(double lon, std::size_t i) const;

    std::vector<PROJPOINT> const& given_;
    /// The vertices with unwrapped longitudes. A ring's last segment is there as well: it ends in the first vertex,
    /// whole turns further on.
    std::vector<PROJPOINT> points_;
    bool isRing_;
    double windingNumber_ = 0; // how often a ring winds around the globe, eastwards
    double signedArea_ = 0;    // of a ring down to the equator, positive counter-clockwise, square degrees
    bool containsNorthPole() const;
};

} // namespace ZrProj::preclip
