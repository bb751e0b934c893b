// The register by names: its own and those of other makers.
#pragma once

#include "systems/register.h"

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

/// What the register names.
enum class Thing { system, datum, ellipsoid, meridian, unit };

/// The code of what is called so, 0 for nothing. As the register or another maker spells it, best; else without regard
/// to case; else without regard to spaces, marks and the word "zone". Of several, one in force goes before a deprecated
/// one. Of a system with heights ("A + B height"), the horizontal part; UTM zones alone stand on WGS 84.
Code codeNamed(Thing thing, std::string_view name);

/// The code of what the Open Geospatial Consortium names by itself (CRS84, CRS83, CRS27), 0 for nothing: longitude
/// first there, as x is here anyway.
Code codeOfOgc(std::string_view name);

/// The register's name, "" for an unknown code.
std::string nameOf(Thing thing, Code code);

/// What ESRI calls it, "" where no name of ESRI's is known.
std::string esriNameOf(Thing thing, Code code);

/// Systems in force whose names are nearest to one that nothing has, best first.
std::vector<Entry> suggestions(std::string_view name, std::size_t count);

} // namespace ZrProj::systems
