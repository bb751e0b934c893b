// The way to WGS 84 that a bound system states: three or seven parameters, or grid files.
#pragma once

#include "systems/definition.h"
#include "systems/text/statements.h"

#include <string>
#include <string_view>

namespace ZrProj::systems {

/// A parameter of the way, in the order and the units of ToWgs84.
struct BindingRow {
    Code code;
    std::string_view name, wktUnit, jsonUnit;
};

inline constexpr std::string_view arcsecondOfWkt = R"(ANGLEUNIT["arc-second",4.84813681109536E-06])";
inline constexpr std::string_view arcsecondOfJson =
    R"({"type":"AngularUnit","name":"arc-second","conversion_factor":4.84813681109536e-06})";
inline constexpr std::string_view millionthOfJson =
    R"({"type":"ScaleUnit","name":"parts per million","conversion_factor":1e-06})";

// clang-format off
inline constexpr BindingRow bindingRows[] = {
    {8605, "X-axis translation", R"(LENGTHUNIT["metre",1])",                "\"metre\""},
    {8606, "Y-axis translation", R"(LENGTHUNIT["metre",1])",                "\"metre\""},
    {8607, "Z-axis translation", R"(LENGTHUNIT["metre",1])",                "\"metre\""},
    {8608, "X-axis rotation",    arcsecondOfWkt,                            arcsecondOfJson},
    {8609, "Y-axis rotation",    arcsecondOfWkt,                            arcsecondOfJson},
    {8610, "Z-axis rotation",    arcsecondOfWkt,                            arcsecondOfJson},
    {8611, "Scale difference",   R"(SCALEUNIT["parts per million",1E-06])", millionthOfJson},
};
// clang-format on

/// Whether a system of this name is what systems may be bound to.
bool isWgs84(std::string_view name);

/// Gives the datum what a transformation states.
void takeBinding(Datum& datum, StatedMethod const& stated, std::string const& grids, Complaint& complaint);

} // namespace ZrProj::systems
