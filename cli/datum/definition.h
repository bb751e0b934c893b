// A datum written on the command line: "My site: method=molodensky, ellipsoid=clarke 1866, dx=-8, dy=160, dz=176".
#pragma once

#include "cli/datum/datums.h"

#include <vector>

namespace ZrProj::Command {

/// Reads a definition: a name, a colon, and fields between commas, in any order. Those left out are zero; the method
/// must be there. Throws UsageError for anything that no conversion could use, and for a name of the
/// catalogue.
Datum readDatumDefinition(std::string_view text);

struct DatumField {
    std::string_view key, unit, words;
    double value;
};

/// The record's numbers, as a definition calls them.
std::vector<DatumField> datumFields(DATUM2WGS84 const& record);

} // namespace ZrProj::Command
