// The parameters of a projection as rows of a table.
#pragma once

#include "cli/projection/parameters.h"
#include "cli/text/table.h"

namespace ZrProj::Command {

/// Adds the projection and the parameters that its type uses: name, value, and the option that sets it.
void addParameterRows(Table& table, PROJDATA const& record);

} // namespace ZrProj::Command
