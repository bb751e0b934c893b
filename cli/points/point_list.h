// The first points of a file, for what looks at them instead of converting them.
#pragma once

#include "cli/points/layout.h"

#include <zrproj/zrproj.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// At most so many points, in the order of the lines that have one; nothing for a line whose point cannot be read. "-"
/// is standard input. Throws std::runtime_error where the file cannot be read, and UsageError for a header that cannot
/// be used.
std::vector<std::optional<PROJPOINT>> readPoints(std::string const& file, ColumnRequest const& request,
                                                 std::size_t most);

} // namespace ZrProj::Command
