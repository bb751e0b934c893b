// The processor levels that the formulas are built for, and which of them is in use.
#pragma once

#include "formulas/converter.h"

#include <optional>

namespace ZrProj::formulas {

namespace scalar {
extern FormulaSet const formulaSet; // one `double` at a time; the reference
}
namespace baseline {
extern FormulaSet const formulaSet; // the least that every processor of the kind has
}
namespace avx2 {
extern FormulaSet const formulaSet; // AVX2 and FMA
}
namespace avx512 {
extern FormulaSet const formulaSet; // AVX-512 F, CD, DQ, BW, VL
}

enum class Level { scalar, baseline, avx2, avx512 };

/// Whether this build has the level and this processor can run it.
bool isAvailable(Level level) noexcept;

/// The level of handles made from now on; at first the best one available. For tests and benchmarks.
Level levelInUse() noexcept;
void useLevel(Level level) noexcept;

/// A formula at the level in use; nothing for Method::none.
std::optional<Formula> formulaOf(Method method) noexcept;

} // namespace ZrProj::formulas
