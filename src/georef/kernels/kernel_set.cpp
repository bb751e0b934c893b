#include "georef/kernels/kernel_set.h"

#include "georef/kernels/cholesky.h"
#include "georef/kernels/polynomial.h"
#include "georef/kernels/warp.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

constinit KernelSet const georefKernels{mapByPolynomial, mapByWarp, basisRow, factorise};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
