// The processor levels that the datum methods are built for: those of the formulas, and the same one in use.
#pragma once

#include "datum/step.h"

namespace ZrProj::datum {

namespace scalar {
extern MethodSet const methodSet;
}
namespace baseline {
extern MethodSet const methodSet;
}
namespace avx2 {
extern MethodSet const methodSet;
}
namespace avx512 {
extern MethodSet const methodSet;
}

} // namespace ZrProj::datum
