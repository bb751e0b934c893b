// What the other sources need of the datum catalogue.
#pragma once

#include "datum/datum_table.h"
#include "proj/figure.h"

namespace ZrProj {

/// The datum's row; the end row where there is none.
DatumRow const& datumRow(DatumType type) noexcept;

/// The same without the datums that can only be converted from.
DatumRow const& twoWayDatumRow(DatumType type) noexcept;

/// Copies the row's method and parameters into the record, with the figures of its ellipsoid; Reserved is left alone.
void fillRecord(DATUM2WGS84& record, DatumRow const& row) noexcept;

/// Radius and flattening from the ellipsoid catalogue, unless they are the caller's own.
void completeFigures(DATUM2WGS84& record) noexcept;

/// Whether a datum stands on a figure, counted from Greenwich. To a metre, which is better than any datum is known: the
/// catalogue has one Clarke 1880 for several. A datum without parameters is not held to any.
bool standsOn(DATUM2WGS84 const& datum, Figure const& figure) noexcept;

} // namespace ZrProj
