#include "formulas/power_series.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

PowerSeries eccentricArtanh(double flattening) {
    double const e2 = flattening * (2 - flattening);
    PowerSeries series;
    for (double power = e2; power > 1e-18 && series.terms < PowerSeries::maxTerms; power *= e2) {
        series.c[series.terms] = power / (2 * series.terms + 1);
        ++series.terms;
    }
    return series;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
