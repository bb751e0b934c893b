#include "cli/map/paper.h"

#include "cli/map/clip.h"
#include "cli/map/seam.h"

#include <algorithm>
#include <iterator>

namespace ZrProj::Command {
namespace {

constexpr double unitsPerPixel = 10;
constexpr double tolerance = 2; // of chords: a fifth of a pixel
constexpr double seamWidth = 20;
constexpr double beyond = 50; // how far curves go on beyond the paper

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

std::optional<MapPaper::Found> MapPaper::find(PROJPOINT place) {
    auto const shown = m_map.shown(place);
    auto const point = shown ? m_map.at(*shown) : std::nullopt;
    if (!point || !m_frame.box.holds(*point))
        return std::nullopt;
    return Found{*shown, onPaper(*point)};
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

void MapPaper::addLine(SvgPath& path, std::span<PROJPOINT const> line) {
    for (Places const& piece : m_map.cutLine(line))
        for (auto const& visible : clipLine(chords(piece, false), m_sheet))
            path.addLine(visible);
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
    std::vector<std::vector<MapPoint>> lines;
    for (Places const& edge : m_map.edges())
        std::ranges::move(clipLine(chords(edge, false), m_sheet), std::back_inserter(lines));
    for (auto const& line : withoutSeams(lines, seamWidth))
        path.addLine(line);
}

} // namespace ZrProj::Command
