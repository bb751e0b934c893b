// A file that is there as a whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj::Command {

/// Puts a file with the text in the place of what was there before, which stays after a failure. What is no plain file,
/// such as a device or a pipe, is written to. Throws std::runtime_error.
void writeWholeFile(std::string const& name, std::string_view text);

} // namespace ZrProj::Command
