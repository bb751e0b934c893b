// The set of a processor level's formulas. A formula without a source is an undefined symbol to the linker.
#include "formulas/driver.h"
#include "formulas/levels.h"

#include <utility>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

constinit FormulaSet const formulaSet = []<std::size_t... method>(std::index_sequence<method...>) {
    return FormulaSet{{formula<Method{method}>...}};
}
(std::make_index_sequence<methodCount>());

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
