// The multiple regression equations as they are evaluated.
#pragma once

#include <zrproj/datum.h>

namespace ZrProj::datum {

/// c[i][j] is the coefficient of U^i V^j.
using Polynomial2 = double[10][10];

/// A datum's equations: changes in arcseconds, U = K (latitude - lat0), V = K (longitude - lon0), in degrees.
struct Regression {
    DatumType type;
    double lat0, lon0, K;
    Polynomial2 lat, lon;
};

/// The equations of a datum; null where it has none.
Regression const* regressionOf(DatumType type) noexcept;

/// The datum of the same name that goes by three shifts; 237 for a datum without equations.
DatumType threeShiftsOf(DatumType type) noexcept;

/// Whether equations have run away, which they do outside their area: they are right to metres there, and three shifts
/// to 40 metres, so that the results of both are further apart than can be.
bool haveRunAway(DATUMPOINT const& byEquations, DATUMPOINT const& byShifts) noexcept;

} // namespace ZrProj::datum
