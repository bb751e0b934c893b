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
    bool isAsGiven = false; // still the caller's, point for point
};

/// Whether a point is a place: longitude within +-360, latitude within +-90. Marked and NaN points are none.
bool isPlace(PROJPOINT const& point);

/// The caller's line, broken where a point is no place.
std::vector<Path> linesOf(std::span<PROJPOINT const> points);

/// The caller's ring without the points that are no places; nothing where fewer than three points are left.
std::vector<Path> ringsOf(std::span<PROJPOINT const> points);

/// Longitudes running on over the antimeridian: the short way from point to point is a straight line. The path must
/// outlive it.
class Unrolled {
public:
    explicit Unrolled(Path const& path);

    std::size_t size() const { return points_.size(); }
    PROJPOINT const& operator[](std::size_t i) const { return points_[i]; }

    /// Moves a point of the path eastwards by a hair.
    void move(std::size_t i, double east) {
        points_[i].x += east;
        if (i == 0 && isRing_)
            points_.back().x += east;
    }

    /// Whether a ring holds a place: an odd number of edges lies to the north of it, or an even number where the ring
    /// holds the north pole. A ring that winds around the globe an odd number of times holds the pole to which its mean
    /// latitude is nearer, and the one to its left where that is 0.
    bool holds(PROJPOINT const& place) const;

    /// Whether a ring has what it holds to its left.
    bool holdsItsLeft() const;

private:
    /// How far east of a longitude a point of the path is, -180 to 180.
    double eastOf(double lon, std::size_t i) const;

    std::vector<PROJPOINT> const& given_;
    /// The edges, a ring's last one as well: it ends in the first point, turns of the globe further on.
    std::vector<PROJPOINT> points_;
    bool isRing_;
    double turns_ = 0;      // how often a ring winds around the globe, to the east
    double underneath_ = 0; // the integral of latitude over longitude, square degrees
    bool holdsNorthPole() const;
};

} // namespace ZrProj::preclip
