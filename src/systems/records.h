// What the records of projections and datums say, as definitions and as conversions.
#pragma once

#include "systems/conversion.h"
#include "systems/definition.h"

#include <zrproj/datum.h>
#include <zrproj/projection.h>

#include <variant>

namespace ZrProj::systems {

/// The datum of a record. `own` are the parameters of a datum of the user's own (0), and are not looked at for others.
/// The register's datum where the catalogue knows its code and both have the same figure to a metre, the most that
/// catalogues of ellipsoids differ by; the ellipsoid stays the record's.
Datum datumOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& own);

/// What a complete record says, without a code; recognise() finds it. Unsupported where no method that definitions
/// know computes what the record's type does.
std::variant<Definition, Unsupported> definitionOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& own);

/// How a complete record's coordinates are computed: by its type's own formula, which need not be the one that a
/// definition is computed by. Longitudes count from `meridian`.
Conversion conversionOf(PROJDATA const& record, double meridian);

} // namespace ZrProj::systems
