// Preclipping. The cutting itself is still to come: both operations refuse.
#include <zrproj/preclip.h>

#include <memory>

namespace ZrProj {

namespace {

bool refuse(CPROJCHAIN** chains) {
    if (chains)
        *chains = nullptr;
    return false;
}

} // namespace

bool ProjLLPreclipPolyline(void*, PROJPOINT const*, unsigned, CPROJCHAIN** chains) {
    return refuse(chains);
}

bool ProjLLPreclipPolygon(void*, PROJPOINT const*, unsigned, CPROJCHAIN** chains) {
    return refuse(chains);
}

void ProjFreeChains(CPROJCHAIN* chains) {
    while (chains) {
        std::unique_ptr<CPROJCHAIN> const piece(chains);
        std::unique_ptr<PROJPOINT[]> const points(piece->pPoints);
        chains = piece->pNext;
    }
}

} // namespace ZrProj
