// The checks of a projection record.
#pragma once

#include <zrproj/projection.h>

namespace ZrProj {

/// The first thing wrong with a record; no parameter when nothing is.
struct RecordFault {
    unsigned error = 0; // number of the message
    ProjParam parameter = ProjParamNone;
};

RecordFault findFault(PROJDATA const& record) noexcept;

} // namespace ZrProj
