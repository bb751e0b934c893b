// Records of projections in words, as the files in tests/data/projections have them: "type=albers ellipsoid=wgs-84
// lat1=20 lat2=60". What is not named is 0. The words are the keys of the library's tables; ellipsoids and State Plane
// zones go by their names in lower-case letters, with hyphens between the words; rf is the inverse of the flattening.
#pragma once

#include <zrproj/projection.h>

#include <string>
#include <vector>

namespace ZrProj::test {

/// Throws std::invalid_argument for a word that it does not know.
PROJDATA recordOf(std::string const& words);

/// The fields of a line that "|" separates, without the blanks around them.
std::vector<std::string> fieldsOf(std::string const& line);

} // namespace ZrProj::test
