// The page on the projection types, in Markdown.
#pragma once

#include "speeds.h"

#include <ostream>
#include <string>

namespace ZrProj::docs {

/// Throws where a text is missing: the formulas are in the folder `formulas`.
void writePage(std::ostream& out, std::string const& formulas, Speeds const& speeds);

} // namespace ZrProj::docs
