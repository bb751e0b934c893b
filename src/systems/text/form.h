// In which form a definition is.
#pragma once

#include "systems/definition.h"
#include "systems/text/problem.h"

#include <optional>
#include <string_view>

namespace ZrProj::systems {

enum class Form {
    code,       // EPSG:28992, 28992, a URN, an address
    name,       // whatever is none of the others
    wkt1,       // PROJCS[...], GEOGCS[...], COMPD_CS[...]
    wkt2,       // PROJCRS[...], GEOGCRS[...], ...
    projJson,   // {...}
    projString, // +proj=...
};

Form formOf(std::string_view text);

/// The register's code that a text of the form `code` names. Of a compound URN's codes the first.
std::optional<Code> codeIn(std::string_view text);

/// Reads a definition that is neither a code nor a name.
OrProblem<Definition> readDefinition(std::string_view text);

} // namespace ZrProj::systems
