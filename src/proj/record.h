// What several sources do with a PROJDATA: read its flags, take its parameters, and write it to the log.
#pragma once

#include "formulas/parameters.h"

#include <zrproj/projection.h>

#include <cstring>

namespace ZrProj {

/// A flag's byte. A caller's record may hold anything there, and a bool that is neither 0 nor 1 must not be read as
/// one.
template <bool PROJDATA::*flag> unsigned char flagByte(PROJDATA const& record) {
    unsigned char byte = 0;
    std::memcpy(&byte, &(record.*flag), 1);
    return byte;
}

/// What a formula is made from, as the record says it.
formulas::ParametersInDegrees parametersOf(PROJDATA const& record) noexcept;

/// Writes every field to the log, a line each; nothing while the log is off or for null.
void logRecord(PROJDATA const* record) noexcept;

/// Writes the fields that matter most to the log, in an older and shorter form.
void logRecordBriefly(PROJDATA const* record) noexcept;

} // namespace ZrProj
