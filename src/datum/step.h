// What a conversion of datums is made of, the same for every processor level: stages between longitudes and latitudes
// in degrees.
#pragma once

#include "datum/method_table.h"
#include "levels/stage.h"

#include <zrproj/datum.h>

#include <cstddef>

namespace ZrProj::datum {

/// A method made ready for one end of a conversion; without code the points stay as they are.
struct Step {
    levels::StageCode code;
    alignas(double) std::byte constants[128];

    /// Lives no longer than the step, and only while that stays where it is.
    levels::Stage stage() const { return {code, constants}; }
};

/// The operations of one processor level.
struct MethodSet {
    levels::Convert* driver;

    /// Brings longitudes into -180 to 180 and latitudes into -90 to 90, and keeps what was taken off.
    levels::StageCode cut;
    /// Adds it again and brings the coordinates into range.
    levels::StageCode restore;
    /// Only brings them into range.
    levels::StageCode normalise;

    /// What the record says, in the direction that it says, by each row of datumMethodTable; null where points are not
    /// shifted by a formula. The record's figures are those of its ellipsoid; equations are those of the datum.
    using MakeStep = Step (*)(DATUM2WGS84 const& record, DatumType type) noexcept;
    MakeStep steps[datumMethodTable.size()];
};

} // namespace ZrProj::datum
