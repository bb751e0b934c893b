// Writers of definitions, one a form. What a form cannot say is a problem, unless it changes no coordinate: an area of
// use, the order of axes (coordinates are x, y always), codes and names of parts.
#pragma once

#include "systems/definition.h"
#include "systems/text/problem.h"

#include <string>

namespace ZrProj::systems {

/// Well-known text of the first generation as GDAL writes it.
OrProblem<std::string> writeWkt1(Definition const& definition);

/// Well-known text of the first generation as ESRI writes it, for .prj files. A way to WGS 84 cannot be said.
OrProblem<std::string> writeEsriWkt(Definition const& definition);

/// Well-known text of the second generation (ISO 19162:2019).
OrProblem<std::string> writeWkt2(Definition const& definition);

/// PROJJSON, version 0.5.
OrProblem<std::string> writeProjJson(Definition const& definition);

/// A PROJ string with +type=crs. It names few datums; of all others it says the ellipsoid alone.
OrProblem<std::string> writeProjString(Definition const& definition);

} // namespace ZrProj::systems
