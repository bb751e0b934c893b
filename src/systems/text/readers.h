// Readers of definitions, one a form.
#pragma once

#include "systems/definition.h"
#include "systems/text/problem.h"

#include <string_view>

namespace ZrProj::systems {

/// Well-known text of the first generation, as GDAL or as ESRI writes it.
OrProblem<Definition> readWkt1(std::string_view text);

/// Well-known text of the second generation, of 2015 or 2019. Of a compound system the horizontal part, of a bound one
/// the source with its way to WGS 84.
OrProblem<Definition> readWkt2(std::string_view text);

/// PROJJSON. What it says besides the system goes as with well-known text.
OrProblem<Definition> readProjJson(std::string_view text);

/// A PROJ string, with or without +type=crs.
OrProblem<Definition> readProjString(std::string_view text);

} // namespace ZrProj::systems
