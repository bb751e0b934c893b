// Angles in PROJ strings: decimal degrees, or degrees, minutes and seconds with a hemisphere (12d27'8.4"E).
#pragma once

#include <optional>
#include <string_view>

namespace ZrProj::systems {

/// Degrees; nothing where the text is no angle.
std::optional<double> angleOf(std::string_view text);

} // namespace ZrProj::systems
