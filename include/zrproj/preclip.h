// Preclipping: cutting lines and areas in longitude/latitude at the edges of a projection's map.
//
// A line that goes over such an edge would be drawn right across the map, and an area would be filled inside out. What
// comes back from here can be converted and drawn as it is.
//
//     ZrProj::CPROJCHAIN* chains = nullptr;
//     if (ZrProj::ProjLLPreclipPolyline(handle, points, count, &chains))
//         for (ZrProj::CPROJCHAIN const* chain = chains; chain; chain = chain->pNext)
//             draw(chain->pPoints, chain->nPoints);
//     ZrProj::ProjFreeChains(chains);
#ifndef ZRPROJ_PRECLIP_H
#define ZRPROJ_PRECLIP_H

#include "projection.h"

namespace ZrProj {

/// One piece of a preclipped line or area, and the next one. The list belongs to the caller, who frees it with
/// ProjFreeChains.
class CPROJCHAIN {
public:
    unsigned nPoints;   ///< the number of points
    PROJPOINT* pPoints; ///< the points: longitude and latitude, degrees
    bool bClosed;       ///< whether the piece is a ring, whose last point joins the first
    CPROJCHAIN* pNext;  ///< the next piece; null at the end of the list
};

/// Cuts a line at the projection's edges: the chains are what the map shows of it, in its order.
///
/// Points are longitude and latitude in degrees, joined by straight segments of that plane; from a longitude to one
/// more than 180 degrees away a segment goes the short way. A line breaks at a point that is not finite or lies beyond
/// 360 degrees of longitude or 90 of latitude. `count` is at least 2.
///
/// Every point of a chain is in range (ProjLLInProjection) and on the map; no chain goes over an edge of the map. Cuts
/// are made just inside of the edge, 1e-9 degrees from a meridian or a horizon (0.1 mm on the Earth) and 1e-6 degrees
/// (0.1 m) around a pole, an antipode or another single point that cannot be shown. Where the map ends at meridians,
/// what is cut has longitudes between them, so that both sides of a cut go to their own side of the map. A line of
/// which nothing is cut comes back unchanged. Cutting a chain again changes nothing.
///
/// Returns true and sets `*chains` to the list, null when nothing of the line can be shown or the record defines no
/// map. Returns false, with null in `*chains` where it is given, when `handle`, `points` or `chains` is null or `count`
/// is below 2 (reported as error 20205), when memory runs out (20201), and for a type that computes nothing (20200).
ZRPROJ_API bool ProjLLPreclipPolyline(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Cuts an area, given by the ring around it, at the projection's edges: the chains are rings, closed along the edges
/// with points a degree apart at most, and bound what the map shows of the area.
///
/// Points and segments are those of ProjLLPreclipPolyline, but that a point that is not finite or out of bounds is left
/// out. The last point joins the first, and may repeat it. `count` is at least 3.
///
/// A ring contains what an odd number of its segments lies north of. A ring that winds around the globe contains the
/// pole to which its mean latitude is nearer (the one to its left when that is 0), and ends there on maps that show the
/// pole as a line. Of several rings that come back, one inside another is a hole in it. Rings keep the orientation of
/// the ring given, unless it crosses itself. An area that contains the whole map comes back as the map's outline, one
/// outside as no chains. A ring that comes back alone is the same when it is cut again; of several, each says only
/// together with the others what the area contains.
///
/// Returns what ProjLLPreclipPolyline returns, 20205 being reported for fewer than 3 points.
ZRPROJ_API bool ProjLLPreclipPolygon(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Frees a list of chains, every piece of it. Null is ignored.
ZRPROJ_API void ProjFreeChains(CPROJCHAIN* chains);

} // namespace ZrProj

#endif
