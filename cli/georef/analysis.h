// Maps through control points: how well they meet them, and which of them do not belong.
#pragma once

#include "cli/georef/controls.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace ZrProj::Command {

/// A map of a method through control points.
class GeorefFit {
public:
    /// Throws ControlsError, with the reason, where there is none.
    GeorefFit(GeorefMethod const& method, std::vector<ControlPoint> const& controls);

    /// Points in place; those that have no result become DBL_MAX, DBL_MAX.
    void map(std::span<GEOREFPOINT> points) const;
    GEOREFPOINT operator()(GEOREFPOINT point) const {
        map({&point, 1});
        return point;
    }
    zrproj_fit const* handle() const { return m_fit.get(); }

private:
    struct Destroyer {
        void operator()(zrproj_fit* fit) const { zrproj_fit_destroy(fit); }
    };
    std::unique_ptr<zrproj_fit, Destroyer> m_fit;
};

/// A term of a polynomial, and its coefficients for X and for Y.
struct GeorefCoefficient {
    std::string_view term;
    double x = 0, y = 0;
};

/// The terms of a fitted polynomial or similarity, in source coordinates as they are; empty for an exact method, which
/// has none. Throws ControlsError where there is no map.
std::vector<GeorefCoefficient> georefCoefficients(GeorefMethod const& method,
                                                  std::vector<ControlPoint> const& controls);

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
    double worstLength = 0;              // the judge's
    std::optional<double> worstLeft;
    std::size_t fewestToTell = 0; // controls that the method needs to tell of one that it stands out
    bool hasLooked = false;       // for outliers: among too many that would take too long
};

/// Throws ControlsError where there is no map.
Analysis analyse(GeorefMethod const& method, std::vector<ControlPoint> const& controls);

} // namespace ZrProj::Command
