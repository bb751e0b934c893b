// The checks of a projection record.
#pragma once

#include <zrproj/projection.h>

namespace ZrProj {

/// The first thing wrong with a record; parameter 0 when nothing is.
struct RecordFault {
    unsigned error = 0; // number of the message
    int parameter = 0;  // identifier of the parameter at fault
};

RecordFault findFault(PROJDATA const& record) noexcept;

} // namespace ZrProj
