// Numbers as users write them.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj::Command {

/// What a field reads as: a value, or the reason why it has none, worded to follow the field ("is empty").
struct Reading {
    double value = 0;
    char const* error = nullptr;
};

/// Reads a finite decimal number, with an optional sign and exponent, and blanks around it. The decimal mark is a
/// point, whatever the locale.
Reading readNumber(std::string_view field);

/// Reads a flattening: a number, or 1/298.25.
Reading readFlattening(std::string_view text);

/// A number with as many digits as it takes to read it back.
std::string numberText(double value);

/// A flattening as both of its kinds: "0.0033528106647474805 (1/298.257223563)".
std::string flatteningText(double flattening);

} // namespace ZrProj::Command
