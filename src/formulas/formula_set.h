// The formulas of one processor level, one for each source.
#pragma once

#include "formulas/converter.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

extern Formula const mercator;
extern Formula const albers;
extern Formula const miller;
extern Formula const lambertConformalConic;
extern Formula const stereographic;
extern Formula const orthographic;
extern Formula const mollweide;
extern Formula const polyconic;
extern Formula const hotine;
extern Formula const equidistantCylindrical;
extern Formula const robinson;
extern Formula const vanDerGrinten;
extern Formula const cassini;
extern Formula const transverseMercator;
extern Formula const sinusoidal;
extern Formula const lambertAzimuthal;
extern Formula const bonne;
extern Formula const robinsonSterling;
extern Formula const eckertIV;
extern Formula const eckertVI;
extern Formula const obliqueMercator;
extern Formula const equidistantConic;
extern Formula const gnomonic;
extern Formula const azimuthalEquidistant;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
