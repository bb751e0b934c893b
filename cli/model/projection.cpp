#include "cli/model/projection.h"

#include <memory>
#include <new>

namespace ZrProj::Command {
namespace {

struct FreeChains {
    void operator()(CPROJCHAIN* chains) const { ProjFreeChains(chains); }
};

using Cut = bool (CProjector::*)(PROJPOINT const*, unsigned, CPROJCHAIN**);

std::vector<Places> pieces(CProjector& map, Cut cut, std::span<PROJPOINT const> places, std::size_t fewest) {
    if (places.size() < fewest)
        return {};
    CPROJCHAIN* first = nullptr;
    if (!(map.*cut)(places.data(), static_cast<unsigned>(places.size()), &first))
        throw std::bad_alloc();
    std::unique_ptr<CPROJCHAIN, FreeChains> const owner(first);
    std::vector<Places> result;
    for (CPROJCHAIN const* chain = first; chain; chain = chain->pNext)
        result.emplace_back(chain->pPoints, chain->pPoints + chain->nPoints);
    return result;
}

} // namespace

std::vector<Places> preclipLine(CProjector& map, std::span<PROJPOINT const> line) {
    return pieces(map, &CProjector::LLPreclipPolyline, line, 2);
}

std::vector<Places> preclipRing(CProjector& map, std::span<PROJPOINT const> ring) {
    return pieces(map, &CProjector::LLPreclipPolygon, ring, 3);
}

} // namespace ZrProj::Command
