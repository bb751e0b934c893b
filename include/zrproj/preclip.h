// Preclipping: cutting lines and areas in longitude/latitude at the edges of a projection.
#ifndef ZRPROJ_PRECLIP_H
#define ZRPROJ_PRECLIP_H

#include "projection.h"

namespace ZrProj {

/// One piece of a preclipped line or area, and the next one. The caller owns the list until ProjFreeChains.
class CPROJCHAIN {
public:
    unsigned nPoints;   ///< how many points
    PROJPOINT* pPoints; ///< longitude/latitude, degrees
    bool bClosed;       ///< whether the piece is a ring; the last point joins the first
    CPROJCHAIN* pNext;  ///< null at the end of the list
};

/// Cuts a line at the projection's edges: the chains are what the map shows of it, in its order.
///
/// Points are longitude and latitude in degrees, straight edges of that plane between them; from a longitude to one
/// more than 180 degrees away an edge goes the short way. A line breaks at a point that is no place: not finite,
/// longitude beyond +-360, latitude beyond +-90.
///
/// Every point of a chain is in range (ProjLLInProjection) and on the map; no chain goes over an edge of the map. Cuts
/// are made just inside of the edge, 1e-9 degrees from a meridian or a horizon (0.1 mm on the Earth) and 1e-6 degrees
/// (0.1 m) around a pole, an antipode or another place that cannot be shown. Where the map ends at meridians, what is
/// cut has longitudes between them, so that both sides of a cut go to their own side of the map. A line of which
/// nothing is cut comes back unchanged. Cutting a chain again changes nothing.
///
/// Returns true and sets `*chains` to the list, null when nothing of the line can be shown or the record defines no
/// map. Returns false, with null in `*chains` where it is given, when `handle`, `points` or `chains` is null or `count`
/// is below 2 (reported as error 20205), when memory runs out (20201), and for a projection that computes nothing.
ZRPROJ_API bool ProjLLPreclipPolyline(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Cuts an area, given by the ring around it, at the projection's edges: the chains are rings, closed along the edges
/// with points a degree apart at most, and bound what the map shows of the area.
///
/// As with lines; a point that is no place is left out, and a first point that is repeated at the end is tolerated. At
/// least 3 points are needed, fewer are error 20205.
///
/// A ring holds what an odd number of its edges lies north of; a ring that winds around the globe holds the pole to
/// which its mean latitude is nearer (the one to its left when that is 0), and ends there on maps that show the pole as
/// a line. Of several rings that come back, one inside another is a hole in it. Rings keep the direction of the ring
/// given, unless it crosses itself. An area that holds the whole map comes back as the map's outline, one outside as no
/// chains. A ring that comes back alone is the same when it is cut again; of several, each says only together with the
/// others what the area holds.
ZRPROJ_API bool ProjLLPreclipPolygon(void* handle, PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

/// Frees a list of chains, every piece of it. Null is ignored.
ZRPROJ_API void ProjFreeChains(CPROJCHAIN* chains);

} // namespace ZrProj

#endif
