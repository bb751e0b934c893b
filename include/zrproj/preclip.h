// Preclipping: cutting lines and areas in longitude/latitude at the edges of a projection.
#ifndef ZRPROJ_PRECLIP_H
#define ZRPROJ_PRECLIP_H

#include "projection.h"

namespace ZrProj {

/// One piece of a preclipped line or area, and the next one.
class CPROJCHAIN {
public:
    unsigned nPoints;   ///< how many points
    PROJPOINT* pPoints; ///< longitude/latitude, degrees
    bool bClosed;       ///< whether the piece is a ring
    CPROJCHAIN* pNext;  ///< null at the end of the list
};

/// Cuts a line at the projection's edges. Not available yet: sets `*chains` (where it is given) to null and returns
/// false.
ZRPROJ_API bool ProjLLPreclipPolyline(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Cuts an area at the projection's edges. Not available yet: sets `*chains` (where it is given) to null and returns
/// false.
ZRPROJ_API bool ProjLLPreclipPolygon(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Frees a list of chains, every piece of it. Null is ignored.
ZRPROJ_API void ProjFreeChains(CPROJCHAIN* chains);

} // namespace ZrProj

#endif
