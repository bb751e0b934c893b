// Units of length and angle as texts state them.
#pragma once

#include "systems/definition.h"
#include "systems/method_table.h"

#include <optional>
#include <string_view>

namespace ZrProj::systems {

/// The register's unit of this size, or the text's own where the register has none. Texts round a size in their own
/// ways; of several units of one size the one of this code or name is meant.
Unit statedUnit(Kind kind, double factor, std::string_view name, Code code);

/// The register's unit that is called so, by itself or by ESRI.
std::optional<Unit> unitNamed(Kind kind, std::string_view name);

} // namespace ZrProj::systems
