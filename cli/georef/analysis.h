// How well a fit meets its control points, and which of them do not belong.
#pragma once

#include "cli/georef/controls.h"

#include <memory>
#include <optional>
#include <vector>

namespace ZrProj::Command {

struct Residual {
    GEOREFPOINT offset{};       // where the fit puts the point, less where it is given
    double length = 0;          // of the offset
    std::optional<double> left; // the length once more, by a fit to all the others; nothing where that cannot be made
};

struct Analysis {
    std::vector<Residual> residuals; // by control
    double mean = 0, rms = 0;
    std::optional<double> leftMean, leftRms; // over all controls; nothing where one of them has none
    std::vector<std::size_t> outliers;       // in the order in which they were found
    std::optional<double> rmsWithout;    // the fit's without the outliers: leave-one-out lengths for an exact method
    GeorefMethod const* judge = nullptr; // whose residuals tell the outliers and the worst point
    std::size_t worst = 0;               // the first outlier, else the point with the greatest length
    Residual worstResidual;              // the judge's
};

/// Makes the map of the method through the controls. Throws ControlsError, with the reason, where there is none.
std::unique_ptr<CGeorefTransform> fitGeoref(GeorefMethod const& method, std::vector<ControlPoint> const& controls);

/// Whether leave-one-out residuals of so many controls are a matter of seconds.
bool canLeaveOneOut(GeorefMethod const& method, std::size_t controls);

/// The same of looking for outliers.
bool canFindOutliers(GeorefMethod const& method, std::size_t controls);

/// The least number of controls among which one that stands out can be told. A least-squares fit to the others must
/// have four observations more than unknowns: with fewer, nearly any point can be the odd one.
std::size_t fewestToTell(GeorefMethod const& method);

/// Fits, and looks for outliers, one by one, with each fit leaving the earlier ones out. Where the controls are too few
/// for the method to tell, but enough for an affine one, that one judges.
///
/// A least-squares method: by Baarda's data snooping. A point's leave-one-out residual, over the spread that the fit to
/// the others shows, squared, has an F distribution where all is well; the least likely point is out when the chance of
/// any of n points to be so far off is below 1 percent. (Baarda 1968, A testing procedure for use in geodetic networks;
/// the spread is that without the point, as in Cook & Weisberg 1982, p. 20.)
///
/// A method that meets every point: a point is out when its leave-one-out residual is more than 12 times the median of
/// the others', all taken without it; of the three points with the greatest residuals, the one whose absence makes the
/// others agree best is looked at.
///
/// Throws ControlsError where there is no map.
Analysis analyse(GeorefMethod const& method, std::vector<ControlPoint> const& controls);

} // namespace ZrProj::Command
