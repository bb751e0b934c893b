// The areas that maps show, each with its boundary, for the cutting of paths to them.
//
// An area is a struct with
//
//     Spot                          a point of a path as the area sees it
//     Spot at(given, lon)           `lon` is the point's unwrapped longitude along the path, whole turns away from the
//                                   given one; what the area sees does not depend on how often the path has wound
//     bool holds(Spot)              whether the area contains it
//     PROJPOINT shown(Spot, given)  what becomes of a point of the path that it holds
//     void crossings(a, b, out)     where the edge from a to b goes out of the area or comes in, in order
//     bool keepsAsGiven(spot, given)  whether shown(spot, given) may be the point as the caller gave it
//     bool isOnBoundary(Spot)       where boundaries are curves: whether a cut may have put it there
//     sides                         the boundary, a closed curve, by a parameter in degrees: where its sides begin, and
//                                   its end
//     PROJPOINT onBoundary(t)       the boundary's point at the parameter
//     boundaryIsBeside              whether that lies a little inside of where paths are cut
//     bool isFollowed(from, to)     whether the straight edge between two points of it is near enough to it
//     referenceBegin, referenceEnd  a part of the boundary, and
//     PROJPOINT outside(t)          the points just outside of it
//     PROJPOINT farOutside()        a point well outside of the area
//     bool canBeHeld()              whether a path in the area may go around what lies outside
//     bool areaIsLeft()             whether who follows the boundary has the area to the left
#pragma once

#include "formulas/map_edges.h"
#include "proj/preclip_path.h"

#include <zrproj/projection.h>

#include <array>
#include <vector>

namespace ZrProj::preclip {

/// A path's crossing of a boundary, where it is cut.
struct Crossing {
    bool enters;
    double t; // on the boundary
    PROJPOINT point;
};

using Crossings = std::vector<Crossing>;

/// Directions of a place from a centre on the unit sphere: to the east, to the north, and out of the ground.
struct Direction {
    double east, north, up;
};

/// A place on the unit sphere: longitude from a centre's meridian in radians, sine and cosine of latitude.
struct SpherePlace {
    double theta, sin, cos;
};

/// A place seen from a centre, and back.
struct Centre {
    double sin, cos; // of its latitude

    Direction direction(SpherePlace const& place) const;
    SpherePlace place(Direction const& at) const;
};

/// Whether two places are no farther apart than neighbours on a boundary.
bool areNeighbours(Direction const& a, Direction const& b);

/// Between two meridians and two parallels. The boundary goes around eastwards from the south-western corner. What lies
/// on the true edge, or next to it, is moved to where cuts are made.
class WindowArea {
public:
    struct Spot {
        double lon, lat;
        double x;    // the longitude in the window itself, or beside it
        double turn; // from there to `lon`, turns of the globe in degrees
        bool inside;
    };

    explicit WindowArea(formulas::Window const& window);

    /// Moves the points on the meridian where the window meets itself to the side that the path comes from, or to the
    /// side of its first longitude where all of the path is there, which is the answer.
    bool settle(Path& path, Unrolled& unrolled) const;

    Spot at(PROJPOINT const& given, double lon) const;
    static bool holds(Spot const& spot) { return spot.inside; }
    PROJPOINT shown(Spot const& spot, PROJPOINT const& given) const;
    void crossings(Spot const& a, Spot const& b, Crossings& out) const;
    static bool isOnBoundary(Spot const&) { return false; }
    bool keepsAsGiven(Spot const& spot, PROJPOINT const& given) const;

    std::array<double, 5> sides;
    PROJPOINT onBoundary(double t) const;
    double referenceBegin, referenceEnd;
    PROJPOINT outside(double t) const;
    PROJPOINT farOutside() const { return outside((referenceBegin + referenceEnd) / 2); }
    static bool canBeHeld() { return false; }
    static constexpr bool boundaryIsBeside = false;
    static bool isFollowed(double, double) { return true; }
    static bool areaIsLeft() { return true; }

private:
    bool isBesideEdge(double lon) const;
    double clampLon(double lon) const;
    double clampLat(double lat) const;
    void crossCopy(Spot const& a, Spot const& b, double turn, Crossings& out) const;
    Crossing crossing(bool enters, Spot const& a, Spot const& b, double s, int side, double turn) const;

    formulas::Window window_;
    double middle_;
};

/// What areas that are bounded by a curve on the sphere have in common: longitudes stay as given.
struct CurvedArea {
    template <class Spot> static PROJPOINT shown(Spot const&, PROJPOINT const& given) { return given; }
    template <class Spot> static bool keepsAsGiven(Spot const&, PROJPOINT const&) { return true; }
    static bool canBeHeld() { return true; }
    static constexpr bool boundaryIsBeside = false;
    static bool isFollowed(double, double) { return true; }
};

/// A hemisphere; the parameter is the azimuth from the centre.
class HorizonArea : public CurvedArea {
public:
    struct Spot {
        double lon, lat;
        Direction from;
        double height; // above the plane that cuts it off
    };

    explicit HorizonArea(formulas::Horizon const& horizon);

    Spot at(PROJPOINT const& given, double lon) const;
    bool holds(Spot const& spot) const { return spot.height >= -tolerance_; }
    void crossings(Spot const& a, Spot const& b, Crossings& out) const;
    bool isOnBoundary(Spot const& spot) const { return holds(spot) && spot.height <= tolerance_; }

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT onBoundary(double t) const { return atAzimuth(t, plane_); }
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return atAzimuth(t, plane_ / 4); }
    PROJPOINT farOutside() const;
    static bool areaIsLeft() { return false; }

private:
    Direction directionOf(PROJPOINT const& point) const;
    PROJPOINT atAzimuth(double t, double up) const;

    formulas::Horizon horizon_;
    Centre centre_;
    double plane_, tolerance_;
};

/// All but a pole's surroundings; the parameter is the longitude, from 0 to 360.
class PolarHoleArea : public CurvedArea {
public:
    using Spot = PROJPOINT;

    explicit PolarHoleArea(formulas::PolarHole const& hole) : hole_(hole) {}

    static Spot at(PROJPOINT const& given, double lon) { return {lon, given.y}; }
    bool holds(Spot const& spot) const { return hole_.side * spot.y <= hole_.limit; }
    void crossings(Spot const& a, Spot const& b, Crossings& out) const;
    bool isOnBoundary(Spot const& spot) const { return hole_.side * spot.y == hole_.limit; }

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT onBoundary(double t) const;
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return {t, hole_.side * (hole_.limit + 90) / 2}; }
    PROJPOINT farOutside() const { return {0, hole_.side * 90}; }
    bool areaIsLeft() const { return hole_.side < 0; }

private:
    formulas::PolarHole hole_;
};

/// All but an ellipse in longitude and latitude; the parameter is the eccentric angle.
class HoleArea : public CurvedArea {
public:
    struct Spot {
        double lon, lat;
        double square; // of the distance from the centre, in units of the half axes
    };

    explicit HoleArea(formulas::Hole const& hole) : hole_(hole) {}

    bool canBeHeld() const { return !hole_.isAtCut; }

    Spot at(PROJPOINT const& given, double lon) const;
    static bool holds(Spot const& spot);
    void crossings(Spot const& a, Spot const& b, Crossings& out) const;
    static bool isOnBoundary(Spot const& spot);

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT onBoundary(double t) const { return onEllipse(t, 1); }
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return onEllipse(t, 0.99); }
    PROJPOINT farOutside() const { return {hole_.lon, hole_.lat}; }
    static bool areaIsLeft() { return false; }

private:
    /// From the centre, the copy nearest to `lon`, in units of the half axes.
    PROJPOINT scaled(PROJPOINT const& point, double lon) const;
    PROJPOINT onEllipse(double t, double size) const;

    formulas::Hole hole_;
};

/// All but a cut along half a great circle. The boundary goes up one side of the cut, where `along` is half a turn,
/// around the pole of the oblique equator, down the other side and around the other pole.
class ObliqueArea {
public:
    struct Spot {
        double lon, lat;
        Direction from; // from the oblique equator's pole
    };

    explicit ObliqueArea(formulas::ObliqueCut const& cut) : cut_(cut), pole_{cut.sinPole, cut.cosPole} {}

    Spot at(PROJPOINT const& given, double lon) const { return {lon, given.y, directionOf(given)}; }
    static bool holds(Spot const&) { return true; }
    PROJPOINT shown(Spot const& spot, PROJPOINT const& given) const;
    void crossings(Spot const& a, Spot const& b, Crossings& out) const;
    static bool isOnBoundary(Spot const& spot);
    static bool keepsAsGiven(Spot const& spot, PROJPOINT const&);

    static constexpr std::array<double, 5> sides = {0, 180, 540, 720, 1080};
    PROJPOINT onBoundary(double t) const;
    static constexpr bool boundaryIsBeside = true;
    bool isFollowed(double from, double to) const;
    static constexpr double referenceBegin = 1, referenceEnd = 179;
    PROJPOINT outside(double t) const;
    PROJPOINT farOutside() const { return outside(90); }
    static bool canBeHeld() { return true; }
    static bool areaIsLeft() { return true; }

private:
    static bool isOnSide(double t);
    Direction directionOf(PROJPOINT const& point) const;
    PROJPOINT geographic(Direction const& from) const;
    PROJPOINT beside(double latitude, double north) const;

    formulas::ObliqueCut cut_;
    Centre pole_;
};

} // namespace ZrProj::preclip
