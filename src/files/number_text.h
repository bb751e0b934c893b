// Numbers in side files. The decimal mark is a point whatever the host's locale.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj {

/// Appends what printf's "%.15G" gives in the C locale: up to 15 significant digits, no trailing zeros, an upper-case
/// exponent where it is shorter; INF and NAN.
void appendNumber(std::string& text, double value);

/// The number that a text begins with, 0 where it does not begin with one. Blanks and a sign may precede it, anything
/// may follow. Beyond the range of doubles it is infinite or 0. The text has at most 300 characters.
double readNumber(std::string_view text);

/// The same for whole numbers. Beyond the range of int it is the bound that it lies behind.
int readInteger(std::string_view text);

} // namespace ZrProj
