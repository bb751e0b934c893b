// The flags of a record.
#pragma once

#include <zrproj/projection.h>

#include <cstring>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// Whether a flag is set. Its byte is looked at: a caller's record may hold anything there, and a bool that is neither
/// 0 nor 1 must not be read as one.
template <bool PROJDATA::*flag> bool isSet(PROJDATA const& record) {
    unsigned char byte = 0;
    std::memcpy(&byte, &(record.*flag), 1);
    return byte != 0;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
