// The area of the oblique Mercators: the globe with a cut from pole to pole of the oblique equator.
#include "proj/preclip_areas.h"
#include "proj/preclip_crossings.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::preclip {

namespace {

constexpr double degree = 3.141592653589793 / 180;
double const aside = std::sin(formulas::lineInset / 4 * degree); // how far beside the cut its sides lie
constexpr double lastLatitude = 90 - formulas::placeInset;       // on the oblique globe

double eccentricPart(double e, double sinPhi) {
    return e == 0 ? 0 : e * std::atanh(e * sinPhi);
}

/// The latitude of an isometric latitude of the ellipsoid.
double latitudeOf(double e, double psi) {
    double phi = std::atan(std::sinh(psi));
    for (int i = 0; i < 100; ++i) { // each step leaves e^2 of the error
        double const next = std::atan(std::sinh(psi + eccentricPart(e, std::sin(phi))));
        if (std::fabs(next - phi) < 1e-16)
            return next;
        phi = next;
    }
    return phi;
}

/// Beside the cut, and nearer to it than its sides.
bool isInTheCut(Direction const& from) {
    return from.east < 0 && std::fabs(from.north) < aside / 2;
}

bool isOnFirstSide(Direction const& from) {
    return from.north >= 0;
}

/// In degrees, on the oblique globe.
double latitude(Direction const& from) {
    return std::atan2(from.up, std::hypot(from.east, from.north)) / degree;
}

} // namespace

ObliqueArea::Spot ObliqueArea::at(PROJPOINT const& point) const {
    double const phi = point.y * degree, theta = cut_.B * std::remainder(point.x - cut_.lon0, 360.0) - cut_.lonPole;
    if (cut_.B == 1 && cut_.e == 0 && cut_.logE == 0)
        return {point.x, point.y, pole_.direction({theta * degree, std::sin(phi), std::cos(phi)})};
    double const psi = std::asinh(std::tan(phi)) - eccentricPart(cut_.e, std::sin(phi));
    double const onSphere = cut_.B * psi + cut_.logE;
    return {point.x, point.y, pole_.direction({theta * degree, std::tanh(onSphere), 1 / std::cosh(onSphere)})};
}

PROJPOINT ObliqueArea::geographic(Direction const& from) const {
    auto const place = pole_.place(from);
    double const L = std::remainder(place.theta / degree + cut_.lonPole, 360.0);
    double const lon = std::remainder(cut_.lon0 + L / cut_.B, 360.0);
    if (cut_.B == 1 && cut_.e == 0 && cut_.logE == 0)
        return {lon, std::atan2(place.sin, place.cos) / degree};
    double const psi = (std::asinh(place.sin / place.cos) - cut_.logE) / cut_.B;
    return {lon, latitudeOf(cut_.e, psi) / degree};
}

/// The place so far beside the cut.
PROJPOINT ObliqueArea::beside(double latitude, double north) const {
    double const bounded = std::clamp(latitude, -lastLatitude, lastLatitude) * degree, across = std::cos(bounded);
    return geographic({-std::sqrt((across - north) * (across + north)), north, std::sin(bounded)});
}

PROJPOINT ObliqueArea::shown(Spot const& spot, PROJPOINT const& given) const {
    if (!isInTheCut(spot.from))
        return given;
    return beside(latitude(spot.from), isOnFirstSide(spot.from) ? aside : -aside);
}

bool ObliqueArea::keepsAsGiven(Spot const& spot, PROJPOINT const&) {
    return !isInTheCut(spot.from);
}

bool ObliqueArea::isOnBoundary(Spot const& spot) {
    constexpr double nearPole = 1.01 * formulas::placeInset * degree;
    auto const& from = spot.from;
    return (from.east < 0 && std::fabs(from.north) < 2 * aside) || std::hypot(from.east, from.north) < nearPole;
}

void ObliqueArea::crossings(Spot const& a, Spot const& b, Crossings& out) const {
    double const speed = (cut_.B * std::fabs(b.lon - a.lon) + 1.7 * std::fabs(b.lat - a.lat)) * degree;
    double const curvature = 2 * speed * speed, nearer = std::fmin(std::fabs(a.from.north), std::fabs(b.from.north));
    bool first = isOnFirstSide(a.from);
    if (first == isOnFirstSide(b.from) &&
        (nearer > curvature / 8 || (isOnBoundary(a) && isOnBoundary(b) && areNeighbours(a.from, b.from))))
        return; // clear of the cut, or a piece of one of its sides
    auto const placeAt = [&](double s) { return at({a.lon + s * (b.lon - a.lon), a.lat + s * (b.lat - a.lat)}).from; };
    auto const north = [&](double s) { return placeAt(s).north; };
    auto const cross = [&](double s) {
        auto const from = placeAt(s);
        if (from.east < 0) {
            double const lat = latitude(from), up = lat + 90, down = 540 + (90 - lat);
            out.push_back({false, first ? up : down, beside(lat, first ? aside : -aside)});
            out.push_back({true, first ? down : up, beside(lat, first ? -aside : aside)});
        }
        first = !first;
    };
    SignChanges(north, curvature, cross).search(0, a.from.north, 1, b.from.north);
}

PROJPOINT ObliqueArea::onBoundary(double t) const {
    if (t < sides[1])
        return beside(t - 90, aside);
    if (t >= sides[2] && t < sides[3])
        return beside(90 - (t - sides[2]), -aside);
    bool const northern = t < sides[2];
    double const along = (northern ? 360 - t : t - 900) * degree;
    double const up = (northern ? 1 : -1) * std::sin(lastLatitude * degree), across = std::cos(lastLatitude * degree);
    Direction from{across * std::cos(along), across * std::sin(along), up};
    if (from.east < 0 && std::fabs(from.north) < aside)
        from.north = std::copysign(aside, from.north);
    return geographic(from);
}

PROJPOINT ObliqueArea::outside(double t) const {
    return beside(t - 90, aside / 4);
}

} // namespace ZrProj::preclip
