// From the globe to the paper: framed, cut, projected, drawn in chords, and clipped.
#pragma once

#include "cli/map/curve.h"
#include "cli/text/svg.h"

#include <array>

namespace ZrProj::Command {

struct MapFrame {
    MapBox box;
    bool whole; // whether it holds all that the map shows
};

/// Without a word of the user: the places that the map draws at most 30 times as large as others, in area; and all of
/// the map where that is not much more.
MapFrame usualFrame(MapProjection& map);

/// What lies between longitudes and latitudes: west, south, east, north, from west eastwards. Longitudes 360 degrees
/// apart are the whole globe's. Throws UsageError when the map shows none of it.
MapFrame frameAround(MapProjection& map, std::array<double, 4> const& bounds);

/// Units are tenths of a pixel, y downwards, the frame's upper left corner at 0, 0.
class MapPaper {
public:
    /// size: of the longer side, in pixels.
    MapPaper(MapProjection& map, MapFrame const& frame, double size);

    MapProjection& map() { return m_map; }
    double width() const { return m_frame.box.width() * m_unit; }
    double height() const { return m_frame.box.height() * m_unit; }
    /// Units on the paper for one on the map.
    double unit() const { return m_unit; }
    bool isWhole() const { return m_frame.whole; }

    /// Where a place of the globe is; nothing where it is not on the paper.
    struct Found {
        PROJPOINT place; // as MapProjection::shown() has it
        MapPoint point;
    };
    std::optional<Found> find(PROJPOINT place);

    /// What is to be seen of a line, or of the area in a ring; for filling, since its ends at the frame are drawn along
    /// the frame.
    void addLine(SvgPath& path, std::span<PROJPOINT const> line);
    void addArea(SvgPath& path, std::span<PROJPOINT const> ring);
    /// All that the map shows, for filling, and the edge of that.
    void addOutline(SvgPath& path);
    void addEdge(SvgPath& path);

private:
    MapPoint onPaper(MapPoint const& point) const;
    std::vector<MapPoint> chords(Places const& places, bool closed);
    void addRing(SvgPath& path, Places const& ring);

    MapProjection& m_map;
    MapFrame m_frame;
    double m_unit;
    MapBox m_sheet; // the paper and a little more, so that what is drawn along it is not seen
    Placing m_placing;
};

} // namespace ZrProj::Command
