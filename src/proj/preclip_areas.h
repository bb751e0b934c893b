// The areas that maps show, each with its boundary, for the cutting of paths to them.
//
// Words: a path is a line or a ring of vertices with straight segments between them in longitude and latitude. An area
// ends at its boundary; the complement is what lies outside. Longitudes are wrapped when they lie within 180 degrees
// either way, and unwrapped when they run on along a path over the antimeridian.
//
// An area is a struct with
//
//     Vertex                            a vertex of a path as the area sees it
//     Vertex vertexAt(given, lon)       `lon` is the vertex's unwrapped longitude, whole turns away from the given one;
//                                       what the area sees does not depend on how often the path has wound around
//     bool contains(Vertex)             whether the area contains it
//     PROJPOINT shown(Vertex, given)    what becomes of a vertex that it contains
//     void crossings(a, b, out)         where the segment from a to b leaves the area or enters it, in order
//     bool keepsAsGiven(Vertex, given)  whether shown(Vertex, given) may be the point as the caller gave it
//     bool isOnBoundary(Vertex)         where boundaries are curves: whether a cut may have put it there
//     sides                             the boundary, a closed curve, by a parameter in degrees: where its sides begin,
//                                       and its end
//     PROJPOINT boundaryPoint(t)        the boundary's point at the parameter
//     boundaryIsBeside                  whether that lies a little inside of where paths are cut
//     bool chordFollows(from, to)       whether the segment between two points of the boundary is near enough to it
//     referenceBegin, referenceEnd      a part of the boundary, and
//     PROJPOINT outside(t)              the points just outside of it
//     PROJPOINT pointOfComplement()     a point well inside of the complement
//     bool complementCanBeEnclosed()    whether a path in the area may go all around the complement
//     bool areaIsLeft()                 whether the area is to the left of who follows the boundary
#pragma once

#include "formulas/map_edges.h"
#include "proj/preclip_path.h"

#include <zrproj/projection.h>

#include <array>
#include <vector>

namespace ZrProj::preclip {

/// A path's crossing of a boundary, where the path is cut.
struct Crossing {
    bool enters;
    double t; // the boundary's parameter
    PROJPOINT point;
};

using Crossings = std::vector<Crossing>;

/// A point of the unit sphere as a vector in the axes of a centre: to the east, to the north, and up, out of the ground
/// at the centre.
struct UnitVector {
    double east, north, up;
};

/// A point of the unit sphere: longitude from a centre's meridian in radians, sine and cosine of latitude.
struct SpherePoint {
    double theta, sin, cos;
};

/// A centre on the unit sphere, which turns points into vectors in its own axes and back.
struct Centre {
    double sin, cos; // of its latitude

    UnitVector vectorTo(SpherePoint const& point) const;
    SpherePoint pointAt(UnitVector const& vector) const;
};

/// Whether two points are no farther apart than neighbours on a boundary.
bool areNeighbours(UnitVector const& a, UnitVector const& b);

/// The area between two meridians and two parallels. The boundary goes around eastwards from the south-western corner.
/// What lies on the map's true edge, or next to it, is moved to where cuts are made.
class WindowArea {
public:
    struct Vertex {
        double lon, lat;
        double x;    // the longitude wrapped into the window, or beside it
        double turn; // whole turns from there to the unwrapped longitude, degrees
        bool inside;
    };

    explicit WindowArea(formulas::Window const& window);

    /// Moves the vertices on the seam, the meridian where the window meets itself, to the side that the path comes
    /// from, or to the side of its first longitude where all of the path lies on the seam. Returns whether it does.
    bool moveOffSeam(Path& path, Unwrapped& unwrapped) const;

    Vertex vertexAt(PROJPOINT const& given, double lon) const;
    static bool contains(Vertex const& vertex) { return vertex.inside; }
    PROJPOINT shown(Vertex const& vertex, PROJPOINT const& given) const;
    void crossings(Vertex const& a, Vertex const& b, Crossings& out) const;
    static bool isOnBoundary(Vertex const&) { return false; }
    bool keepsAsGiven(Vertex const& vertex, PROJPOINT const& given) const;

    std::array<double, 5> sides;
    PROJPOINT boundaryPoint(double t) const;
    double referenceBegin, referenceEnd;
    PROJPOINT outside(double t) const;
    PROJPOINT pointOfComplement() const { return outside((referenceBegin + referenceEnd) / 2); }
    static bool complementCanBeEnclosed() { return false; }
    static constexpr bool boundaryIsBeside = false;
    static bool chordFollows(double, double) { return true; }
    static bool areaIsLeft() { return true; }

private:
    bool isBesideEdge(double lon) const;
    double clampLon(double lon) const;
    double clampLat(double lat) const;
    void crossCopy(Vertex const& a, Vertex const& b, double turn, Crossings& out) const;
    Crossing crossing(bool enters, Vertex const& a, Vertex const& b, double s, int side, double turn) const;

    formulas::Window window_;
    double middle_;
};

/// What areas that are bounded by a curve on the sphere have in common: their longitudes stay as given.
struct CurvedArea {
    template <class Vertex> static PROJPOINT shown(Vertex const&, PROJPOINT const& given) { return given; }
    template <class Vertex> static bool keepsAsGiven(Vertex const&, PROJPOINT const&) { return true; }
    static bool complementCanBeEnclosed() { return true; }
    static constexpr bool boundaryIsBeside = false;
    static bool chordFollows(double, double) { return true; }
};

/// A hemisphere; the parameter is the azimuth from the centre.
class HorizonArea : public CurvedArea {
public:
    struct Vertex {
        double lon, lat;
        UnitVector vector; // in the axes of the hemisphere's centre
        double height;     // above the plane that cuts it off
    };

    explicit HorizonArea(formulas::Horizon const& horizon);

    Vertex vertexAt(PROJPOINT const& given, double lon) const;
    bool contains(Vertex const& vertex) const { return vertex.height >= -tolerance_; }
    void crossings(Vertex const& a, Vertex const& b, Crossings& out) const;
    bool isOnBoundary(Vertex const& vertex) const { return contains(vertex) && vertex.height <= tolerance_; }

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT boundaryPoint(double t) const { return atAzimuth(t, plane_); }
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return atAzimuth(t, plane_ / 4); }
    PROJPOINT pointOfComplement() const;
    static bool areaIsLeft() { return false; }

private:
    UnitVector vectorOf(PROJPOINT const& point) const;
    PROJPOINT atAzimuth(double t, double up) const;

    formulas::Horizon horizon_;
    Centre centre_;
    double plane_, tolerance_;
};

/// The globe but for a pole's surroundings; the parameter is the longitude, from 0 to 360.
class PolarHoleArea : public CurvedArea {
public:
    using Vertex = PROJPOINT;

    explicit PolarHoleArea(formulas::PolarHole const& hole) : hole_(hole) {}

    static Vertex vertexAt(PROJPOINT const& given, double lon) { return {lon, given.y}; }
    bool contains(Vertex const& vertex) const { return hole_.side * vertex.y <= hole_.limit; }
    void crossings(Vertex const& a, Vertex const& b, Crossings& out) const;
    bool isOnBoundary(Vertex const& vertex) const { return hole_.side * vertex.y == hole_.limit; }

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT boundaryPoint(double t) const;
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return {t, hole_.side * (hole_.limit + 90) / 2}; }
    PROJPOINT pointOfComplement() const { return {0, hole_.side * 90}; }
    bool areaIsLeft() const { return hole_.side < 0; }

private:
    formulas::PolarHole hole_;
};

/// The globe but for an ellipse in longitude and latitude; the parameter is the eccentric angle.
class HoleArea : public CurvedArea {
public:
    struct Vertex {
        double lon, lat;
        double square; // the squared distance from the centre, in units of the half axes
    };

    explicit HoleArea(formulas::Hole const& hole) : hole_(hole) {}

    bool complementCanBeEnclosed() const { return !hole_.isAtCut; }

    Vertex vertexAt(PROJPOINT const& given, double lon) const;
    static bool contains(Vertex const& vertex);
    void crossings(Vertex const& a, Vertex const& b, Crossings& out) const;
    static bool isOnBoundary(Vertex const& vertex);

    static constexpr std::array<double, 2> sides = {0, 360};
    PROJPOINT boundaryPoint(double t) const { return onEllipse(t, 1); }
    static constexpr double referenceBegin = 0, referenceEnd = 360;
    PROJPOINT outside(double t) const { return onEllipse(t, 0.99); }
    PROJPOINT pointOfComplement() const { return {hole_.lon, hole_.lat}; }
    static bool areaIsLeft() { return false; }

private:
    /// The point relative to the centre, taken in the turn that is nearest to `lon`, in units of the half axes.
    PROJPOINT scaled(PROJPOINT const& point, double lon) const;
    PROJPOINT onEllipse(double t, double size) const;

    formulas::Hole hole_;
};

/// The globe but for a cut along half a great circle. The boundary goes up one side of the cut, where `along` is half a
/// turn, around the pole of the oblique equator, down the other side and around the other pole.
class ObliqueArea {
public:
    struct Vertex {
        double lon, lat;
        UnitVector vector; // in the axes of the oblique equator's pole
    };

    explicit ObliqueArea(formulas::ObliqueCut const& cut) : cut_(cut), pole_{cut.sinPole, cut.cosPole} {}

    Vertex vertexAt(PROJPOINT const& given, double lon) const { return {lon, given.y, vectorOf(given)}; }
    static bool contains(Vertex const&) { return true; }
    PROJPOINT shown(Vertex const& vertex, PROJPOINT const& given) const;
    void crossings(Vertex const& a, Vertex const& b, Crossings& out) const;
    static bool isOnBoundary(Vertex const& vertex);
    static bool keepsAsGiven(Vertex const& vertex, PROJPOINT const&);

    static constexpr std::array<double, 5> sides = {0, 180, 540, 720, 1080};
    PROJPOINT boundaryPoint(double t) const;
    static constexpr bool boundaryIsBeside = true;
    bool chordFollows(double from, double to) const;
    static constexpr double referenceBegin = 1, referenceEnd = 179;
    PROJPOINT outside(double t) const;
    PROJPOINT pointOfComplement() const { return outside(90); }
    static bool complementCanBeEnclosed() { return true; }
    static bool areaIsLeft() { return true; }

private:
    static bool isOnSide(double t);
    UnitVector vectorOf(PROJPOINT const& point) const;
    PROJPOINT geographic(UnitVector const& vector) const;
    PROJPOINT beside(double latitude, double north) const;

    formulas::ObliqueCut cut_;
    Centre pole_;
};

} // namespace ZrProj::preclip
