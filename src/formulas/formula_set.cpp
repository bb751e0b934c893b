// The set of a processor level's formulas. A formula without a source is an undefined symbol to the linker.
#include "formulas/formula.h"

#include <utility>

namespace ZrProj {

template <>
formulas::FormulaSet const& levels::operationsOf<formulas::FormulaSet, levels::ZRPROJ_LEVEL::Home>() noexcept {
    static constexpr auto set = []<std::size_t... method>(std::index_sequence<method...>) {
        using formulas::Method;
        return formulas::FormulaSet{{formulas::ZRPROJ_LEVEL::formula<Method{method}>...}};
    }
    (std::make_index_sequence<formulas::methodCount>());
    return set;
}

} // namespace ZrProj
