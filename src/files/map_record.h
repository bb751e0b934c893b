// All that a reference file can say of a map.
#pragma once

#include <zrproj/datum.h>
#include <zrproj/georef.h>
#include <zrproj/projection.h>

namespace ZrProj {

/// The parts that a map lacks have the type 999, the datum 237 and the method 12.
struct MapRecord {
    PROJDATA projection;
    DatumType datum;
    DATUM2WGS84 datumParameters;
    GEOREF georef;
};

inline MapRecord emptyMapRecord() {
    MapRecord record = {};
    record.projection.Type = ProjTypeUndefined;
    record.datum = DatumTypeNone;
    record.georef.Method = TransformMethodNone;
    return record;
}

} // namespace ZrProj
