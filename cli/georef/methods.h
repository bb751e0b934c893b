// The georeferencing methods as options of the command.
#pragma once

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct GeorefMethod {
    std::string_view key; // of --method
    TransformMethod method;
    std::size_t needed; // controls
};

/// The methods that controls are fitted by, least squares first, in the library's order.
std::vector<GeorefMethod> const& georefMethods();

/// Whether a method meets every control.
constexpr bool isExact(GeorefMethod const& method) {
    return method.method >= TransformMethodThinPlateSpline;
}

/// Throws UsageError for a text that names none.
GeorefMethod const& findGeorefMethod(std::string_view text);

} // namespace ZrProj::Command
