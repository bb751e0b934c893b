// Numbers as users write them.
#pragma once

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

} // namespace ZrProj::Command
