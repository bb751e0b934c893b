#include "cli/map_paper.h"

#include "cli/map_clip.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

constexpr double unitsPerPixel = 10;
constexpr double tolerance = 2; // of chords: a fifth of a pixel
constexpr double beyond = 50;   // how far curves go on beyond the paper

/// The lines that a ring is made of when its seam is taken out.
std::vector<Places> withoutSeam(Places const& ring) {
    std::vector<Places> lines{{ring.front()}};
    for (std::size_t i = 1; i <= ring.size(); ++i) {
        PROJPOINT const& place = ring[i % ring.size()];
        if (isSeam(lines.back().back(), place))
            lines.emplace_back();
        lines.back().push_back(place);
    }
    return lines;
}

} // namespace

MapPaper::MapPaper(MapProjection& map, MapFrame const& frame, double size)
    : m_map(map), m_frame(frame),
      m_unit(unitsPerPixel * size / std::max(frame.box.width(), frame.box.height())), m_sheet{-beyond, -beyond,
                                                                                              width() + beyond,
                                                                                              height() + beyond},
      m_placing([this](PROJPOINT place) {
          auto const point = m_map.at(place);
          return point ? std::optional(onPaper(*point)) : std::nullopt;
      }) {}

MapPoint MapPaper::onPaper(MapPoint const& point) const {
    return {(point.x - m_frame.box.left) * m_unit, (m_frame.box.high - point.y) * m_unit};
}

std::optional<MapPoint> MapPaper::find(PROJPOINT place) {
    auto const point = m_map.find(place);
    if (!point || !m_frame.box.holds(*point))
        return std::nullopt;
    return onPaper(*point);
}

std::vector<MapPoint> MapPaper::chords(Places const& places, bool closed) {
    std::vector<MapPoint> ends = m_map.at(places);
    for (MapPoint& end : ends)
        end = onPaper(end);
    return chordsOf(places, ends, closed, m_placing, {m_sheet, tolerance});
}

void MapPaper::addRing(SvgPath& path, Places const& ring) {
    path.addRing(clipRing(chords(ring, true), m_sheet));
}

void MapPaper::addPieces(SvgPath& path, std::span<MapPoint const> line) const {
    for (auto const& piece : clipLine(line, m_sheet))
        path.addLine(piece);
}

void MapPaper::addLine(SvgPath& path, std::span<PROJPOINT const> line) {
    for (Places const& piece : m_map.cutLine(line))
        addPieces(path, chords(piece, false));
}

void MapPaper::addArea(SvgPath& path, std::span<PROJPOINT const> ring) {
    for (Places const& piece : m_map.cutArea(ring))
        addRing(path, piece);
}

void MapPaper::addOutline(SvgPath& path) {
    for (Places const& ring : m_map.outline())
        addRing(path, ring);
}

void MapPaper::addEdge(SvgPath& path) {
    for (Places const& ring : m_map.outline())
        for (Places const& line : withoutSeam(ring))
            addPieces(path, chords(line, false));
}

} // namespace ZrProj::Command
