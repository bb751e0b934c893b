#include "door/points.h"
#include "door/system.h"

#include <zrproj/preclip.h>

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

using Preclip = bool (*)(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

struct ChainsDeleter {
    void operator()(CPROJCHAIN* chains) const { ProjFreeChains(chains); }
};

void take(zrproj_pieces& pieces, CPROJCHAIN const* chain) {
    for (; chain; chain = chain->pNext) {
        auto& piece = pieces.pieces.emplace_back(zrproj_pieces::Piece{{}, chain->bClosed});
        piece.pairs.reserve(2 * std::size_t{chain->nPoints});
        for (PROJPOINT const& point : std::span(chain->pPoints, chain->nPoints))
            piece.pairs.insert(piece.pairs.end(), {point.x, point.y});
    }
}

zrproj_status clip(zrproj_system const* system, double const* points, size_t count, size_t least, Preclip preclip,
                   zrproj_pieces** pieces) {
    return answerWith(pieces, [&](zrproj_pieces& made) -> Answer {
        if (!system || !points)
            return badArgument("null pointer to a system or points");
        if (count < least || count > std::numeric_limits<unsigned>::max())
            return badArgument("at least " + std::to_string(least) + " points are needed");
        if (!system->projection)
            return unsupported("a geographic system's map has no edges");
        std::vector<PROJPOINT> given(count);
        for (size_t i = 0; i < count; ++i)
            given[i] = {points[2 * i], points[2 * i + 1]};
        CPROJCHAIN* chains = nullptr;
        if (!preclip(system->projection->handle(), given.data(), static_cast<unsigned>(count), &chains))
            throw std::bad_alloc();
        std::unique_ptr<CPROJCHAIN, ChainsDeleter> const owner(chains);
        take(made, chains);
        return {};
    });
}

} // namespace

zrproj_status zrproj_clip_line(zrproj_system const* system, double const* points, size_t count,
                               zrproj_pieces** pieces) {
    return clip(system, points, count, 2, ProjLLPreclipPolyline, pieces);
}

zrproj_status zrproj_clip_ring(zrproj_system const* system, double const* points, size_t count,
                               zrproj_pieces** pieces) {
    return clip(system, points, count, 3, ProjLLPreclipPolygon, pieces);
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
