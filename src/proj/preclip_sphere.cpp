// The areas that are bounded by a curve on the sphere: a hemisphere, and the globe but for a pole or an ellipse.
#include "proj/preclip_areas.h"
#include "proj/preclip_crossings.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::preclip {

namespace {

constexpr double degree = 3.141592653589793 / 180;

PROJPOINT between(PROJPOINT const& a, PROJPOINT const& b, double s) {
    return {a.x + s * (b.x - a.x), a.y + s * (b.y - a.y)};
}

/// The longitude within 180 degrees either way.
double wrapped(double lon) {
    return std::remainder(lon, 360.0);
}

PROJPOINT wrapped(PROJPOINT const& point) {
    return {wrapped(point.x), point.y};
}

} // namespace

UnitVector Centre::vectorTo(SpherePoint const& point) const {
    double const out = point.cos * std::cos(point.theta);
    return {point.cos * std::sin(point.theta), cos * point.sin - sin * out, sin * point.sin + cos * out};
}

SpherePoint Centre::pointAt(UnitVector const& vector) const {
    double const out = cos * vector.up - sin * vector.north;
    return {std::atan2(vector.east, out), sin * vector.up + cos * vector.north, std::hypot(vector.east, out)};
}

bool areNeighbours(UnitVector const& a, UnitVector const& b) {
    constexpr double cosine = 0.99983; // of 1.05 degrees
    return a.east * b.east + a.north * b.north + a.up * b.up > cosine;
}

HorizonArea::HorizonArea(formulas::Horizon const& horizon)
    : horizon_(horizon), centre_{std::sin(horizon.lat * degree), std::cos(horizon.lat * degree)},
      plane_(std::sin(formulas::lineInset * degree)), tolerance_(plane_ / 2) {}

UnitVector HorizonArea::vectorOf(PROJPOINT const& point) const {
    double const phi = point.y * degree;
    return centre_.vectorTo({wrapped(point.x - horizon_.lon) * degree, std::sin(phi), std::cos(phi)});
}

HorizonArea::Vertex HorizonArea::vertexAt(PROJPOINT const& given, double lon) const {
    auto const vector = vectorOf(given);
    return {lon, given.y, vector, vector.up - plane_};
}

void HorizonArea::crossings(Vertex const& a, Vertex const& b, Crossings& out) const {
    double const speed = (std::fabs(b.lon - a.lon) + std::fabs(b.lat - a.lat)) * degree, curvature = speed * speed;
    if (contains(a) == contains(b) && std::fmin(std::fabs(a.height), std::fabs(b.height)) > curvature / 8)
        return;
    if (isOnBoundary(a) && isOnBoundary(b) && areNeighbours(a.vector, b.vector))
        return; // a piece of the horizon
    PROJPOINT const from{a.lon, a.lat}, to{b.lon, b.lat};
    // What is hardly below the plane counts as on it: there lie the rounded cuts of an earlier call.
    auto const level = [&](double height) { return height < 0 && height >= -tolerance_ ? 0 : height; };
    auto const height = [&](double s) { return level(vectorOf(between(from, to, s)).up - plane_); };
    bool inside = contains(a);
    auto const cut = [&](double s) {
        PROJPOINT const point = between(from, to, s);
        auto const vector = vectorOf(point);
        double const azimuth = std::atan2(vector.east, vector.north) / degree;
        inside = !inside;
        out.push_back({inside, azimuth < 0 ? azimuth + 360 : azimuth, wrapped(point)});
    };
    SignChanges(height, curvature, cut).search(0, level(a.height), 1, level(b.height));
}

PROJPOINT HorizonArea::atAzimuth(double t, double up) const {
    double const across = std::sqrt((1 - up) * (1 + up));
    auto const point = centre_.pointAt({across * std::sin(t * degree), across * std::cos(t * degree), up});
    return {wrapped(horizon_.lon + point.theta / degree), std::atan2(point.sin, point.cos) / degree};
}

PROJPOINT HorizonArea::pointOfComplement() const {
    return {horizon_.lon + 180, -horizon_.lat};
}

void PolarHoleArea::crossings(Vertex const& a, Vertex const& b, Crossings& out) const {
    if (contains(a) == contains(b))
        return;
    double const latitude = hole_.side * hole_.limit, s = std::clamp((latitude - a.y) / (b.y - a.y), 0.0, 1.0);
    double const lon = wrapped(between(a, b, s).x);
    out.push_back({contains(b), lon < 0 ? lon + 360 : lon, {lon, latitude}});
}

PROJPOINT PolarHoleArea::boundaryPoint(double t) const {
    return {wrapped(t), hole_.side * hole_.limit};
}

namespace {

/// A point whose squared distance is no less than this counts as on the ellipse: so do rounded cuts of an earlier call,
/// and the chords between neighbours on the ellipse.
constexpr double nearlyOnEllipse = 0.996;

double squareOf(PROJPOINT const& p) {
    return p.x * p.x + p.y * p.y;
}

} // namespace

PROJPOINT HoleArea::scaled(PROJPOINT const& point, double lon) const {
    double const turned = 360 * std::round((lon - hole_.lon) / 360);
    return {(point.x - hole_.lon - turned) / hole_.halfWidth, (point.y - hole_.lat) / hole_.halfHeight};
}

HoleArea::Vertex HoleArea::vertexAt(PROJPOINT const& given, double lon) const {
    return {lon, given.y, squareOf(scaled(given, given.x))};
}

bool HoleArea::contains(Vertex const& vertex) {
    return vertex.square >= nearlyOnEllipse;
}

bool HoleArea::isOnBoundary(Vertex const& vertex) {
    return contains(vertex) && vertex.square <= 2 - nearlyOnEllipse;
}

void HoleArea::crossings(Vertex const& a, Vertex const& b, Crossings& out) const {
    double const low = hole_.lat - hole_.halfHeight, high = hole_.lat + hole_.halfHeight;
    if ((a.lat < low && b.lat < low) || (a.lat > high && b.lat > high))
        return;
    double const lon = (a.lon + b.lon) / 2;
    auto const p = scaled({a.lon, a.lat}, lon), q = scaled({b.lon, b.lat}, lon);
    double const dx = q.x - p.x, dy = q.y - p.y, length2 = dx * dx + dy * dy;
    if (length2 == 0)
        return;
    double const foot = -(p.x * dx + p.y * dy) / length2, cross = p.x * dy - p.y * dx, miss2 = cross * cross / length2;
    double const half = std::sqrt(std::max(1 - miss2, 0.0) / length2);
    bool const leaves = contains(a), returns = contains(b);
    bool const passes = miss2 < nearlyOnEllipse && foot > 0 && foot < 1;
    if (leaves == returns && !(leaves && passes))
        return;
    auto const cut = [&](bool enters, double s) {
        PROJPOINT const at = between(p, q, s);
        double const t = std::atan2(at.y, at.x) / degree, angle = t < 0 ? t + 360 : t;
        out.push_back({enters, angle, boundaryPoint(angle)});
    };
    if (leaves)
        cut(false, std::clamp(foot - half, 0.0, 1.0));
    if (returns)
        cut(true, std::clamp(foot + half, 0.0, 1.0));
}

PROJPOINT HoleArea::onEllipse(double t, double size) const {
    return {wrapped(hole_.lon + size * hole_.halfWidth * std::cos(t * degree)),
            hole_.lat + size * hole_.halfHeight * std::sin(t * degree)};
}

} // namespace ZrProj::preclip
