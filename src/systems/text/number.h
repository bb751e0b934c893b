// Numbers in definitions. The decimal mark is a point whatever the host's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ZrProj::systems {

/// A decimal number that the text begins with, and how many characters it takes.
struct LeadingNumber {
    double value;
    std::size_t length;
};

/// Nothing where the text does not begin with a number, or with one beyond the range of doubles.
std::optional<LeadingNumber> leadingNumber(std::string_view text);

/// Nothing where the text is anything but one number.
std::optional<double> wholeNumber(std::string_view text);

/// The shortest decimal that says the number to within the rounding of a conversion of units: up to 15 significant
/// digits, or as many as it takes to tell it from its neighbours.
std::string numberText(double value);

} // namespace ZrProj::systems
