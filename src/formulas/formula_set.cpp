#include "formulas/formula_set.h"

#include "formulas/levels.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

constinit FormulaSet const formulaSet = [] {
    FormulaSet set{};
    set.byType[ProjTypeUniversalTransverseMercator] = &transverseMercator;
    set.byType[ProjTypeTransverseMercator] = &transverseMercator;
    set.byType[ProjTypeGaussKruger] = &transverseMercator;
    return set;
}();

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
