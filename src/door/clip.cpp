#include "door/points.h"
#include "door/system.h"

#include "formulas/converter.h"
#include "proj/preclip_edges.h"

#include <vector>

using namespace ZrProj;
using namespace ZrProj::Door;

struct zrproj_pieces {
    struct Piece {
        std::vector<double> pairs;
        bool isRing;
    };
    std::vector<Piece> pieces;
};

namespace {

using Reader = std::vector<preclip::Path> (*)(std::span<PROJPOINT const> points);

void shift(std::span<PROJPOINT> points, double degrees) {
    for (PROJPOINT& point : points)
        point.x += degrees;
}

/// What the map shows of a line or a ring, whose longitudes count from `meridian` where the map's edges may count from
/// another. What is not cut keeps the given points, since a shift back may differ from them in the last digit.
std::vector<preclip::Path> clipped(systems::Conversion const& conversion, double meridian,
                                   std::vector<PROJPOINT> const& points, Reader read) {
    double const offset = conversion.meridian - meridian;
    auto const edges = formulas::formulaOf(conversion.method)->edges(conversion.parameters);
    auto paths = read(points);
    for (auto& path : paths)
        shift(path.points, -offset);
    paths = preclip::cutToEdges(edges, std::move(paths));
    for (auto& path : paths) {
        if (path.isAsGiven)
            path.points = points;
        else
            shift(path.points, offset);
    }
    return paths;
}

void take(zrproj_pieces& pieces, std::span<preclip::Path const> paths) {
    for (auto const& path : paths) {
        auto& piece = pieces.pieces.emplace_back(zrproj_pieces::Piece{{}, path.isRing});
        piece.pairs.reserve(2 * path.points.size());
        for (PROJPOINT const& point : path.points)
            piece.pairs.insert(piece.pairs.end(), {point.x, point.y});
    }
}

zrproj_status clip(zrproj_system const* system, double const* points, size_t count, size_t least, Reader read,
                   zrproj_pieces** pieces) {
    return answerWith(pieces, [&](zrproj_pieces& made) -> Answer {
        if (!system || !points)
            return badArgument("null pointer to a system or points");
        if (count < least || count > std::numeric_limits<unsigned>::max())
            return badArgument("at least " + std::to_string(least) + " points are needed");
        if (system->projection->isGeographic())
            return unsupported("a geographic system's map has no edges");
        std::vector<PROJPOINT> given(count);
        for (size_t i = 0; i < count; ++i)
            given[i] = {points[2 * i], points[2 * i + 1]};
        take(made, clipped(system->projection->conversion(), system->definition.datum.meridian.longitude, given, read));
        return {};
    });
}

} // namespace

zrproj_status zrproj_clip_line(zrproj_system const* system, double const* points, size_t count,
                               zrproj_pieces** pieces) {
    return clip(system, points, count, 2, preclip::linesOf, pieces);
}

zrproj_status zrproj_clip_ring(zrproj_system const* system, double const* points, size_t count,
                               zrproj_pieces** pieces) {
    return clip(system, points, count, 3, preclip::ringsOf, pieces);
}

zrproj_status zrproj_pieces_entry(zrproj_pieces const* pieces, size_t n, double const** points, size_t* count,
                                  int* closed) {
    return answer([&]() -> Answer {
        if (!pieces)
            return badArgument("null pointer to pieces");
        if (!(n < pieces->pieces.size()))
            return pastTheLast(n, pieces->pieces.size());
        auto const& piece = pieces->pieces[n];
        give(points, piece.pairs.data());
        give(count, piece.pairs.size() / 2);
        give(closed, piece.isRing ? 1 : 0);
        return {};
    });
}

void zrproj_pieces_destroy(zrproj_pieces* pieces) {
    std::unique_ptr<zrproj_pieces>{pieces}.reset();
}
