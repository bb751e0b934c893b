#include "proj/preclip_path.h"

#include <cmath>

namespace ZrProj::preclip {

bool isGeographic(PROJPOINT const& point) {
    return std::fabs(point.x) <= 360 && std::fabs(point.y) <= 90;
}

std::vector<Path> linesOf(std::span<PROJPOINT const> points) {
    std::vector<Path> lines;
    for (std::size_t i = 0, next = 0; i < points.size(); i = next + 1) {
        for (next = i; next < points.size() && isGeographic(points[next]);)
            ++next;
        if (next - i >= 2)
            lines.push_back({{points.begin() + std::ptrdiff_t(i), points.begin() + std::ptrdiff_t(next)},
                             false,
                             next - i == points.size()});
    }
    return lines;
}

std::vector<Path> ringsOf(std::span<PROJPOINT const> points) {
    Path ring{{}, true, true};
    ring.points.reserve(points.size());
    for (auto const& point : points)
        if (isGeographic(point))
            ring.points.push_back(point);
    ring.isAsGiven = ring.points.size() == points.size();
    if (ring.points.size() > 1 && ring.points.front().x == ring.points.back().x &&
        ring.points.front().y == ring.points.back().y)
        ring.points.pop_back();
    if (ring.points.size() < 3)
        return {};
    return {std::move(ring)};
}

namespace {

/// The whole turns, in degrees, that make a step in longitude one that goes the short way.
double turnsOff(double step) {
    return std::fabs(step) > 180 ? -360 * std::round(step / 360) : 0;
}

} // namespace

Unwrapped::Unwrapped(Path const& path) : given_(path.points), isRing_(path.isRing) {
    points_.reserve(given_.size() + 1);
    points_.push_back(given_.front());
    double turned = 0; // whole turns, degrees
    for (std::size_t i = 1; i < given_.size() + (path.isRing ? 1 : 0); ++i) {
        auto const &from = given_[i - 1], &to = given_[i % given_.size()];
        turned += turnsOff(to.x - from.x);
        points_.push_back({to.x + turned, to.y});
        if (path.isRing)
            signedArea_ -= (points_[i].x - points_[i - 1].x) * (from.y + to.y) / 2;
    }
    windingNumber_ = std::round(turned / 360);
}

bool Unwrapped::containsNorthPole() const {
    if (std::fmod(windingNumber_, 2.0) == 0)
        return false;
    double const mean = -signedArea_ / windingNumber_ / 360;
    return std::fabs(mean) < 1e-9 ? windingNumber_ > 0 : mean > 0;
}

// By the longitude given, so that a ring's first vertex, which ends its last segment too, has one value.
double Unwrapped::eastOf(double lon, std::size_t i) const {
    return std::remainder(given_[i % given_.size()].x - lon, 360.0);
}

bool Unwrapped::contains(PROJPOINT const& point) const {
    bool inside = containsNorthPole();
    double from = eastOf(point.x, 0);
    for (std::size_t i = 1; i < points_.size(); ++i) {
        auto const &a = points_[i - 1], &b = points_[i];
        double const east = eastOf(point.x, i), step = b.x - a.x;
        double const to =
            east + 360 * std::round((from + step - east) / 360); // the segment goes over the globe's far side
        double const meridian = 360 * std::ceil(std::fmin(from, to) / 360); // the point's, whole turns away
        if (meridian < std::fmax(from, to) && a.y + (meridian - from) / (to - from) * (b.y - a.y) > point.y)
            inside = !inside;
        from = east;
    }
    return inside;
}

bool Unwrapped::interiorIsLeft() const {
    if (std::fmod(windingNumber_, 2.0) != 0)
        return (windingNumber_ > 0) == containsNorthPole();
    // The area down to the first vertex's latitude, so that a ring of even turns counts as if it wound around not at
    // all.
    double const first = points_.front().y;
    return signedArea_ + windingNumber_ * 360 * first > 0;
}

} // namespace ZrProj::preclip
