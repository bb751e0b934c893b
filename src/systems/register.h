// The register of coordinate systems: the EPSG dataset's geographic systems of two dimensions and projected systems, by
// code and by place. names.h finds them by name.
#pragma once

#include "systems/definition.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

/// The edition of the dataset, and whose it is under which terms: a sentence each.
std::string_view registerVersion();
std::string_view registerTerms();

// Each by its code; nothing where the register has no such thing.

/// A code of a system in three dimensions or with heights gives the horizontal part, with that one's code. Geocentric
/// systems, whose coordinates are no longitudes and latitudes, are none here.
std::optional<Definition> definitionOf(Code code);
std::optional<Datum> datumOf(Code code);
std::optional<Ellipsoid> ellipsoidOf(Code code);
std::optional<PrimeMeridian> meridianOf(Code code);
std::optional<Unit> unitOf(Code code);

/// A system of the register, in the order of codes.
struct Entry {
    Code code;
    char const* name; // lives as long as the process
    bool projected;
    bool deprecated;
};
std::size_t entryCount();
Entry entry(std::size_t n); // n < entryCount()

/// The ensemble that a datum is a realization of, 0 for none.
Code ensembleOf(Code datum);

/// The first system in force that has a conversion of the register, nothing where none has.
std::optional<Definition> systemOfConversion(Code conversion);

// By what they are: the first of the register, 0 where there is none.

/// The unit of length that is so many metres, up to rounding.
Code lengthUnitOf(double metres);
/// The ellipsoid with these axes, to a millimetre at the equator and a hundredth of that at the poles.
Code ellipsoidWith(Ellipsoid const& figure);

/// The codes of the systems that stand on a datum.
std::vector<Code> systemsOn(Code datum);

/// The systems in force whose area of use has a place, the smallest area first; degrees.
std::vector<Entry> systemsAt(double longitude, double latitude);

} // namespace ZrProj::systems
