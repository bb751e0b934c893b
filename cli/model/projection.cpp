#include "cli/model/projection.h"

#include "cli/model/parameters.h"
#include "cli/text/usage_error.h"

#include <memory>
#include <new>

namespace ZrProj::Command {
namespace {

struct FreePieces {
    void operator()(zrproj_pieces* pieces) const { zrproj_pieces_destroy(pieces); }
};

using Cut = zrproj_status (*)(zrproj_system const*, double const*, std::size_t, zrproj_pieces**);

std::vector<Places> pieces(System const& map, Cut cut, std::span<PROJPOINT const> places, std::size_t fewest) {
    if (places.size() < fewest)
        return {};
    std::vector<double> pairs;
    for (PROJPOINT const& place : places)
        pairs.insert(pairs.end(), {place.x, place.y});
    zrproj_pieces* made = nullptr;
    if (cut(map.handle(), pairs.data(), places.size(), &made) != ZRPROJ_OK)
        throw std::bad_alloc();
    std::unique_ptr<zrproj_pieces, FreePieces> const owner(made);
    std::vector<Places> result;
    double const* points = nullptr;
    std::size_t count = 0;
    for (std::size_t n = 0; zrproj_pieces_entry(made, n, &points, &count, nullptr) == ZRPROJ_OK; ++n)
        for (auto& piece = result.emplace_back(); piece.size() < count; points += 2)
            piece.push_back({points[0], points[1]});
    return result;
}

} // namespace

SystemPointer mapOf(ProjectionChoice const& choice) {
    if (choice.system)
        return choice.system;
    if (choice.record.Type == ProjTypeUnprojectedLatLong)
        throw UsageError(projectionName(choice.record.Type) + " leaves points as they are; there is no map");
    return systemOfRecord(choice.record);
}

std::vector<Places> preclipLine(System const& map, std::span<PROJPOINT const> line) {
    return pieces(map, zrproj_clip_line, line, 2);
}

std::vector<Places> preclipRing(System const& map, std::span<PROJPOINT const> ring) {
    return pieces(map, zrproj_clip_ring, ring, 3);
}

} // namespace ZrProj::Command
