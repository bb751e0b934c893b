// Geometries cut to what a projection's map shows, and rings grouped to polygons.
#pragma once

#include "cli/geojson/object.h"
#include "cli/model/projection.h"

#include <vector>

namespace ZrProj::Command {

/// A line, or a ring whose last point joins the first, not repeated.
struct Path {
    Places points;
    Extras extras; // by point; empty where there are none
};

using Paths = std::vector<Path>;

/// The lines of a LineString's or MultiLineString's coordinates.
Paths linesOf(Coordinates const& coordinates);

/// The polygons of a Polygon's or MultiPolygon's, each by its rings.
std::vector<Paths> polygonsOf(Coordinates const& coordinates, int depth);

/// What the map shows of a line. Extras stay where nothing is cut.
Paths cutLine(System const& map, Path const& line);

/// What the map shows of a polygon: the rings around it by the even-odd rule, in longitude and latitude. No two of them
/// share a part of the map's edge. Extras stay on rings that are not cut.
Paths cutPolygon(System const& map, Paths const& rings);

/// The coordinates of a LineString, made of one line or none, and of a MultiLineString.
Coordinates lineAsCoordinates(Paths const& lines);
Coordinates linesAsCoordinates(Paths const& lines);

/// The coordinates of a Polygon, made of one polygon or none, and of a MultiPolygon.
Coordinates polygonAsCoordinates(std::vector<Paths> const& polygons);
Coordinates polygonsAsCoordinates(std::vector<Paths> const& polygons);

/// The polygons that rings bound by the even-odd rule; the rings must not cross. Each polygon has its outer ring first,
/// counter-clockwise, and then its holes, clockwise. Rings of less than three points are dropped.
std::vector<Paths> groupRings(Paths rings);

} // namespace ZrProj::Command
