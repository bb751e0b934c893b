// Which values of a method's parameters define a map at all: scales above 0, latitudes between the poles, parallels
// that carry a cone or a cylinder.
#pragma once

#include "systems/methods.h"

#include <optional>
#include <string_view>

namespace ZrProj::systems {

bool isLatitude(Parameter p);

struct WrongParameter {
    Parameter parameter;
    std::string_view why; // follows the parameter's name: "must be above 0"
};

/// The first parameter of a method whose value defines no map; nothing where all may. What the method does not take is
/// not looked at where it has no value.
std::optional<WrongParameter> wrongParameter(Method method, ParameterValues const& values);

} // namespace ZrProj::systems
