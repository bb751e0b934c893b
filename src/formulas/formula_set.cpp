#include "formulas/formula_set.h"

#include "formulas/levels.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

constinit FormulaSet const formulaSet = [] {
    FormulaSet set{};
    set.byType[ProjTypeMercator] = &mercator;
    set.byType[ProjTypeAlbersEqualAreaConic] = &albers;
    set.byType[ProjTypeMillerCylindrical] = &miller;
    set.byType[ProjTypeUniversalTransverseMercator] = &transverseMercator;
    set.byType[ProjTypeLambertConformalConic] = &lambertConformalConic;
    set.byType[ProjTypeStereographic] = &stereographic;
    set.byType[ProjTypeOrthographic] = &orthographic;
    set.byType[ProjTypeMollweide] = &mollweide;
    set.byType[ProjTypePolyconic] = &polyconic;
    set.byType[ProjTypeHotineObliqueMercator] = &hotine;
    set.byType[ProjTypeEquidistantCylindrical] = &equidistantCylindrical;
    set.byType[ProjTypeRobinson] = &robinson;
    set.byType[ProjTypeVanDerGrinten] = &vanDerGrinten;
    set.byType[ProjTypeCassini] = &cassini;
    set.byType[ProjTypeTransverseMercator] = &transverseMercator;
    set.byType[ProjTypeGaussKruger] = &transverseMercator;
    set.byType[ProjTypeSinusoidal] = &sinusoidal;
    set.byType[ProjTypeLambertAzimuthalEqualArea] = &lambertAzimuthal;
    set.byType[ProjTypeBonne] = &bonne;
    set.byType[ProjTypeRobinsonSterling] = &robinsonSterling;
    set.byType[ProjTypeEckertIV] = &eckertIV;
    set.byType[ProjTypeEckertVI] = &eckertVI;
    set.byType[ProjTypeObliqueMercator] = &obliqueMercator;
    set.byType[ProjTypeEquidistantConic] = &equidistantConic;
    set.byType[ProjTypeGnomonic] = &gnomonic;
    set.byType[ProjTypeAzimuthalEquidistant] = &azimuthalEquidistant;
    return set;
}();

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
