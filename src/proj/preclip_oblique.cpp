// The area of the oblique Mercators: the globe with a cut from pole to pole of the oblique equator.
#include "proj/preclip_areas.h"
#include "proj/preclip_crossings.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::preclip {

namespace {

constexpr double degree = 3.141592653589793 / 180;
/// How far beside the cut paths are cut, and how far the boundary lies that they are closed along: there segments in
/// longitude and latitude must not get over the cut. The latter is an angle at the pole.
double const aside = std::sin(formulas::lineInset / 4 * degree), wellAside = std::sin(1e-4 * degree);
constexpr double endRadius = 2 * formulas::placeInset; // of the boundary around a pole; the holes there are smaller
constexpr double lastLatitude = 90 - endRadius;        // on the oblique globe

/// How far the boundary lies beside the cut: less nearer to the oblique equator, where the map's other edges meet it.
double boundaryAside(UnitVector const& vector) {
    return std::fmax(aside, wellAside * std::hypot(vector.east, vector.north) * std::fabs(vector.up));
}

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

/// Whether a point lies beside the cut, nearer to it than its sides.
bool isInTheCut(UnitVector const& vector) {
    return vector.east < 0 && std::fabs(vector.north) < aside / 2;
}

bool isOnFirstSide(UnitVector const& vector) {
    return vector.north >= 0;
}

/// The latitude on the oblique globe, degrees.
double latitude(UnitVector const& vector) {
    return std::atan2(vector.up, std::hypot(vector.east, vector.north)) / degree;
}

} // namespace

UnitVector ObliqueArea::vectorOf(PROJPOINT const& point) const {
    double const phi = point.y * degree, theta = cut_.B * std::remainder(point.x - cut_.lon0, 360.0) - cut_.lonPole;
    if (cut_.B == 1 && cut_.e == 0 && cut_.logE == 0)
        return pole_.vectorTo({theta * degree, std::sin(phi), std::cos(phi)});
    double const psi = std::asinh(std::tan(phi)) - eccentricPart(cut_.e, std::sin(phi));
    double const onSphere = cut_.B * psi + cut_.logE;
    return pole_.vectorTo({theta * degree, std::tanh(onSphere), 1 / std::cosh(onSphere)});
}

PROJPOINT ObliqueArea::geographic(UnitVector const& vector) const {
    auto const point = pole_.pointAt(vector);
    double const L = std::remainder(point.theta / degree + cut_.lonPole, 360.0);
    double const lon = std::remainder(cut_.lon0 + L / cut_.B, 360.0);
    if (cut_.B == 1 && cut_.e == 0 && cut_.logE == 0)
        return {lon, std::atan2(point.sin, point.cos) / degree};
    double const psi = (std::asinh(point.sin / point.cos) - cut_.logE) / cut_.B;
    return {lon, latitudeOf(cut_.e, psi) / degree};
}

// `north` is how far the point lies beside the cut.
PROJPOINT ObliqueArea::beside(double latitude, double north) const {
    double const bounded = std::clamp(latitude, -lastLatitude, lastLatitude) * degree, across = std::cos(bounded);
    return geographic({-std::sqrt((across - north) * (across + north)), north, std::sin(bounded)});
}

PROJPOINT ObliqueArea::shown(Vertex const& vertex, PROJPOINT const& given) const {
    if (!isInTheCut(vertex.vector))
        return given;
    return beside(latitude(vertex.vector), isOnFirstSide(vertex.vector) ? aside : -aside);
}

bool ObliqueArea::keepsAsGiven(Vertex const& vertex, PROJPOINT const&) {
    return !isInTheCut(vertex.vector);
}

bool ObliqueArea::isOnBoundary(Vertex const& vertex) {
    double const across = std::hypot(vertex.vector.east, vertex.vector.north);
    bool const isBeside =
        vertex.vector.east < 0 && std::fabs(vertex.vector.north) < 1.01 * boundaryAside(vertex.vector);
    return isBeside || across < 1.01 * endRadius * degree;
}

void ObliqueArea::crossings(Vertex const& a, Vertex const& b, Crossings& out) const {
    double const speed = (cut_.B * std::fabs(b.lon - a.lon) + 1.7 * std::fabs(b.lat - a.lat)) * degree;
    double const curvature = 2 * speed * speed,
                 nearer = std::fmin(std::fabs(a.vector.north), std::fabs(b.vector.north));
    bool first = isOnFirstSide(a.vector);
    if (first == isOnFirstSide(b.vector) && nearer > curvature / 8)
        return;
    auto const vectorAt = [&](double s) {
        return vectorOf({a.lon + s * (b.lon - a.lon), a.lat + s * (b.lat - a.lat)});
    };
    auto const north = [&](double s) { return vectorAt(s).north; };
    auto const cross = [&](double s) {
        auto const vector = vectorAt(s);
        if (vector.east < 0) {
            double const lat = latitude(vector), up = lat + 90, down = 540 + (90 - lat);
            out.push_back({false, first ? up : down, beside(lat, first ? aside : -aside)});
            out.push_back({true, first ? down : up, beside(lat, first ? -aside : aside)});
        }
        first = !first;
    };
    SignChanges(north, curvature, cross).search(0, a.vector.north, 1, b.vector.north);
}

bool ObliqueArea::isOnSide(double t) {
    return t <= sides[1] || (t >= sides[2] && t <= sides[3]);
}

PROJPOINT ObliqueArea::boundaryPoint(double t) const {
    if (isOnSide(t)) {
        bool const isFirst = t <= sides[1];
        double const latitude = std::clamp(isFirst ? t - 90 : 90 - (t - sides[2]), -lastLatitude, lastLatitude);
        double const north = boundaryAside({std::cos(latitude * degree), 0, std::sin(latitude * degree)});
        return beside(latitude, isFirst ? north : -north);
    }
    bool const northern = t < sides[2];
    double const along = (northern ? 360 - t : t - 900) * degree;
    double const up = (northern ? 1 : -1) * std::sin(lastLatitude * degree), across = std::cos(lastLatitude * degree);
    UnitVector vector{across * std::cos(along), across * std::sin(along), up};
    if (vector.east < 0 && std::fabs(vector.north) < boundaryAside(vector))
        vector.north = std::copysign(boundaryAside(vector), vector.north);
    return geographic(vector);
}

bool ObliqueArea::chordFollows(double from, double to) const {
    if (!isOnSide((from + to) / 2))
        return true;
    auto const a = boundaryPoint(from), b = boundaryPoint(to);
    auto const middle = vectorOf({a.x + std::remainder(b.x - a.x, 360.0) / 2, (a.y + b.y) / 2});
    double const wanted = boundaryAside(middle);
    return std::fabs(middle.north - (to <= sides[1] ? wanted : -wanted)) < wanted / 8;
}

PROJPOINT ObliqueArea::outside(double t) const {
    return beside(t - 90, aside / 4);
}

} // namespace ZrProj::preclip
