// A command line, or a file's header, that cannot be followed. Ends the command with status 2.
#pragma once

#include <stdexcept>

namespace ZrProj::Command {

struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace ZrProj::Command
