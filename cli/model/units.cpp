#include "cli/model/units.h"

#include "cli/text/text.h"

#include <algorithm>

namespace ZrProj::Command {

LengthUnit const* findLengthUnit(std::string_view text) {
    std::string const wanted = squeezed(text);
    auto const found = std::find_if(lengthUnits.begin(), lengthUnits.end(),
                                    [&](LengthUnit const& unit) { return squeezed(unit.name) == wanted; });
    return found == lengthUnits.end() ? nullptr : &*found;
}

} // namespace ZrProj::Command
