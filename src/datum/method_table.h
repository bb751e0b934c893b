// The datum methods: one row a method, in DatumMethod order. A new method is its number in DatumMethod, its step in
// src/datum/kernels, its row here, and its data in tests/data/datums.
#pragma once

#include <zrproj/datum.h>

#include <algorithm>
#include <array>
#include <functional>

namespace ZrProj {

/// What a method goes by, beside the points.
enum class DatumNeeds {
    Nothing,
    Shifts,    // dX, dY, dZ, geocentric and in metres, the prime meridian and the ellipsoid
    Rotations, // those, and rX, rY, rZ, in arcseconds, and the scale
    Equations, // the library's own, one set a datum
    Grid,      // files beside the host's executable
};

struct DatumMethodRow {
    DatumMethod method;
    char const* name;     // in lists, messages and user datums
    char const* fileName; // in reference files
    DatumNeeds needs;
    bool inverts; // from WGS 84 as well

    /// Whether a source in kernels/ computes it.
    constexpr bool isComputed() const { return needs != DatumNeeds::Nothing && needs != DatumNeeds::Grid; }
    constexpr bool hasShifts() const { return needs == DatumNeeds::Shifts || hasRotations(); }
    constexpr bool hasRotations() const { return needs == DatumNeeds::Rotations; }
    /// Whether a caller's own record says all that the method needs.
    constexpr bool isOwn() const { return needs == DatumNeeds::Nothing || hasShifts(); }
};

// clang-format off
inline constexpr std::array datumMethodTable{
    DatumMethodRow{DatumMethodNone,       "none",       "No transform", DatumNeeds::Nothing,   true},
    DatumMethodRow{DatumMethodNadcon,     "NADCON",     "NADCON",       DatumNeeds::Grid,      false},
    DatumMethodRow{DatumMethodBursaWolf,  "Bursa-Wolf", "Bursa-Wolf",   DatumNeeds::Rotations, true},
    DatumMethodRow{DatumMethodMolodensky, "Molodensky", "Molodensky",   DatumNeeds::Shifts,    true},
    DatumMethodRow{DatumMethodMRE,        "regression", "MRE",          DatumNeeds::Equations, false},
};
// clang-format on

/// The method's row; null for a number that is no method.
constexpr DatumMethodRow const* datumMethodRow(DatumMethod method) {
    auto const row = std::ranges::find(datumMethodTable, method, &DatumMethodRow::method);
    return row == datumMethodTable.end() ? nullptr : &*row;
}

/// Stands where no method is known: in a record that a reference file with the name of an unknown one was read into,
/// and in the row that closes the table of datums. Those who use the record interface know it as 6, so no method may
/// take it.
inline constexpr auto unknownDatumMethod = static_cast<DatumMethod>(6);
static_assert(!datumMethodRow(unknownDatumMethod));

/// What a method tells of itself; false for a number that is no method.
template <class Answer> constexpr bool datumMethodIs(DatumMethod method, Answer answer) {
    auto const* const row = datumMethodRow(method);
    return row && std::invoke(answer, *row);
}

} // namespace ZrProj
