// NADCON grids: not available yet.
#include "datum/nadcon.h"

#include "frame/errors.h"

namespace ZrProj {

bool convertNadcon(char const*, DATUMPOINT*, std::size_t) {
    return AssertFailed(".\\dNadcon.cpp", __LINE__);
}

} // namespace ZrProj
