// Units of length for projected coordinates.
#pragma once

#include <array>
#include <string_view>

namespace ZrProj::Command {

struct LengthUnit {
    std::string_view name;   // as --units has it
    std::string_view suffix; // in the names of columns
    std::string_view words;  // for people
    double metres;
};

inline constexpr std::array lengthUnits{
    LengthUnit{"m", "m", "metres", 1},
    LengthUnit{"ft", "ft", "international feet", 0.3048},
    LengthUnit{"us-ft", "us_ft", "US survey feet", 1200.0 / 3937.0},
};

/// The unit that a text names in the manner of --units or of a column ("us-ft", "us_ft", "(m)"); null for none.
LengthUnit const* findLengthUnit(std::string_view text);

} // namespace ZrProj::Command
