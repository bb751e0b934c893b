// Preclipping: lines and rings cut to what a projection's map shows.
#include <zrproj/preclip.h>

#include "frame/errors.h"
#include "frame/log.h"
#include "host/fpenv.h"
#include "proj/handle.h"
#include "proj/preclip_cut.h"
#include "proj/preclip_edges.h"

#include <algorithm>
#include <memory>
#include <new>

namespace ZrProj {

std::vector<preclip::Path> preclip::cutToEdges(formulas::MapEdges const& edges, std::vector<Path> paths) {
    if (edges.window.present)
        paths = cut(WindowArea(edges.window), std::move(paths));
    if (edges.horizon.present)
        paths = cut(HorizonArea(edges.horizon), std::move(paths));
    if (edges.polarHole.present)
        paths = cut(PolarHoleArea(edges.polarHole), std::move(paths));
    for (auto const* hole : {&edges.hole, &edges.otherHole})
        if (hole->present)
            paths = cut(HoleArea(*hole), std::move(paths));
    if (edges.oblique.present) // after the holes at its ends, whose boundaries it cuts too
        paths = cut(ObliqueArea(edges.oblique), std::move(paths));
    return paths;
}

namespace {

using preclip::Path;

constexpr char sourceFile[] = ".\\preclip.cpp";

/// Frees a list of chains that no caller has taken over.
struct FreeChains {
    void operator()(CPROJCHAIN* chains) const { ProjFreeChains(chains); }
};
using Chains = std::unique_ptr<CPROJCHAIN, FreeChains>;

/// Makes a chain of copies of the points and puts it in front of `rest`.
Chains chainOf(std::span<PROJPOINT const> points, bool isClosed, Chains rest) {
    auto copy = std::make_unique_for_overwrite<PROJPOINT[]>(points.size());
    std::ranges::copy(points, copy.get());
    Chains chain(new CPROJCHAIN{static_cast<unsigned>(points.size()), copy.get(), isClosed, rest.get()});
    static_cast<void>(copy.release());
    static_cast<void>(rest.release());
    return chain;
}

Chains chainsOf(std::vector<Path> paths, std::span<PROJPOINT const> given) {
    std::ranges::reverse(paths); // each goes in front of those behind it
    Chains chains;
    for (auto const& path : paths)
        chains = chainOf(path.isAsGiven ? given : path.points, path.isRing, std::move(chains));
    return chains;
}

using Reader = std::vector<Path> (*)(std::span<PROJPOINT const> points);

bool preclipTo(ProjectionBlock const& block, std::span<PROJPOINT const> points, Reader read, CPROJCHAIN** chains) {
    if (!block.formula)
        return AssertFailed(sourceFile, __LINE__);
    if (!block.converter.forward)
        return true;
    try {
        *chains = withDefaultFloatingPoint([&] {
                      return chainsOf(preclip::cutToEdges(block.formula->edges(block.area), read(points)), points);
                  }).release();
        return true;
    } catch (std::exception const&) { // no memory, or no vector so long
        ReportError(sourceFile, __LINE__, errorOutOfMemory, nullptr);
        return false;
    }
}

bool preclipAny(void* handle, PROJPOINT const* points, unsigned count, unsigned least, Reader read,
                CPROJCHAIN** chains) {
    if (chains)
        *chains = nullptr;
    if (!handle || !points || !chains || count < least) {
        ReportError(sourceFile, __LINE__, errorBadParameter, nullptr);
        return false;
    }
    return preclipTo(ProjectionBlock::of(handle), {points, count}, read, chains);
}

} // namespace

bool ProjLLPreclipPolyline(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains) {
    LogPrintf("ProjLLPreclipPolyline(hProj=%p, pPts=%p, nPts=%u, ppChains=%p)\n", handle,
              static_cast<void const*>(points), count, static_cast<void*>(chains));
    return preclipAny(handle, points, count, 2, preclip::linesOf, chains);
}

bool ProjLLPreclipPolygon(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains) {
    LogPrintf("ProjLLPreclipPolygon(hProj=%p, pPts=%p, nPts=%u, ppChains=%p)\n", handle,
              static_cast<void const*>(points), count, static_cast<void*>(chains));
    return preclipAny(handle, points, count, 3, preclip::ringsOf, chains);
}

void ProjFreeChains(CPROJCHAIN* chains) {
    LogPrintf("ProjFreeChains(pChains=%p)\n", static_cast<void*>(chains));
    while (chains) {
        std::unique_ptr<CPROJCHAIN> const piece(chains);
        std::unique_ptr<PROJPOINT[]> const points(piece->pPoints);
        chains = piece->pNext;
    }
}

} // namespace ZrProj
