// A projection as a drawing uses it: what of lines and areas it shows, where on the map that is, and how it is
// distorted there.
#pragma once

#include "cli/model/projection.h"
#include "cli/points/point_converter.h"
#include "cli/text/svg.h"

#include <optional>
#include <span>
#include <vector>

namespace ZrProj::Command {

class MapProjection {
public:
    /// Throws UsageError when the choice makes no map.
    explicit MapProjection(ProjectionChoice const& choice);

    /// Of the ellipsoid: semi-major axis in metres.
    double radius() const { return m_radius; }
    double flattening() const { return m_flattening; }

    /// A place of the globe with its longitude as the formulas want it; nothing for one that the map does not show.
    std::optional<PROJPOINT> shown(PROJPOINT place);

    /// Where the formulas put a place that was cut, or one between two of these; nothing, or NaN, where they cannot.
    std::optional<MapPoint> at(PROJPOINT place);
    std::vector<MapPoint> at(std::span<PROJPOINT const> places);

    /// What the map shows of a line, or of the area in a ring. Throws std::bad_alloc.
    std::vector<Places> cutLine(std::span<PROJPOINT const> line);
    std::vector<Places> cutArea(std::span<PROJPOINT const> ring);

    /// The rings around all that the map shows, with points a degree apart at most. They are cut from the two halves of
    /// the plane of longitude and latitude, and run in opposite directions along the seams of these.
    std::vector<Places> outline();
    /// The outline as lines, without these seams.
    std::vector<Places> edges();

private:
    double seam() const;

    SystemPointer m_map;
    PointConverter m_converter;
    double m_radius = 0, m_flattening = 0;
    double m_middle; // a meridian about the map's middle, where it ends nowhere near
};

/// What a metre at a place becomes on the map: the steps to the east and to the north.
struct LocalScale {
    MapPoint east, north;

    double areal() const { return east.x * north.y - east.y * north.x; }
};

/// By central differences, on the map's own ellipsoid; nothing at the poles and beside the map's edge.
std::optional<LocalScale> localScale(MapProjection& map, PROJPOINT place);

/// An ellipse: half of its axes, and how its first axis is turned from the x axis, in degrees.
struct Ellipse {
    double first, second, turn;
};

/// What a circle of radius 1 becomes.
Ellipse ellipseOf(LocalScale const& scale);

} // namespace ZrProj::Command
