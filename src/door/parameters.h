// A system's parameters, as the door's callers give them and as records.
#pragma once

#include "door/answer.h"

#include "proj/parameter_table.h"

#include <zrproj/datum.h>

#include <array>

namespace ZrProj::Door {

/// The field that holds a parameter: a number, or a flag or a number of a catalogue.
struct ParameterField {
    ProjParam id;
    double zrproj_parameters::*number;
    int zrproj_parameters::*whole = nullptr;

    double get(zrproj_parameters const& from) const { return number ? from.*number : from.*whole; }
};

// clang-format off
inline constexpr std::array parameterFields{
    ParameterField{ProjParamType,        nullptr, &zrproj_parameters::type},
    ParameterField{ProjParamScale,       &zrproj_parameters::scale},
    ParameterField{ProjParamXOrg,        &zrproj_parameters::x0},
    ParameterField{ProjParamYOrg,        &zrproj_parameters::y0},
    ParameterField{ProjParamLat0,        &zrproj_parameters::lat0},
    ParameterField{ProjParamLon0,        &zrproj_parameters::lon0},
    ParameterField{ProjParamLat1,        &zrproj_parameters::lat1},
    ParameterField{ProjParamLat2,        &zrproj_parameters::lat2},
    ParameterField{ProjParamLat3,        &zrproj_parameters::lat3},
    ParameterField{ProjParamLon1,        &zrproj_parameters::lon1},
    ParameterField{ProjParamLon2,        &zrproj_parameters::lon2},
    ParameterField{ProjParamLon3,        &zrproj_parameters::lon3},
    ParameterField{ProjParamK0,          &zrproj_parameters::k0},
    ParameterField{ProjParamSouth,       nullptr, &zrproj_parameters::south},
    ParameterField{ProjParamZone,        nullptr, &zrproj_parameters::zone},
    ParameterField{ProjParamUseAlpha,    nullptr, &zrproj_parameters::use_alpha},
    ParameterField{ProjParamAlpha,       &zrproj_parameters::alpha},
    ParameterField{ProjParamRotate,      nullptr, &zrproj_parameters::rotate},
    ParameterField{ProjParamUOffset,     nullptr, &zrproj_parameters::u_offset},
    ParameterField{ProjParamEllipsoid,   nullptr, &zrproj_parameters::ellipsoid},
    ParameterField{ProjParamMajorRadius, &zrproj_parameters::radius},
    ParameterField{ProjParamFlattening,  &zrproj_parameters::flattening},
};
// clang-format on
static_assert(parameterFields.size() == parameterTable.size());

PROJDATA recordOf(zrproj_parameters const& parameters) noexcept;

/// Parameters that say what the records say.
zrproj_parameters parametersOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& shift) noexcept;

/// The parameters of a datum of the caller's own, to WGS 84; those of a datum of the catalogue where it has any.
DATUM2WGS84 shiftOf(zrproj_parameters const& parameters) noexcept;

/// Whether the datum is told at all.
bool hasDatum(zrproj_parameters const& parameters) noexcept;

/// Fills in what follows from the rest, and checks all of it: a system can be made of the result.
Answer complete(zrproj_parameters& parameters);

} // namespace ZrProj::Door
