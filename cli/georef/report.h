// What georef fit prints.
#pragma once

#include "cli/georef/analysis.h"
#include "cli/text/output.h"

namespace ZrProj::Command {

/// The coefficients, the residuals by point, their mean and root mean square, and what to think of the worst point.
void writeGeorefFit(Output& output, GeorefMethod const& method, std::vector<ControlPoint> const& controls,
                    Analysis const& analysis);

/// All methods that the controls allow, a line each. Throws ControlsError where they allow none.
void writeGeorefComparison(Output& output, std::vector<ControlPoint> const& controls);

} // namespace ZrProj::Command
