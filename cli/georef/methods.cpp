#include "cli/georef/methods.h"

#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

std::vector<GeorefMethod> readMethods() {
    std::vector<GeorefMethod> methods;
    int method = 0;
    char const* key = nullptr;
    std::size_t needed = 0;
    for (std::size_t n = 0; zrproj_fit_method_entry(n, &method, &key, nullptr, &needed) == ZRPROJ_OK; ++n)
        if (method != TransformMethodPrecalculatedAffineCoefficients)
            methods.push_back({key, static_cast<TransformMethod>(method), needed});
    return methods;
}

} // namespace

std::vector<GeorefMethod> const& georefMethods() {
    static std::vector<GeorefMethod> const methods = readMethods();
    return methods;
}

GeorefMethod const& findGeorefMethod(std::string_view text) {
    auto const found = std::ranges::find_if(georefMethods(), [&](GeorefMethod const& row) {
        return squeezed(row.key) == squeezed(text) || squeezed(RefMethodName(row.method)) == squeezed(text);
    });
    if (found != georefMethods().end())
        return *found;
    std::string keys;
    for (GeorefMethod const& row : georefMethods())
        keys += (keys.empty() ? "" : ", ") + std::string(row.key);
    throw UsageError("--method: " + inQuotes(text) + " is none of " + keys);
}

} // namespace ZrProj::Command
