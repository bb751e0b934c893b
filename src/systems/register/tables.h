// All tables of the register. Included by the sources that look things up; nothing else sees rows.
#pragma once

#include "systems/register/accuracies.h"
#include "systems/register/areas.h"
#include "systems/register/axes.h"
#include "systems/register/beginnings.h"
#include "systems/register/conversions.h"
#include "systems/register/datum_aliases.h"
#include "systems/register/datum_names.h"
#include "systems/register/datums.h"
#include "systems/register/ellipsoid_aliases.h"
#include "systems/register/ellipsoid_names.h"
#include "systems/register/ellipsoids.h"
#include "systems/register/grids.h"
#include "systems/register/meridian_aliases.h"
#include "systems/register/meridian_names.h"
#include "systems/register/meridians.h"
#include "systems/register/operands.h"
#include "systems/register/operations.h"
#include "systems/register/pairs.h"
#include "systems/register/parts.h"
#include "systems/register/realizations.h"
#include "systems/register/replacements.h"
#include "systems/register/shifts.h"
#include "systems/register/system_aliases.h"
#include "systems/register/system_names.h"
#include "systems/register/systems.h"
#include "systems/register/texts.h"
#include "systems/register/unit_aliases.h"
#include "systems/register/unit_names.h"
#include "systems/register/units.h"
#include "systems/register/values.h"
#include "systems/register/version.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>

namespace ZrProj::systems::rows {

inline void unpack(std::string& to, unsigned char byte) {
    if (pairs[byte][0] == 0) {
        to += static_cast<char>(byte);
        return;
    }
    unpack(to, pairs[byte][0]);
    unpack(to, pairs[byte][1]);
}

inline std::string at(Text text) {
    std::string unpacked;
    for (char const* byte = texts + text; *byte != 0; ++byte)
        unpack(unpacked, static_cast<unsigned char>(*byte));
    return unpacked;
}

/// Nothing where the register says no bounds.
inline std::optional<Area> areaOf(AreaRow const& row) {
    if (row.west == row.east && row.south == row.north)
        return {};
    return Area{row.west / 100.0, row.south / 100.0, row.east / 100.0, row.north / 100.0, at(row.name)};
}

/// The row of a table that has a code, or null.
template <class Row, std::size_t count> Row const* find(Row const (&table)[count], Code code) {
    auto const* row = std::ranges::lower_bound(table, code, {}, [](Row const& r) { return static_cast<Code>(r.code); });
    return row != std::end(table) && row->code == code ? row : nullptr;
}

} // namespace ZrProj::systems::rows
