// Tables for people to read.
#pragma once

#include "cli/text/output.h"

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct Table {
    std::vector<std::string> titles; // none: no line of titles
    std::string_view alignment;      // one letter a column: l or r
    std::vector<std::vector<std::string>> rows;

    void write(Output& output) const;
};

} // namespace ZrProj::Command
