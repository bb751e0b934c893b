#include "cli/georef/methods.h"

#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>

namespace ZrProj::Command {

GeorefMethod const& findGeorefMethod(std::string_view text) {
    auto const found = std::find_if(georefMethods.begin(), georefMethods.end(), [&](GeorefMethod const& row) {
        return squeezed(row.key) == squeezed(text) || squeezed(RefMethodName(row.method)) == squeezed(text);
    });
    if (found != georefMethods.end())
        return *found;
    std::string keys;
    for (GeorefMethod const& row : georefMethods)
        keys += (keys.empty() ? "" : ", ") + std::string(row.key);
    throw UsageError("--method: " + inQuotes(text) + " is none of " + keys);
}

} // namespace ZrProj::Command
