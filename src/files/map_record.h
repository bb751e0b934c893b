// All that side files can say of a map, and how many control points a file may claim to hold.
#pragma once

#include <zrproj/datum.h>
#include <zrproj/georef.h>
#include <zrproj/projection.h>

#include <cstdint>

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

/// Whether a record is made from controls and has them.
inline bool hasControls(GEOREF const& georef) {
    return georef.Method != TransformMethodNone && georef.Method != TransformMethodPrecalculatedAffineCoefficients &&
           georef.nControls > 0 && georef.pSource && georef.pTarget;
}

/// Whether a file of that size can hold so many points. Up to a million may be claimed freely.
constexpr bool canHoldControls(std::int32_t count, std::uint64_t fileBytes) {
    constexpr std::int32_t freely = 1000000;
    constexpr std::uint64_t bytesPerPoint = 12; // the shortest line of a point
    return count <= freely || fileBytes / bytesPerPoint >= static_cast<std::uint64_t>(count);
}

/// RefAllocControls for a count that a file claims.
inline bool allocateControls(GEOREF& georef, std::int32_t count, std::uint64_t fileBytes) {
    return canHoldControls(count, fileBytes) && RefAllocControls(&georef, count);
}

} // namespace ZrProj
