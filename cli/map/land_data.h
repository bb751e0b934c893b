// samples/land-110m.csv, which the build puts into the command.
#pragma once

#include <string_view>

namespace ZrProj::Command {

extern std::string_view const landData;

} // namespace ZrProj::Command
