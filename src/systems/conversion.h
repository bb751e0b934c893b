// From a definition to something that converts: which formula computes it, with which numbers, and what lies between
// the formula's map and the system's coordinates.
#pragma once

#include "formulas/converter.h"
#include "formulas/method.h"
#include "formulas/parameters.h"
#include "systems/definition.h"

#include <string>
#include <variant>

namespace ZrProj::systems {

/// A system's coordinates are (sense * map + false origin) * scale; longitudes count from the meridian.
struct Conversion {
    formulas::Method method = formulas::Method::none; // of a geographic system
    formulas::ParametersInDegrees parameters;         // lengths in metres
    double falseEasting = 0, falseNorthing = 0;       // metres
    double scale = 1;                                 // units a metre
    Sense x = Sense::positive, y = Sense::positive;
    double meridian = 0; // degrees east of Greenwich
};

/// Why a system is known, but cannot be computed.
struct Unsupported {
    std::string reason;
};

std::variant<Conversion, Unsupported> conversionOf(Definition const& system);

/// Runs a conversion over arrays of points, in place, between longitude and latitude, in degrees from Greenwich on the
/// system's own datum, and the system's coordinates, x before y. What a geographic system's longitudes become may be in
/// another turn of the globe. Never changes: threads may share one.
class SystemConverter {
public:
    /// Nothing where the parameters define no map.
    static std::variant<SystemConverter, Unsupported> make(Conversion const& conversion);

    levels::Outcome forward(PROJPOINT* points, int count) const noexcept;
    levels::Outcome inverse(PROJPOINT* points, int count) const noexcept;

private:
    SystemConverter() = default;

    levels::Outcome run(formulas::Converter::Direction direction, PROJPOINT* points, int count) const noexcept;

    formulas::Converter map_;
    bool isGeographic_ = false;
    double meridian_ = 0;
    double xSense_ = 1, ySense_ = 1; // what is left of the axes' senses when the scale has its sign
};

} // namespace ZrProj::systems
