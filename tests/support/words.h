// Records of projections in words, as the files in tests/data/projections have them: "type=albers ellipsoid=wgs-84
// lat1=20 lat2=60". What is not named is 0. The words are the keys of the library's tables; ellipsoids and State Plane
// zones go by their names in lower-case letters, with hyphens between the words; rf is the inverse of the flattening. A
// formula that no record reaches is named by its method in place of the type: "method=krovak radius=6377397.155 ...
// colatitude=30.28813975", and takes the words rectified, colatitude, height and zone_width as well.
#pragma once

#include "formulas/method.h"
#include "formulas/parameters.h"

#include <zrproj/projection.h>

#include <optional>
#include <string>
#include <vector>

namespace ZrProj::test {

/// Throws std::invalid_argument for a word that it does not know. Of a formula that words name by its method, the
/// record has the ellipsoid, the angles, the false origin and the scale.
PROJDATA recordOf(std::string const& words);

/// A formula that words name by its method.
struct FormulaWords {
    formulas::Method method = formulas::Method::none;
    formulas::ParametersInDegrees parameters;
    double x0 = 0, y0 = 0, scale = 1;
};
std::optional<FormulaWords> formulaOf(std::string const& words);

/// The fields of a line that "|" separates, without the blanks around them.
std::vector<std::string> fieldsOf(std::string const& line);

} // namespace ZrProj::test
