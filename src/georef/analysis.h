// How well a fit meets its control points, and which of them do not belong.
#pragma once

#include "georef/fit.h"

#include <optional>
#include <vector>

namespace ZrProj {

struct Residual {
    GEOREFPOINT offset{};             // where the fit puts the point, less where it is given
    double length = 0;                // of the offset
    std::optional<double> leftOut;    // the length once more, by a fit to all the others; nothing where there is none
    std::optional<double> leverage{}; // of a least-squares fit
};

struct Analysis {
    std::vector<Residual> residuals; // by control point
    double mean = 0, rms = 0;
    std::optional<double> leftOutMean, leftOutRms; // over all points; nothing where one of them has none
    std::vector<std::size_t> outliers;             // in the order in which they were found
    std::optional<double> rmsWithout;              // the fit's without the outliers: leave-one-out residuals for a warp
    TransformMethod judge{};                       // whose residuals tell the outliers and the worst point
    std::size_t worst = 0;                         // the first outlier, else the point with the greatest residual
    Residual worstResidual;                        // the judge's
};

/// Whether looking for outliers among so many control points is a matter of seconds.
bool canFindOutliers(TransformMethod method, std::size_t controls);

/// The least number of control points among which one that stands out can be told. A least-squares fit to the others
/// must have four observations more than unknowns: with fewer, nearly any point can be the odd one.
std::size_t fewestToTell(TransformMethod method);

/// Looks for outliers, one by one, with each fit leaving the earlier ones out. Where the controls are too few for the
/// method to tell, but enough for an affine one, that one judges.
///
/// A least-squares method: by Baarda's data snooping. A point's leave-one-out residual, over the spread that the fit to
/// the others shows, squared, has an F distribution where all is well; the least likely point is out when the chance of
/// any of n points to be so far off is below 1 percent. (Baarda 1968, A testing procedure for use in geodetic networks;
/// the spread is that without the point, as in Cook & Weisberg 1982, p. 20.)
///
/// A warp, which meets every point: a point is out when its leave-one-out residual is more than 12 times the median of
/// the others', all taken without it; of the three points with the greatest residuals, the one whose absence makes the
/// others agree best is looked at.
///
/// map: the method's fit to the controls. May run out of memory.
Analysis analyse(TransformMethod method, GeorefMap const& map, Controls const& controls);

} // namespace ZrProj
