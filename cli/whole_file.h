// A file that is there as a whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj::Command {

/// Writes a temporary file beside it and renames that. Returns an errno, 0 when all went well; what was there before
/// stays after a failure.
int writeWholeFile(std::string const& name, std::string_view text);

} // namespace ZrProj::Command
